"""Sandbox cases (README.md): their directives, their run inside bwrap (run_cases.py starts this
file there as it starts execute.py) and the judging of what they left under /data and in the
working directory. `sandbox.py --command RUNS REPEAT ARGS...` stands in for vexilctl: it runs ARGS
REPEAT times within one second and writes to RUNS the pid pidof printed and those seconds.
"""

from __future__ import annotations

import math
import os
import pickle
import re
import shutil
import stat
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, Optional

import caseformat as cf

DIRECTIVES = ("sandbox", "tool", "dir", "daemon", "repeat", "file", "mode")
STAMP = "{stamp}"  # in a path: the YYYYMMDD-HHMMSS of a second while the command ran
PID = "{pid}"  # in file contents: the pid pidof printed (0 when it printed nothing)
WORKDIR = "/case"


@dataclass
class Sandbox:
    tools: Dict[str, str] = field(default_factory=dict)  # name in system/bin/ to script body
    dirs: Dict[str, Optional[int]] = field(default_factory=dict)  # made before, with mode
    daemon: str = "one"  # or "none" (pidof finds nothing) or "two" (a second tarnmodem)
    repeat: int = 1
    files: Dict[str, list] = field(default_factory=dict)  # path to [content matcher, mode]


def parse_directive(case, key: str, value: str, goldens, seed: str):
    """Adds one sandbox directive to the case."""
    box = case.sandbox = case.sandbox or Sandbox()
    forms = {"sandbox": r"", "tool": r"[\w.-]+ .*\S.*", "dir": r"/data/\S+( 0?[0-7]{3})?",
             "daemon": r"one|none|two", "repeat": r"[1-9]\d*", "file": r"/data/\S+ .+",
             "mode": r"/data/\S+ 0?[0-7]{3}"}
    if not re.fullmatch(forms[key], value):
        raise ValueError(f"'{key}' takes {forms[key] or 'no value'}, got '{value}'")
    first, _, rest = value.partition(" ")
    if key == "tool":
        box.tools[first] = rest
    elif key == "dir":
        box.dirs[first] = int(rest, 8) if rest else None
    elif key in ("daemon", "repeat"):
        setattr(box, key, value if key == "daemon" else int(value))
    elif key == "file":
        box.files.setdefault(first, [None, None])[0] = cf.parse_matcher(rest, goldens, seed)
    elif key == "mode":
        box.files.setdefault(first, [None, None])[1] = int(rest, 8)


def command(prefix: list, python: str) -> list:
    """The command that runs a sandbox case: bwrap over the real root, but with an empty /data,
    an empty working directory, and a /proc of the case's own pid namespace."""
    # Each top-level entry on its own rather than `--bind / /`, so that the mount points of /data
    # and of the working directory are made in bwrap's root and never on the host.
    binds = [arg for name in sorted(os.listdir("/"))
             if name not in ("data", "dev", "proc", WORKDIR[1:])
             for arg in ("--bind", "/" + name, "/" + name)]
    return prefix + ["bwrap", *binds, "--tmpfs", "/data", "--dir", WORKDIR, "--chdir", WORKDIR,
                     "--dev", "/dev", "--unshare-pid", "--proc", "/proc", "--die-with-parent",
                     python, "-S", os.path.abspath(__file__)]


def listing(top: str) -> dict:
    """Every entry below top: its permission bits and, for a file, its content (else None)."""
    entries = {}
    for dirpath, dirnames, filenames in os.walk(top):
        for path in (os.path.join(dirpath, name) for name in dirnames + filenames):
            mode = os.lstat(path).st_mode
            entries[os.path.relpath(path, WORKDIR) if top == WORKDIR else path] = (
                stat.S_IMODE(mode), Path(path).read_bytes() if stat.S_ISREG(mode) else None)
    return entries


