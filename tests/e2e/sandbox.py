"""Sandbox cases (README.md, "Sandbox cases"): parses their directives and judges what
sandbox_execute.py observed in the case's private root, working directory and process list."""

from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, Optional

import caseformat as cf

DIRECTIVES = ("sandbox", "tool", "dir", "daemon", "repeat", "file", "mode")
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
    daemon: str = "one"  # or "none" (pidof finds nothing) or "two" (a second tarnmodem)
    repeat: int = 1
    files: Dict[str, FileCheck] = field(default_factory=dict)


def parse_directive(case, key: str, value: str, golden_dir: Path, seed: str, where: str):
    """Adds one sandbox directive to the case."""
    box = case.sandbox = case.sandbox or Sandbox()
    first, _, rest = value.partition(" ")
    forms = {"sandbox": r"", "tool": r"[\w.-]+ .*\S.*", "dir": r"/data/\S+( 0?[0-7]{3})?",
             "daemon": r"one|none|two", "repeat": r"[1-9]\d*", "file": r"/data/\S+ .+",
             "mode": r"/data/\S+ 0?[0-7]{3}"}
    if not re.fullmatch(forms[key], value) or "/../" in first + "/":
        raise cf.CaseError(f"{where}: '{key}' takes {forms[key] or 'no value'}, got '{value}'")
    path = first.rstrip("/")
    if key == "tool":
        box.tools[first] = rest
    elif key == "dir":
        box.dirs[path] = int(rest, 8) if rest else None
    elif key == "daemon":
        box.daemon = value
    elif key == "repeat":
        box.repeat = int(value)
    elif key == "file":
        box.files.setdefault(path, FileCheck(path)).content = cf.parse_matcher(
            rest, golden_dir, seed, where)
    elif key == "mode":
        box.files.setdefault(path, FileCheck(path)).mode = int(rest, 8)


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
    return prefix + ["sh", "-c", _WITH_ROOT_MOUNT_POINT, "sandbox", "unshare", "--mount",
                     "--pid", "--fork", "--mount-proc", python, "-S",
                     str(Path(__file__).resolve().parent / "sandbox_execute.py")]


def fold_pid(output: bytes) -> int:
    """The pid the tool takes from pidof's first line: every byte up to NUL, LF or CR adds
    (byte - '0') to ten times the number so far, in 32-bit arithmetic. No output gives 0."""
    pid = 0
    for byte in re.match(rb"[^\0\n\r]*", output).group():
        pid = (pid * 10 + byte - 48) & 0xFFFFFFFF
    return pid - (1 << 32) if pid >= 1 << 31 else pid


def _find(path: str, entries: dict, stamps: list, problems: list) -> Optional[str]:
    """The observed path of a checked file; None (with the problem noted) when it is missing."""
    pattern = re.escape(path).replace(re.escape(STAMP), r"(\d{8}-\d{6})")
    found = [p for p in entries if re.fullmatch(pattern, p)]
    if len(found) != 1:
        problems.append(f"{len(found)} entries match {path}, expected one: {found}")
        return None
    if STAMP in path and re.fullmatch(pattern, found[0]).group(1) not in stamps:
        problems.append(f"{found[0]}: time stamp outside the command's run ({stamps})")
    return found[0]


def _with_ancestors(path: str) -> set:
    parts = path.split("/")
    return {"/".join(parts[:i]) for i in range(3, len(parts) + 1)}  # below /data itself


def judge(case, seen: dict, compare_stream) -> list:
    """Problems with the sandbox of a case; compare_stream(name, matcher, actual, problems) is
    the runner's comparison of expected and actual bytes."""
    box = case.sandbox
    if box is None:
        return []
    problems, expected = [], set()
    data, workdir, runs = seen["data"], seen["workdir"], seen["runs"]
    pid = str(fold_pid(runs["pidof"]))
    for path, mode in box.dirs.items():
        expected |= _with_ancestors(path)
        if path in data and mode not in (None, data[path]["mode"]):
            problems.append(f"{path}: mode {data[path]['mode']:o}, expected {mode:o}")
    for check in box.files.values():
        path = _find(check.path, data, runs["stamps"], problems)
        if path is None:
            continue
        expected |= _with_ancestors(path)
        entry = data[path]
        if check.mode not in (None, entry["mode"]):
            problems.append(f"{path}: mode {entry['mode']:o}, expected {check.mode:o}")
        if check.content is None:
            continue
        if "content" not in entry:
            problems.append(f"{path} is a {entry['type']}, expected a file")
            continue
        content = check.content
        content = cf.Matcher(regex=content.regex.replace(PID, pid)) if content.regex else \
            cf.Matcher(exact=content.exact.replace(PID.encode(), pid.encode()))
        compare_stream(path, content, entry["content"], problems)
    tools = {"system", "system/bin"} | {f"system/bin/{n}" for n in box.tools} if box.tools else set()
    problems += [f"unexpected {data[p]['type']} {p}" for p in sorted(set(data) - expected)]
    problems += [f"unexpected {workdir[p]['type']} {p} in the working directory"
                 for p in sorted(set(workdir) - tools)]
    return problems
