"""Runs one sandbox case (sandbox.py) and reports what happened, as execute.py does.

Started by run_cases.py as `unshare -n unshare --mount --pid --fork --mount-proc python3
sandbox_execute.py ROOT` with the job pickled on standard input, so this process is the first of a
fresh pid namespace; ROOT is an empty directory in /tmp to mount the private root on. It builds a
private root (bind mounts of the real one, an empty tmpfs on /data), prepares the working
directory, daemon and pre-made directories, runs the case through execute.py and adds a listing of
/data and of the working directory. The umask is 0 so that the modes the tool asks for show
unchanged.

Started as `sandbox_execute.py --command TOOL REPEAT ARGS...` it stands in for vexilctl: it runs
TOOL ARGS REPEAT times in a row (more than one start just after a second begins, so they all fall
within it) and notes in RUNS what pidof printed just before and the time stamps of every second
the runs spanned. Standard streams pass through; the exit status is that of the last run.
"""

import math
import os
import pickle
import shutil
import signal
import stat
import subprocess
import sys
import time

import execute

WORKDIR = "/case/cwd"
BIN_DIR = "/case/bin"
RUNS = "/case/runs.pickle"


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


def write_executable(path: str, text: str):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)
    os.chmod(path, 0o755)


def prepare(box, job: dict) -> list:
    """Sets up the case's files and daemons; returns the extra processes to stop afterwards."""
    os.makedirs(WORKDIR)
    for name, body in box.tools.items():
        write_executable(f"{WORKDIR}/system/bin/{name}", f"#!/bin/sh\n{body}\n")
    for path, mode in box.dirs.items():
        os.makedirs(path)
        if mode is not None:
            os.chmod(path, mode)
    write_executable(BIN_DIR + "/vexilctl", f'#!/bin/sh\nexec "{sys.executable}" -S "{__file__}" '
                     f'--command "{job["vexilctl"]}" {box.repeat} "$@"\n')
    job["vexilctl"] = BIN_DIR + "/vexilctl"
    if box.daemon == "none":
        # The emulator still serves and records the log, under a name pidof does not look for.
        job["tarnmodem"] = shutil.copy(job["tarnmodem"], BIN_DIR + "/idlemodem")
    if box.daemon == "two":
        # A second process named tarnmodem beside the emulator.
        return [subprocess.Popen([shutil.copy(shutil.which("sleep"), BIN_DIR + "/tarnmodem"),
                                  "600"])]
    return []


def listing(top: str, relative: bool) -> dict:
    """Every entry below top: type, permission bits and, for files, the content."""
    entries = {}
    for dirpath, dirnames, filenames in os.walk(top):
        for name in dirnames + filenames:
            path = os.path.join(dirpath, name)
            st = os.lstat(path)
            entry = {"mode": stat.S_IMODE(st.st_mode), "type": "directory" if stat.S_ISDIR(
                st.st_mode) else "file" if stat.S_ISREG(st.st_mode) else "special file"}
            if entry["type"] == "file":
                with open(path, "rb") as f:
                    entry["content"] = f.read()
            entries[os.path.relpath(path, top) if relative else path] = entry
    return entries


def command(tool: str, repeat: int, args: list) -> int:
    if repeat > 1:
        now = time.time()
        time.sleep(math.floor(now) + 1.01 - now)
    pidof = subprocess.run(["pidof", "tarnmodem"], capture_output=True).stdout
    start = time.time()
    for _ in range(repeat):
        status = subprocess.run([tool] + args, stdin=subprocess.DEVNULL).returncode
    seconds = range(math.floor(start), math.floor(time.time()) + 1)
    with open(RUNS, "wb") as f:
        pickle.dump({"pidof": pidof, "stamps": [
            time.strftime("%Y%m%d-%H%M%S", time.localtime(s)) for s in seconds]}, f)
    return status if status >= 0 else 128 - status


def main() -> int:
    if sys.argv[1] == "--command":
        return command(sys.argv[2], int(sys.argv[3]), sys.argv[4:])
    job = pickle.load(sys.stdin.buffer)
    for binary in ("tarnmodem", "vexilctl"):
        job[binary] = os.path.abspath(job[binary])  # the working directory changes
    os.umask(0)
    enter_private_root(sys.argv[1])
    extra = prepare(job["case"].sandbox, job)
    os.chdir(WORKDIR)
    try:
        out = execute.execute(job)
    finally:
        for proc in extra:
            proc.send_signal(signal.SIGTERM)
            proc.wait()
    runs = {"pidof": b"", "stamps": []}
    if os.path.exists(RUNS):
        with open(RUNS, "rb") as f:
            runs = pickle.load(f)
    out.update(data=listing("/data", False), workdir=listing(WORKDIR, True), runs=runs)
    pickle.dump(out, sys.stdout.buffer)
    return 0


if __name__ == "__main__":
    sys.exit(main())