def run(job: dict) -> dict:
    """Inside bwrap: sets up the case's tools, directories and daemons, runs it through
    execute.py with the stand-in for vexilctl, and adds what is left under /data and here."""
    import execute
    box = job["case"].sandbox
    os.umask(0)  # the modes the tool asks for show unchanged
    for name, body in box.tools.items():
        os.makedirs("system/bin", exist_ok=True)
        with open(f"system/bin/{name}", "w", encoding="utf-8") as f:
            f.write(f"#!/bin/sh\n{body}\n")
        os.chmod(f"system/bin/{name}", 0o755)
    for path, mode in box.dirs.items():
        os.makedirs(path, mode if mode is not None else 0o777)
    with tempfile.TemporaryDirectory(prefix="vexil-sandbox-") as tmp:
        job["wrap"] = [sys.executable, "-S", __file__, "--command", tmp + "/runs",
                       str(box.repeat)] + job["wrap"]
        if box.daemon == "none":  # it still serves, under a name pidof does not look for
            job["tarnmodem"] = shutil.copy(job["tarnmodem"], tmp + "/idlemodem")
        other = None
        if box.daemon == "two":  # a second process of that name
            sleep = shutil.copy(shutil.which("sleep"), tmp + "/tarnmodem")
            other = subprocess.Popen([sleep, "600"])
        try:
            out = execute.execute(job)
        finally:
            if other:
                other.kill()
                other.wait()
        pid, stamps = "", []
        if os.path.exists(tmp + "/runs"):
            with open(tmp + "/runs", encoding="utf-8") as f:
                pid, *stamps = f.read().split("\n")
    return dict(out, data=listing("/data"), workdir=listing(WORKDIR), pid=pid, stamps=stamps)


def stand_in(runs: str, repeat: int, argv: list) -> int:
    if repeat > 1:
        now = time.time()
        time.sleep(math.floor(now) + 1.01 - now)
    pidof = subprocess.run(["pidof", "tarnmodem"], capture_output=True, text=True).stdout
    start = time.time()
    for _ in range(repeat):
        status = subprocess.run(argv, stdin=subprocess.DEVNULL).returncode
    seconds = range(math.floor(start), math.floor(time.time()) + 1)
    with open(runs, "w", encoding="utf-8") as f:
        f.write("\n".join([pidof.strip() or "0"] + [
            time.strftime("%Y%m%d-%H%M%S", time.localtime(s)) for s in seconds]))
    return status if status >= 0 else 128 - status


def crossed_a_second(case, seen: dict) -> bool:
    """Whether the runs of a case that repeats its command fell into more than one second."""
    return case.sandbox is not None and case.sandbox.repeat > 1 and len(seen.get("stamps", [])) > 1


def judge(case, seen: dict, compare_stream) -> list:
    """Problems with the sandbox of a case; compare_stream(name, matcher, actual, problems) is
    the runner's comparison of expected and actual bytes."""
    box, problems = case.sandbox, []
    if box is None:
        return []
    data, expected = seen["data"], set()

    def with_parents(path):  # below /data itself
        parts = path.split("/")
        return {"/".join(parts[:i]) for i in range(3, len(parts) + 1)}
    checks = [(path, (None, mode)) for path, mode in box.dirs.items()]
    for pattern, (content, mode) in list(box.files.items()) + checks:
        regex = re.escape(pattern).replace(re.escape(STAMP), r"(\d{8}-\d{6})")
        found = [p for p in data if re.fullmatch(regex, p)]
        if len(found) != 1:
            problems.append(f"{len(found)} entries match {pattern}, expected one: {found}")
            continue
        path, (actual_mode, actual) = found[0], data[found[0]]
        expected |= with_parents(path)
        if STAMP in pattern and re.fullmatch(regex, path).group(1) not in seen["stamps"]:
            problems.append(f"{path}: time stamp outside the command's run ({seen['stamps']})")
        if mode not in (None, actual_mode):
            problems.append(f"{path}: mode {actual_mode:o}, expected {mode:o}")
        if content is not None:
            compare_stream(path, cf.Matcher(regex=content.regex.replace(PID, seen["pid"]))
                           if content.regex else cf.Matcher(exact=content.exact.replace(
                               PID.encode(), seen["pid"].encode())), actual or b"", problems)
    tools = {"system", "system/bin", *("system/bin/" + n for n in box.tools)}
    tools = tools if box.tools else set()
    problems += [f"unexpected {p}" for p in sorted(set(data) - expected)]
    problems += [f"unexpected {p} in the working directory"
                 for p in sorted(set(seen["workdir"]) - tools)]
    return problems


if __name__ == "__main__":
    if sys.argv[1:2] == ["--command"]:
        sys.exit(stand_in(sys.argv[2], int(sys.argv[3]), sys.argv[4:]))
    pickle.dump(run(pickle.load(sys.stdin.buffer)), sys.stdout.buffer)
