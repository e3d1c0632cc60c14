#!/usr/bin/env python3
"""Checks the files a vendor tree reads besides the sources (exit 1 when one fails):
  - TEST_MAPPING is JSON and names, as presubmit, test modules that Android.bp defines;
  - PREUPLOAD.cfg has the clang-format and bpfmt hooks.

The service's API dumps and their hashes are checked by the real aidl in
scripts/check_device_build.sh (step frozen_api)."""

import configparser
import json
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


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
    problems = []
    check_test_mapping(problems)
    check_preupload(problems)
    for problem in problems:
        print(f"check_vendor_tree: {problem}", file=sys.stderr)
    if not problems:
        print("check_vendor_tree: TEST_MAPPING and PREUPLOAD.cfg are in order")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
