#!/usr/bin/env python3
"""Checks what the link step made, as the device's loader will see it: each output is a 64-bit
Arm ELF file with the Android note of API level 33; the executables are PIE with the interpreter
/system/bin/linker64; and every symbol each one imports is defined by one of the libraries it
needs, as linked (a weak reference that no library defines links, and fails on the device).
Every module it expects must have been linked and checked: the tool, its unit tests, the
generated library and each cc_fuzz module of the project's Android.bp files. Writes the imports,
per output and library, to build/device/imports.txt."""

import json
import os
import re
import subprocess
import sys
from collections import defaultdict
from functools import cache
from pathlib import Path

ROOT, SCRATCH = Path(os.environ["ROOT"]), Path(os.environ["SCRATCH"])
TREE = SCRATCH / "tree"
PROJECT_OUT = "out/soong/.intermediates/vendor/kest/vexilctl/"
EXPECTED = ("vexilctl", "vexilctl_unit_tests", "vendor.kest.hardware.vexil_svc-V1-ndk")
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


def expected() -> list:
    """The modules to check: the fixed ones and every cc_fuzz of the project's Android.bp files
    (bpfmt puts a module's name first)."""
    fuzzers = []
    for top, dirs, files in os.walk(ROOT):
        dirs[:] = sorted(d for d in dirs if not (top == str(ROOT) and d in ("build", ".git")) and d != "node_modules")
        if "Android.bp" in files:
            text = Path(top, "Android.bp").read_text()
            fuzzers += re.findall(r'^cc_fuzz \{\s*name: "([^"]+)"', text, re.M)
    return list(EXPECTED) + fuzzers


@cache
def soname(path: Path) -> str:
    m = re.search(r"\(SONAME\)\s+Library soname: \[(\S+)\]", readelf(path, "-d"))
    return m.group(1) if m else path.name


def main() -> int:
    actions = json.loads((SCRATCH / "actions.json").read_text())["Actions"]
    failed, summary, report, checked = 0, [], [], set()
    for action in actions:
        if action["Rule"] != "ld" or not action["Outputs"][0].startswith(PROJECT_OUT):
            continue
        module, out = action["Module"], TREE / action["Outputs"][0]
        if not out.exists():
            print(f"check_linked: {module}: {action['Outputs'][0]} was not linked", file=sys.stderr)
            failed += 1
            continue
        libraries = {soname(TREE / f): dynamic_symbols(TREE / f)[1]
                     for f in action["Args"]["libFlags"].split() if f.endswith(".so")}
        before = len(report)
        errors = check(out, "-pie" in action["Args"]["ldFlags"].split(), libraries, report)
        variant = " (its fuzzers' variant)" if action["Variant"].endswith("_shared_fuzzer") else ""
        summary.append(f"{module}{variant}: " + report[before].split(": ", 1)[1])
        for error in errors:
            print(f"check_linked: {module}: {error}", file=sys.stderr)
        failed += bool(errors)
        checked.add(module)
    for module in expected():
        if module not in checked:
            print(f"check_linked: {module}: not linked and checked: Soong's analysis has no link of it"
                  " (build/device/actions.json; run the soong, clang_compile and link steps)",
                  file=sys.stderr)
            failed += 1
    (SCRATCH / "imports.txt").write_text("\n".join(report) + "\n")
    print("\n".join(f"check_linked: {line}" for line in summary))
    print(f"check_linked: {len(checked)} of the {len(expected())} modules expected, all checked"
          if not failed else f"check_linked: FAILED ({failed})")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
