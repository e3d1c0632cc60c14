#!/usr/bin/env python3
"""Compiles every C++ module of the vendor tree as the device build would, without linking: each
module's sources and own flags as Soong's analysis gave them (build/device/modules.json), Soong's
global device flags read from the tree's build/soong/cc/config/global.go, against the tree's
binder NDK and system/core headers and the aidl compiler's NDK backend (build/device/ndk), never
against platform/host/. Writes build/device/clang/build.ninja and runs ninja (a rerun compiles
only what changed).

Off the device: clang++-14 for the host with libc++ (as Android uses), glibc for bionic, liblog's
header from Debian."""

import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT, AOSP, SCRATCH = (Path(os.environ[k]) for k in ("ROOT", "AOSP_SRC", "SCRATCH"))
GLOBAL_LISTS = ("commonGlobalCflags", "deviceGlobalCflags", "noOverrideGlobalCflags",
                "commonGlobalCppflags", "deviceGlobalCppflags")
# Flags that only make sense with Android's own sysroot, or only add debug information.
OFF_DEVICE = {"-nostdlibinc", "-g", "-fdebug-default-version=5", "-fdebug-info-for-profiling",
              "-fcolor-diagnostics", "-DGTEST_OS_LINUX_ANDROID"}
INCLUDES = ["frameworks/native/libs/binder/ndk/include_ndk",
            "frameworks/native/libs/binder/ndk/include_cpp",
            "frameworks/native/libs/binder/ndk/include_platform",
            "system/core/libcutils/include", "system/core/libutils/include",
            "system/core/libsystem/include"]


def global_flags() -> list:
    text = (AOSP / "build/soong/cc/config/global.go").read_text()
    flags = []
    for name in GLOBAL_LISTS:
        block = re.search(name + r"\s*=\s*\[\]string\{(.*?)\n\t\}", text, re.S)
        if not block:
            sys.exit(f"clang_compile: no {name} in global.go")
        body = re.sub(r"//[^\n]*", "", block.group(1))
        flags += [f for f in re.findall(r'"([^"]*)"', body) if f not in OFF_DEVICE]
    return flags


def own_flags(flags: list) -> list:
    out, skip = [], False
    for flag in flags:
        if skip or flag == "-target":  # the device's target triple: compiled for the host here
            skip = not skip
            continue
        out += [f for f in shlex.split(flag) if f not in OFF_DEVICE]
    return out


def main() -> int:
    modules = json.loads((SCRATCH / "modules.json").read_text())
    ndk = SCRATCH / "ndk"
    base = (["-stdlib=libc++", "-include", "assert.h"] + global_flags() +
            [f"-I{ROOT}", f"-I{ndk / 'include'}"] + [f"-I{AOSP / d}" for d in INCLUDES] +
            ["-idirafter", "/usr/include/android"])
    out = SCRATCH / "clang"
    lines = ["rule cxx",
             "  command = clang++-14 -MD -MF $out.d $flags -c $in -o $out",
             "  depfile = $out.d", "  deps = gcc", "  description = $module: $in", ""]
    jobs = [("vendor.kest.hardware.vexil_svc-V1-ndk", str(p), ["-Wall", "-Wextra", "-Werror",
             "-std=gnu++17", "-fno-rtti", "-D__ANDROID_VNDK__", "-D__ANDROID_VENDOR__"])
            for p in sorted(ndk.rglob("*.cpp"))]
    # A source that several modules share is compiled once, with the first module's flags (the
    # binary's): the others differ only in what their own sources need.
    seen = set()
    for module in modules:
        jobs += [(module["Name"], str(ROOT / s), own_flags(module["Cflags"]))
                 for s in module["Srcs"] if s not in seen]
        seen.update(module["Srcs"])
    for name, source, flags in jobs:
        obj = out / name / (Path(source).name + ".o")
        quoted = " ".join(shlex.quote(f).replace("$", "$$") for f in base + flags)
        lines += [f"build {obj}: cxx {source}", f"  flags = {quoted}", f"  module = {name}"]
    out.mkdir(parents=True, exist_ok=True)
    (out / "build.ninja").write_text("\n".join(lines) + "\n")
    done = subprocess.run(["ninja", "-C", str(out), "-k", "0", f"-j{os.cpu_count()}"],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode:  # the failing files and clang's messages, without the command lines
        print("\n".join(line for line in done.stdout.splitlines()
                        if line.startswith("FAILED") or ": error:" in line or ": warning:" in line
                        or "errors generated" in line), file=sys.stderr)
    print(f"clang_compile: {len(jobs)} sources of {len(modules) + 1} modules")
    return done.returncode


if __name__ == "__main__":
    sys.exit(main())
