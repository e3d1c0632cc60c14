#!/usr/bin/env python3
"""Checks the files a vendor tree reads besides the sources, and keeps the AIDL API dumps.

Checks (exit 1 when one fails):
  - service/aidl/aidl_api/<package>/current and the newest frozen version hold one dump per
    .aidl source, each declaring the same API as its source (comments, the dump header, imports
    and layout aside; type names are compared fully qualified, as the dumps write them), and
    service/aidl/Android.bp declares the frozen versions;
  - TEST_MAPPING is JSON and names, as presubmit, test modules that Android.bp defines;
  - PREUPLOAD.cfg has the clang-format and bpfmt hooks.

  --update-api      rewrites current/ from the sources (what `m <package>-update-api` does)

The hashes of frozen versions are checked with the tree's own rule by
scripts/check_device_build.sh.
"""

import argparse
import configparser
import json
import re
import shutil
import sys
from pathlib import Path

PACKAGE = "vendor.kest.hardware.vexil_svc"


def set_root(root: Path):
    global ROOT, AIDL_ROOT, API_DIR
    ROOT = root.resolve()
    AIDL_ROOT = ROOT / "service" / "aidl"
    API_DIR = AIDL_ROOT / "aidl_api" / PACKAGE


set_root(Path(__file__).resolve().parent.parent)

DUMP_HEADER = """\
///////////////////////////////////////////////////////////////////////////////
// THIS FILE IS IMMUTABLE. DO NOT EDIT IN ANY CASE.                          //
///////////////////////////////////////////////////////////////////////////////

// This file is a snapshot of an AIDL file. Do not edit it manually. There are
// two cases:
// 1). this is a frozen version file - do not edit this in any case.
// 2). this is a 'current' file. If you make a backwards compatible change to
//     the interface (from the latest frozen version), the build system will
//     prompt you to update this file with `m <name>-update-api`.
//
// You must not make a backward incompatible change to any AIDL file built
// with the aidl_interface module type with versions property set. The module
// type is used to build AIDL files in a way that they can be used across
// independently updatable components of the system. If a device is shipped
// with such a backward incompatible change, it has a high risk of breaking
// later when a module using the interface is updated, e.g., Mainline modules.

"""

TOKEN = re.compile(r'\s*(?:(//[^\n]*|/\*.*?\*/)|("(?:[^"\\]|\\.)*")|([A-Za-z_][\w.]*)|(\S))', re.S)
DECLARATION_KEYWORDS = {"parcelable", "interface", "enum"}


def tokens(text: str) -> list:
    """The tokens of an AIDL text without its comments."""
    out, pos = [], 0
    text = text.rstrip()
    while pos < len(text):
        m = TOKEN.match(text, pos)
        if not m:
            raise ValueError(f"cannot read AIDL at offset {pos}")
        pos = m.end()
        if m.group(1) is None:
            out.append(m.group(0).strip())
    return out


def join(words: list) -> str:
    """Writes tokens as the dump does: blanks between words, none inside ( ) [ ] or before , ;"""
    text = ""
    for word in words:
        if text and word not in ",;)[]" and text[-1] not in "([" and word != "(":
            text += " "
        text += word
    return text


def canonical(text: str, package_types: set) -> str:
    """The API a file declares, written as an AOSP API dump writes it (without its header)."""
    words = tokens(text)
    lines, i = [], 0
    # package and imports
    while i < len(words) and words[i] in ("package", "import"):
        end = words.index(";", i)
        if words[i] == "package":
            lines.append(join(words[i:end + 1]))
        i = end + 1
    # annotations, sorted as the dump writes them
    annotations = []
    while words[i] == "@":
        end = i + 2
        if end < len(words) and words[end] == "(":
            end = words.index(")", end) + 1
        annotations.append("".join(words[i:end]))
        i = end
    lines.append(" ".join(sorted(annotations)))
    kind, name = words[i], words[i + 1]
    if kind not in DECLARATION_KEYWORDS or words[i + 2] != "{" or words[-1] != "}":
        raise ValueError(f"expected one parcelable, interface or enum, found {kind} {name}")
    lines.append(f"{kind} {name} {{")
    body = [qualify(w, package_types) for w in words[i + 3:-1]]
    separator = "," if kind == "enum" else ";"
    member = []
    for word in body:
        member.append(word)
        if word == separator:
            lines.append("  " + join(member))
            member = []
    if member:
        lines.append("  " + join(member) + ("," if kind == "enum" else ""))
    lines.append("}")
    return "\n".join(lines) + "\n"


