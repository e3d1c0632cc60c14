"""Sandbox cases: a private file system view and process list for one case (see README.md).

A case with any of DIRECTIVES runs, on top of its network namespace, in its own mount and pid
namespaces (sandbox_execute.py): a private root whose /data is an empty tmpfs, a working directory
of its own that may hold stand-in tools in system/bin/, and a /proc that shows only the case's
processes, so `pidof tarnmodem` finds the case's daemon and nothing else. Afterwards the runner
checks the files the case names and that nothing else appeared under /data or in the working
directory.

This module parses the directives and judges what sandbox_execute.py observed.
"""

from __future__ import annotations

import base64
import re
from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, List, Optional

import caseformat as cf

HERE = Path(__file__).resolve().parent
EXECUTOR = HERE / "sandbox_execute.py"
NAMESPACES = ["unshare", "--mount", "--pid", "--fork", "--mount-proc"]

DIRECTIVES = ("sandbox", "tool", "dir", "daemon", "repeat", "file", "mode")
DAEMONS = ("one", "none", "two")

STAMP = "{stamp}"  # in a path: the YYYYMMDD-HHMMSS of a second while the command ran
PID = "{pid}"  # in file contents: the pid folded from what pidof printed for the command


@dataclass
class FileCheck:
    path: str
    content: Optional[cf.Matcher] = None
    mode: Optional[int] = None


@dataclass
class Sandbox:
    tools: Dict[str, str] = field(default_factory=dict)  # name in system/bin/ to script body
    dirs: Dict[str, Optional[int]] = field(default_factory=dict)  # made before, with mode
    daemon: str = "one"
    repeat: int = 1
    files: Dict[str, FileCheck] = field(default_factory=dict)


def parse_directive(case, key: str, value: str, golden_dir: Path, seed: str, where: str):
    """Adds one sandbox directive to the case."""
    if case.sandbox is None:
        case.sandbox = Sandbox()
    box = case.sandbox
    if key == "sandbox":
        if value:
            raise cf.CaseError(f"{where}: 'sandbox' takes no value")
    elif key == "tool":
        name, _, body = value.partition(" ")
        if not re.fullmatch(r"[\w.-]+", name) or not body.strip():
            raise cf.CaseError(f"{where}: 'tool NAME SHELL-COMMAND' expected")
        box.tools[name] = body
    elif key == "dir":
        path, _, mode = value.partition(" ")
        box.dirs[_absolute(path, where)] = _mode(mode, where) if mode.strip() else None
    elif key == "daemon":
        if value not in DAEMONS:
            raise cf.CaseError(f"{where}: 'daemon' takes one of {', '.join(DAEMONS)}")
        box.daemon = value
    elif key == "repeat":
        if not re.fullmatch(r"[1-9]\d*", value):
            raise cf.CaseError(f"{where}: 'repeat' takes a count of at least 1")
        box.repeat = int(value)
    elif key == "file":
        path, _, match = value.partition(" ")
        check = box.files.setdefault(_absolute(path, where), FileCheck(path))
        check.content = cf.parse_matcher(match, golden_dir, seed, where)
    elif key == "mode":
        path, _, mode = value.partition(" ")
        box.files.setdefault(_absolute(path, where), FileCheck(path)).mode = _mode(mode, where)


def _absolute(path: str, where: str) -> str:
    if not path.startswith("/data/") or "/../" in path + "/":
        raise cf.CaseError(f"{where}: a path under /data/ expected, got '{path}'")
    return path.rstrip("/")


def _mode(text: str, where: str) -> int:
    if not re.fullmatch(r"0?[0-7]{3}", text.strip()):
        raise cf.CaseError(f"{where}: octal mode expected, got '{text.strip()}'")
    return int(text, 8)


def spec_of(case) -> Optional[dict]:
    box = case.sandbox
    if box is None:
        return None
    return {"tools": box.tools, "dirs": [[p, m] for p, m in box.dirs.items()],
            "daemon": box.daemon, "repeat": box.repeat}


