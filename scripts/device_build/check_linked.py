#!/usr/bin/env python3
"""Checks what the link step made, as the device's loader will see it: each output is a 64-bit
Arm ELF file with the Android note of API level 33; the executables are PIE with the interpreter
/system/bin/linker64; and every symbol each one imports is defined by one of the libraries it
needs, as linked (a weak reference that no library defines links, and fails on the device).
Writes the imports, per output and library, to build/device/imports.txt."""

import json
import os
import re
import subprocess
import sys
from collections import defaultdict
from functools import cache
from pathlib import Path

SCRATCH = Path(os.environ["SCRATCH"])
TREE = SCRATCH / "tree"
LINKED = ("vexilctl", "vexilctl_unit_tests", "vendor.kest.hardware.vexil_svc-V1-ndk")
API_LEVEL = 33
SYMBOL = re.compile(r"^\s*\d+: \S+\s+\d+ \w+\s+(\w+)\s+\w+\s+(\w+) (\S+)$")


def readelf(path: Path, *options: str) -> str:
    return subprocess.run(["llvm-readelf-14", "-W", *options, str(path)], check=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout


@cache
def dynamic_symbols(path: Path) -> tuple:
    """(imports, definitions): names, with @VERSION where the reference or definition has one."""
    imports, defined = set(), set()
    for line in readelf(path, "--dyn-syms").splitlines():
        m = SYMBOL.match(line)
        if m and m.group(1) != "LOCAL":
            (imports if m.group(2) == "UND" else defined).add(m.group(3).replace("@@", "@"))
    return imports, defined


def provider(symbol: str, libraries: dict) -> str:
    name = symbol.split("@")[0]
    for soname, defined in libraries.items():
        if symbol in defined or (symbol == name and any(d.split("@")[0] == name for d in defined)):
            return soname
    return ""


def check(path: Path, executable: bool, libraries: dict, report: list) -> list:
    errors = []
    header, segments, dynamic = readelf(path, "-h"), readelf(path, "-l"), readelf(path, "-d")
    if not re.search(r"Class:\s+ELF64", header) or not re.search(r"Machine:\s+AArch64", header):
        errors.append("not a 64-bit Arm ELF file")
    interpreter = re.search(r"Requesting program interpreter: (\S+)\]", segments)
    if executable and (not re.search(r"Type:\s+DYN", header) or not re.search(r"FLAGS_1.*\bPIE\b", dynamic)):
        errors.append("not a position-independent executable")
    if executable and (not interpreter or interpreter.group(1) != "/system/bin/linker64"):
        errors.append(f"interpreter {interpreter.group(1) if interpreter else 'none'}, not /system/bin/linker64")
    note = re.search(r"Android\s+0x00000004\s+NT_VERSION.*\n\s+description data: (.. .. .. ..)", readelf(path, "-n"))
    level = int.from_bytes(bytes.fromhex(note.group(1).replace(" ", "")), "little") if note else None
    if level != API_LEVEL:
        errors.append(f"Android note of API level {level}, not {API_LEVEL}")
    needed = re.findall(r"\(NEEDED\)\s+Shared library: \[(\S+)\]", dynamic)
    imports, _ = dynamic_symbols(path)
    by_library = defaultdict(list)
    for symbol in sorted(imports):
        by_library[provider(symbol, {n: libraries[n] for n in needed if n in libraries})].append(symbol)
    for symbol in by_library.pop("", []):
        errors.append(f"imports {symbol}, which none of {', '.join(needed)} defines")
    report.append(f"{path.name}: " + ", ".join(f"{len(by_library[n])} from {n}" for n in needed))
    report += [f"  {n}: {' '.join(by_library[n])}" for n in needed]
    return errors


def main() -> int:
    actions = json.loads((SCRATCH / "actions.json").read_text())["Actions"]
    failed, summary, report = 0, [], []
    for action in actions:
        if action["Rule"] != "ld" or action["Module"] not in LINKED:
            continue
        libraries = {Path(f).name: dynamic_symbols(TREE / f)[1]
                     for f in action["Args"]["libFlags"].split() if f.endswith(".so")}
        before = len(report)
        errors = check(TREE / action["Outputs"][0], "-pie" in action["Args"]["ldFlags"].split(),
                       libraries, report)
        summary.append(report[before])
        for error in errors:
            print(f"check_linked: {action['Module']}: {error}", file=sys.stderr)
        failed += bool(errors)
    (SCRATCH / "imports.txt").write_text("\n".join(report) + "\n")
    print("\n".join(f"check_linked: {line}" for line in summary))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
