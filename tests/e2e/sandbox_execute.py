"""Runs one sandbox case (sandbox.py) and reports what happened, as execute.py does.

Started by run_cases.py as `unshare -n unshare --mount --pid --fork --mount-proc python3
sandbox_execute.py ROOT` with the case as JSON on standard input, so this process is the first of
a fresh pid namespace; ROOT is an empty directory in /tmp to mount the private root on. It builds a private root (bind mounts of the real one, an empty tmpfs on
/data, a tmpfs for the case's own files), prepares the working directory, daemon and pre-made
directories, runs the case through execute.py and adds a listing of /data and of the working
directory. The umask is 0 so that the modes the tool asks for show unchanged.
"""

import base64
import json
import os
import shutil
import signal
import stat
import subprocess
import sys

import execute

HERE = os.path.dirname(os.path.abspath(__file__))
CASE_DIR = "/case"  # the case's own files, inside the private root
WORKDIR = CASE_DIR + "/cwd"
BIN_DIR = CASE_DIR + "/bin"
RUNS = CASE_DIR + "/runs.json"


def mount(*args: str):
    done = subprocess.run(["mount", *args], capture_output=True)
    if done.returncode != 0:
        raise RuntimeError(f"mount {' '.join(args)}: {done.stderr.decode(errors='replace')}")


def enter_private_root(root: str):
    """Changes root to a tmpfs mounted on root (an empty directory in /tmp) that binds every
    top-level entry of the real root except /data, which is an empty tmpfs."""
    mount("-t", "tmpfs", "tmpfs", root)
    for name in sorted(os.listdir("/")):
        source, target = "/" + name, os.path.join(root, name)
        if name == "data":
            continue
        if os.path.islink(source):
            os.symlink(os.readlink(source), target)
        elif os.path.isdir(source):
            os.mkdir(target)
            # /tmp holds the new root itself: bind it without what is mounted below it.
            mount("--bind" if name == "tmp" else "--rbind", source, target)
        else:
            open(target, "w").close()
            mount("--bind", source, target)
    os.mkdir(os.path.join(root, "data"), 0o755)
    mount("-t", "tmpfs", "-o", "mode=0755", "tmpfs", os.path.join(root, "data"))
    os.chroot(root)
    os.chdir("/")


def write_executable(path: str, text: str):
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)
    os.chmod(path, 0o755)


def prepare(box: dict, job: dict) -> list:
    """Sets up the case's files and daemons; returns the extra processes to stop afterwards."""
    os.makedirs(WORKDIR)
    os.makedirs(BIN_DIR)
    if box["tools"]:
        os.makedirs(WORKDIR + "/system/bin")
    for name, body in box["tools"].items():
        write_executable(f"{WORKDIR}/system/bin/{name}", f"#!/bin/sh\n{body}\n")
    for path, mode in box["dirs"]:
        os.makedirs(path)
        if mode is not None:
            os.chmod(path, mode)

    # The command runs through sandbox_command.py, which notes what it needs to be judged.
    os.environ.update(VEXIL_SANDBOX_TOOL=job["vexilctl"], VEXIL_SANDBOX_REPEAT=str(box["repeat"]),
                      VEXIL_SANDBOX_RUNS=RUNS)
    wrapper = BIN_DIR + "/vexilctl"
    write_executable(wrapper, f'#!/bin/sh\nexec "{sys.executable}" -S '
                              f'"{HERE}/sandbox_command.py" "$@"\n')
    job["vexilctl"] = wrapper

    extra = []
    if box["daemon"] == "none":
        # The emulator still serves and records the log, under a name pidof does not look for.
        shutil.copy(job["tarnmodem"], BIN_DIR + "/idlemodem")
        job["tarnmodem"] = BIN_DIR + "/idlemodem"
    elif box["daemon"] == "two":
        # A second process named tarnmodem beside the emulator.
        shutil.copy(shutil.which("sleep"), BIN_DIR + "/tarnmodem")
        extra.append(subprocess.Popen([BIN_DIR + "/tarnmodem", "600"]))
    return extra


def listing(top: str, relative: bool) -> dict:
    """Every entry below top: type, permission bits and, for files, the content."""
    entries = {}
    for dirpath, dirnames, filenames in os.walk(top):
        for name in dirnames + filenames:
            path = os.path.join(dirpath, name)
            st = os.lstat(path)
            entry = {"mode": stat.S_IMODE(st.st_mode)}
            if stat.S_ISDIR(st.st_mode):
                entry["type"] = "directory"
            elif stat.S_ISREG(st.st_mode):
                entry["type"] = "file"
                with open(path, "rb") as f:
                    entry["content"] = base64.b64encode(f.read()).decode("ascii")
            else:
                entry["type"] = "special file"
            entries[os.path.relpath(path, top) if relative else path] = entry
    return entries


def main() -> int:
    job = json.load(sys.stdin)
    for binary in ("tarnmodem", "vexilctl"):
        job[binary] = os.path.abspath(job[binary])  # the working directory changes
    os.umask(0)
    enter_private_root(sys.argv[1])
    extra = prepare(job["sandbox"], job)
    os.chdir(WORKDIR)
    try:
        out = execute.execute(job)
    finally:
        for proc in extra:
            proc.send_signal(signal.SIGTERM)
            proc.wait()
    runs = None
    if os.path.exists(RUNS):
        with open(RUNS, encoding="utf-8") as f:
            runs = json.load(f)
    out["sandbox"] = {"data": listing("/data", False), "workdir": listing(WORKDIR, True),
                      "runs": runs}
    json.dump(out, sys.stdout)
    return 0


if __name__ == "__main__":
    sys.exit(main())