# Outside the new mount namespace: makes the mount point of the case's root, which cannot be
# removed from inside while that namespace lives, and removes it afterwards.
_WITH_ROOT_MOUNT_POINT = """
root=$(mktemp -d /tmp/vexil-root-XXXXXX) || exit 1
"$@" "$root"
status=$?
rmdir "$root"
exit $status
"""


def command(prefix: list, python: str) -> list:
    """The executor's command line for a sandbox case."""
    return prefix + ["sh", "-c", _WITH_ROOT_MOUNT_POINT, "sandbox"] + NAMESPACES + [
        python, "-S", str(EXECUTOR)]


def fold_pid(output: bytes) -> int:
    """The pid the tool takes from pidof's first line: every byte up to NUL, LF or CR adds
    (byte - '0') to ten times the number so far, in 32-bit arithmetic. No output gives 0."""
    pid = 0
    for byte in output:
        if byte in (0, 10, 13):
            break
        pid = (pid * 10 + byte - 48) & 0xFFFFFFFF
    return pid - (1 << 32) if pid >= 1 << 31 else pid


def _with_pid(matcher: cf.Matcher, pid: int) -> cf.Matcher:
    if matcher.regex is not None:
        return cf.Matcher(regex=matcher.regex.replace(PID, str(pid)))
    return cf.Matcher(exact=matcher.exact.replace(PID.encode(), str(pid).encode()))


def _find(check: FileCheck, entries: dict, stamps: List[str], problems: list) -> Optional[str]:
    """The observed path of a checked file; None (with the problem noted) when it is missing."""
    if STAMP not in check.path:
        if check.path not in entries:
            problems.append(f"no {check.path}")
            return None
        return check.path
    pattern = re.escape(check.path).replace(re.escape(STAMP), r"(\d{8}-\d{6})")
    found = [p for p in entries if re.fullmatch(pattern, p)]
    if len(found) != 1:
        problems.append(f"{len(found)} entries match {check.path}, expected one: {found}")
        return None
    stamp = re.fullmatch(pattern, found[0]).group(1)
    if stamp not in stamps:
        problems.append(f"{found[0]}: time stamp outside the command's run ({stamps})")
    return found[0]


def _ancestors(path: str) -> List[str]:
    parts = path.split("/")
    return ["/".join(parts[:i]) for i in range(3, len(parts))]  # below /data itself


def _strays(entries: dict, expected: set) -> List[str]:
    return sorted(p for p in entries if p not in expected)


def judge(case, seen: dict, compare_stream) -> list:
    """Problems with the sandbox of a case; compare_stream(name, matcher, actual, problems) is
    the runner's comparison of expected and actual bytes."""
    box = case.sandbox
    if box is None:
        return []
    observed = seen.get("sandbox")
    if observed is None:
        return ["the sandbox was not observed"]
    problems = []
    data, workdir, runs = observed["data"], observed["workdir"], observed["runs"]
    pid = fold_pid(base64.b64decode(runs["pidof"])) if runs else 0
    stamps = runs["stamps"] if runs else []

    expected = set()
    for path, mode in box.dirs.items():
        expected.update(_ancestors(path) + [path])
        if path in data and mode is not None and data[path]["mode"] != mode:
            problems.append(f"{path}: mode {data[path]['mode']:o}, expected {mode:o}")
    for check in box.files.values():
        path = _find(check, data, stamps, problems)
        if path is None:
            continue
        expected.update(_ancestors(path) + [path])
        entry = data[path]
        if check.mode is not None and entry["mode"] != check.mode:
            problems.append(f"{path}: mode {entry['mode']:o}, expected {check.mode:o}")
        if check.content is not None:
            if entry["type"] != "file":
                problems.append(f"{path} is a {entry['type']}, expected a file")
            else:
                compare_stream(path, _with_pid(check.content, pid),
                               base64.b64decode(entry["content"]), problems)
    for path in _strays(data, expected):
        problems.append(f"unexpected {data[path]['type']} {path}")

    tools = {"system", "system/bin"} if box.tools else set()
    tools.update(f"system/bin/{name}" for name in box.tools)
    for path in _strays(workdir, tools):
        problems.append(f"unexpected {workdir[path]['type']} {path} in the working directory")
    return problems