def qualify(word: str, package_types: set) -> str:
    return f"{PACKAGE}.{word}" if word in package_types else word


def relative_aidl_files(directory: Path) -> list:
    return sorted(p.relative_to(directory) for p in directory.rglob("*.aidl"))


def sources() -> dict:
    files = [p for p in relative_aidl_files(AIDL_ROOT) if p.parts[0] != "aidl_api"]
    types = {p.stem for p in files}
    return {p: canonical((AIDL_ROOT / p).read_text(), types) for p in files}


def write_dump(directory: Path, api: dict):
    if directory.exists():
        shutil.rmtree(directory)
    for rel, text in api.items():
        (directory / rel).parent.mkdir(parents=True, exist_ok=True)
        (directory / rel).write_text(DUMP_HEADER + text)


def check_dump(directory: Path, api: dict, problems: list):
    if not directory.is_dir():
        problems.append(f"{directory.relative_to(ROOT)}: missing")
        return
    dumped = set(relative_aidl_files(directory))
    for rel in sorted(set(api) - dumped):
        problems.append(f"{directory.relative_to(ROOT)}: no dump of {rel}")
    for rel in sorted(dumped - set(api)):
        problems.append(f"{directory.relative_to(ROOT)}/{rel}: no such source")
    types = {p.stem for p in api}
    for rel in sorted(dumped & set(api)):
        try:
            dumped_api = canonical((directory / rel).read_text(), types)
        except (ValueError, IndexError) as e:
            problems.append(f"{directory.relative_to(ROOT)}/{rel}: unreadable: {e}")
            continue
        if dumped_api != api[rel]:
            problems.append(f"{directory.relative_to(ROOT)}/{rel} differs from its source:\n"
                            f"--- dump\n{dumped_api}--- source\n{api[rel]}")


def frozen_versions() -> list:
    return sorted((d.name for d in API_DIR.iterdir() if d.is_dir() and d.name.isdigit()), key=int)


def check_api(problems: list):
    """current/ is the sources' API; the newest frozen version is current/ (the tool links that
    version's library, so an unfrozen change is drift)."""
    api = sources()
    check_dump(API_DIR / "current", api, problems)
    versions = frozen_versions()
    if not versions:
        problems.append(f"{API_DIR.relative_to(ROOT)}: no frozen version")
    else:
        check_dump(API_DIR / versions[-1], api, problems)
    blueprint = (AIDL_ROOT / "Android.bp").read_text()
    declared = re.findall(r'version:\s*"(\d+)"', blueprint)
    if declared != versions:
        problems.append(f"service/aidl/Android.bp declares versions {declared}, "
                        f"aidl_api holds {versions}")


def check_test_mapping(problems: list):
    try:
        mapping = json.loads((ROOT / "TEST_MAPPING").read_text())
    except (OSError, ValueError) as e:
        problems.append(f"TEST_MAPPING: {e}")
        return
    names = [t.get("name") for t in mapping.get("presubmit", [])]
    if "vexilctl_unit_tests" not in names:
        problems.append("TEST_MAPPING: vexilctl_unit_tests is not a presubmit test")
    modules = set(re.findall(r'^\s*name:\s*"([^"]+)"', (ROOT / "Android.bp").read_text(), re.M))
    for group in mapping.values():
        for test in group:
            if test.get("name") not in modules:
                problems.append(f"TEST_MAPPING: {test.get('name')} is no module of Android.bp")


def check_preupload(problems: list):
    config = configparser.ConfigParser(interpolation=None)
    try:
        config.read_string((ROOT / "PREUPLOAD.cfg").read_text())
    except (OSError, configparser.Error) as e:
        problems.append(f"PREUPLOAD.cfg: {e}")
        return
    hooks = config["Builtin Hooks"] if config.has_section("Builtin Hooks") else {}
    for hook in ("clang_format", "bpfmt"):
        if hooks.get(hook) != "true":
            problems.append(f"PREUPLOAD.cfg: builtin hook {hook} is not on")


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--update-api", action="store_true")
    parser.add_argument("--root", type=Path, help="the source tree (default: this script's)")
    args = parser.parse_args()
    if args.root:
        set_root(args.root)
    if args.update_api:
        write_dump(API_DIR / "current", sources())
    problems = []
    check_api(problems)
    check_test_mapping(problems)
    check_preupload(problems)
    for problem in problems:
        print(f"check_vendor_tree: {problem}", file=sys.stderr)
    if not problems:
        print(f"check_vendor_tree: API dumps (current, {', '.join(frozen_versions())}) match "
              f"the sources; TEST_MAPPING and PREUPLOAD.cfg are in order")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
