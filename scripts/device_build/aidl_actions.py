#!/usr/bin/env python3
"""The aidl compiler's actions from Soong's analysis of service/aidl/Android.bp (the "Aidl" list
of build/device/actions.json), for the aidl_compile and frozen_api steps: what the check
generates and compares takes every flag from there, as the compile step takes the compiler's.

    aidl_actions.py ndk AIDL OUT   generates the NDK library the tool links as Soong's actions
                                   say, from a tree root where the project is vendor/kest/vexilctl
                                   (paths as Soong gives them), into OUT
    aidl_actions.py flags RULE     prints the flags Soong gives the interface's RULE
                                   (aidlDumpApiRule, aidlCheckApiRule)"""

import json
import os
import shutil
import subprocess
import sys
from pathlib import Path

ROOT, SCRATCH = Path(os.environ["ROOT"]), Path(os.environ["SCRATCH"])
INTERFACE = "vendor.kest.hardware.vexil_svc"
# Where Soong generates the NDK library the tool links (vendor.kest.hardware.vexil_svc-V1-ndk).
NDK_GEN = ("out/soong/.intermediates/vendor/kest/vexilctl/service/aidl/"
           f"{INTERFACE}-V1-ndk-source/gen")
# aidl_gen_rule.go's aidlCppRule.
CPP_RULE = ('mkdir -p "{headerDir}" && {aidl} --lang={lang} {optionalFlags} --structured --ninja '
            '-d {out}.d -h {headerDir} -o {outDir} {imports} {input}')


def actions(rule: str) -> list:
    found = [a for a in json.loads((SCRATCH / "actions.json").read_text()).get("Aidl") or []
             if a["Rule"] == rule]
    if not found:
        sys.exit(f"aidl_actions: Soong's analysis has no {rule} action for service/aidl/Android.bp")
    return found


def unescape(text: str) -> str:  # a ninja variable's value as the shell gets it
    return text.replace("$$", "$")


def ndk(aidl: str, out: Path) -> int:
    generation = [a for a in actions("aidlCppRule") if a["Args"]["outDir"] == NDK_GEN]
    if not generation:
        sys.exit(f"aidl_actions: Soong's analysis does not generate {NDK_GEN}")
    tree = SCRATCH / "aidl_gen"
    shutil.rmtree(tree, ignore_errors=True)
    (tree / "vendor/kest").mkdir(parents=True)
    (tree / "vendor/kest/vexilctl").symlink_to(ROOT)
    for action in generation:
        args = {k: unescape(v) for k, v in action["Args"].items()}
        command = CPP_RULE.format(aidl=aidl, out=action["Outputs"][0], input=action["Inputs"][0], **args)
        if subprocess.run(["sh", "-c", command], cwd=tree).returncode:
            print(f"aidl_actions: failed: {command}", file=sys.stderr)
            return 1
    shutil.rmtree(out, ignore_errors=True)
    shutil.copytree(tree / NDK_GEN, out, ignore=shutil.ignore_patterns("*.d"))
    return 0


def flags(rule: str) -> int:
    found = {a["Args"]["optionalFlags"] for a in actions(rule) if a["Module"].startswith(INTERFACE)}
    if len(found) != 1:
        sys.exit(f"aidl_actions: {rule}: expected one set of flags for {INTERFACE}, found {sorted(found)}")
    print(unescape(found.pop()))
    return 0


if __name__ == "__main__":
    if sys.argv[1] == "ndk":
        sys.exit(ndk(sys.argv[2], Path(sys.argv[3])))
    sys.exit(flags(sys.argv[2]))
