#!/usr/bin/env python3
"""Replays Soong's build actions for the device (build/device/actions.json, written by the soong
step) with ninja, in build/device/tree/: a tree laid out as Soong sees it (the Android tree's
projects, the project under vendor/kest/vexilctl, the aidl compiler's output where Soong
generates it, out/ for everything built), so every command runs as Soong wrote it, from the
tree's root, with clang 14 and lld for aarch64-linux-android33.

    soong_ninja.py compile   every source of the project's device modules (the tool, its unit
                             tests, every fuzzer, the generated library)
    soong_ninja.py link      the platform's stubs and libraries, then each of those modules,
                             linked
    soong_ninja.py runtime   Android 13's runtime that these load (runtime_ninja.py)

A rerun builds only what changed (the platform's libraries once)."""

import json
import os
import re
import subprocess
import sys
from pathlib import Path

import runtime_ninja

ROOT, AOSP, SCRATCH = (Path(os.environ[k]) for k in ("ROOT", "AOSP_SRC", "SCRATCH"))
TREE = SCRATCH / "tree"
PROJECT = "vendor/kest/vexilctl/"
NDK_GEN = ("out/soong/.intermediates/vendor/kest/vexilctl/service/aidl/"
           "vendor.kest.hardware.vexil_svc-V1-ndk-source/gen")
# What the compile step compiles and the link step links: every module of the project's, each
# variant Soong builds (the generated library's fuzzer variant too).
PROJECT_OUT = "out/soong/.intermediates/" + PROJECT
# The compiler runtimes in build/device/prebuilts/ (builtins.sh).
RUNTIMES = ("libclang_rt.builtins.a", "libclang_rt.ubsan_minimal.a", "libclang_rt.fuzzer.a",
            "libclang_rt.ubsan_standalone.so")

RULES = """
rule cc
  command = $ccCmd -c $cFlags -MD -MF $out.d -o $out $in
  depfile = $out.d
  deps = gcc
  description = $module: compile $in
rule ar
  command = rm -f $out && llvm-ar-14 $arFlags $out @$out.rsp
  rspfile = $out.rsp
  rspfile_content = $in
  description = $module: archive $out
rule ld
  command = $ldCmd $crtBegin @$out.rsp $libFlags $crtEnd -o $out $ldFlags $extraLibFlags
  rspfile = $out.rsp
  rspfile_content = $in
  description = $module: link $out
rule partialLd
  command = $ldCmd -fuse-ld=lld -nostdlib -no-pie -Wl,-r $in -o $out $ldFlags
  description = $module: partial link $out
rule genStubSrc
  command = PYTHONPATH=$aosp/build/soong/cc python3 $aosp/build/soong/cc/ndkstubgen/__init__.py --arch $arch --api $apiLevel --api-map $apiMap $flags $in $out
  description = $module: stubs from $in
rule strip
  command = llvm-strip-14 --strip-all -o $out $in
  description = $module: strip $out
rule reduce
  command = llvm-ifs-14 --input-format=ELF --output-ifs=$out.ifs $in && grep -v 'Undefined: true' $out.ifs >$out.defined.ifs && llvm-ifs-14 --input-format=IFS --output-elf=$out $out.defined.ifs
  description = $module: reduce $out to its dynamic symbols
rule reduceRuntime
  command = llvm-ifs-14 --input-format=ELF --output-ifs=$out.ifs $in && grep -v 'Undefined: true' $out.ifs >$out.defined.ifs && llvm-ifs-14 --input-format=IFS --soname=$soname --output-elf=$out $out.defined.ifs
  description = $module: reduce $out to its dynamic symbols
rule runtimeStub
  command = python3 $stub $in $out
  description = $module: stub of $in
"""

# The fuzzers' runtimes, which Android ships with its clang prebuilts (not in the tree): libFuzzer,
# linked into each fuzzer, and the UBSan runtime that the fuzzers and their libraries' fuzzer
# variants link. Debian's arm64 builds of the same LLVM (builtins.sh) are made for glibc and
# libstdc++, which a bionic program cannot link: each stands in by the symbols it defines, as the
# VNDK libraries do (libFuzzer as an archive of stubs, runtime_stub.py; the UBSan runtime
# reduced). Soong's analysis names each by its module; the fixture builds neither.
RUNTIME = re.compile(r"^out/soong/\.intermediates/(?:defaults/cc/common/)?(libclang_rt\.\w+)/[^/]+/\1\.(a|so)$")


def runtime_statements(data: dict, outputs: set) -> list:
    """Build statements for the runtimes that the links name and no action of Soong's makes."""
    lines = []
    for action in data["Actions"]:
        for path in action["Args"].get("libFlags", "").split() if action["Rule"] == "ld" else []:
            m = RUNTIME.match(path)
            if not m or path in outputs:
                continue
            outputs.add(path)
            name, kind = m.groups()
            source = f"defaults/cc/common/{name}-aarch64-android.{kind}"
            if kind == "a":
                lines += [f"build {path}: runtimeStub {source} | {ROOT}/scripts/device_build/runtime_stub.py",
                          f"  stub = {ROOT}/scripts/device_build/runtime_stub.py"]
            else:
                lines += [f"build {path}: reduceRuntime {source}", f"  soname = {name}-aarch64-android.so"]
            lines.append(f"  module = {name}")
    return lines


def tool(path: str) -> str:
    """The Debian clang 14 tool for a prebuilt clang's path."""
    return Path(path).name + "-14"


def escape(text: str) -> str:
    return text.replace("$", "$$")


# Links of a checkout that the subset does not keep (it has their targets): build/tools, and the
# parts of system/core/include (in every platform module's include path) that the runtime reads.
CHECKOUT_LINKS = {"build/tools": "make/tools",
                  "system/core/include/system": "../libsystem/include/system",
                  "system/core/include/utils": "../libutils/include/utils"}


def in_checkout(path: Path) -> Path:
    """The path a checkout's links lead to."""
    path = Path(os.path.normpath(path))
    for link, target in CHECKOUT_LINKS.items():
        if path.is_relative_to(AOSP / link):
            resolved = Path(os.path.normpath(AOSP / link / ".." / target))
            return resolved / path.relative_to(AOSP / link)
    return path


def archived_symlinks(top: Path) -> dict:
    """Files of the tree that its projects keep as symbolic links, archived as a file holding the
    link's target (libcutils' include_outside_system, liblog's include_vndk, ...)."""
    found = {}
    for path in top.rglob("*"):
        if path.is_file() and not path.is_symlink() and path.stat().st_size < 256:
            text = path.read_bytes()
            if (text.startswith(b"../") and b"\n" not in text and
                    in_checkout(path.parent / text.decode()).exists()):
                found[path] = text.decode()
    return found


def link_tree(source: Path, dest: Path, links: dict) -> None:
    """dest mirrors source: a symbolic link to it, or, where links lie beneath (archived ones, or
    ones the subset lacks), a directory of links to its entries with those links made."""
    beneath = [link for link in links if link.is_relative_to(source) and link != source]
    if source in links:
        dest.symlink_to(links[source])
    elif not beneath:
        dest.symlink_to(source)
    else:
        dest.mkdir()
        names = {entry.name for entry in source.iterdir()} if source.is_dir() else set()
        names |= {link.relative_to(source).parts[0] for link in beneath}
        for name in sorted(names):
            link_tree(source / name, dest / name, links)


def make_tree(api_levels: dict) -> None:
    projects = ("bionic", "build", "external", "frameworks", "system")
    links = {p: t for d in projects for p, t in archived_symlinks(AOSP / d).items()}
    links.update({AOSP / link: target for link, target in CHECKOUT_LINKS.items()})
    places = {PROJECT.rstrip("/"): ROOT, NDK_GEN: SCRATCH / "ndk",
              "defaults/cc/common/libunwind.a": SCRATCH / "prebuilts/libunwind.a",
              "prebuilts/clang/host/linux-x86/libunwind-exported.a":
                  SCRATCH / "prebuilts/libunwind-exported.a"}
    for name in RUNTIMES:  # as the clang prebuilts name them for arm64
        stem, kind = name.rsplit(".", 1)
        places[f"defaults/cc/common/{stem}-aarch64-android.{kind}"] = SCRATCH / "prebuilts" / name
    stamp = TREE / "out/tree.stamp"
    state = json.dumps([str(AOSP), str(ROOT), sorted(map(str, links)),
                        sorted((rel, str(target)) for rel, target in places.items())])
    if not stamp.exists() or stamp.read_text() != state:
        for entry in TREE.glob("*"):
            if entry.name != "out":
                subprocess.run(["rm", "-rf", str(entry)], check=True)
        (TREE / "out").mkdir(parents=True, exist_ok=True)
        for project in projects:
            link_tree(AOSP / project, TREE / project, links)
        for rel, target in places.items():
            (TREE / rel).parent.mkdir(parents=True, exist_ok=True)
            (TREE / rel).unlink(missing_ok=True)
            (TREE / rel).symlink_to(target)
        stamp.write_text(state)
    levels = TREE / "out/soong/api_levels.json"
    levels.parent.mkdir(parents=True, exist_ok=True)
    text = json.dumps(api_levels, sort_keys=True)
    if not levels.exists() or levels.read_text() != text:
        levels.write_text(text)


def statement(action: dict) -> list:
    rule, args = action["Rule"], dict(action["Args"])
    if "ccCmd" in args:
        args["ccCmd"] = tool(args["ccCmd"])
    if "ldCmd" in args:
        args["ldCmd"] = tool(args["ldCmd"])
    if rule in runtime_ninja.RULE_NAMES:
        args = runtime_ninja.prepare(action, TREE)
    inputs = action["Inputs"]
    implicits = [p for p in action["Implicits"] or [] if not p.endswith(".toc")]
    if rule == "ld":  # the libraries it links, in place of their tables of contents
        implicits += [f for f in args["libFlags"].split() if f.endswith((".so", ".a"))]
    if rule == "strip":  # the project's outputs are stripped, the platform's libraries reduced
        rule = "strip" if inputs[0].startswith("out/soong/.intermediates/" + PROJECT) else "reduce"
        args = {}
    lines = [f"build {' '.join(action['Outputs'])}: {rule} {' '.join(inputs)}" +
             (f" | {' '.join(implicits)}" if implicits else "")]
    lines += [f"  {key} = {escape(value)}" for key, value in sorted(args.items())]
    lines.append(f"  module = {action['Module']}")
    return lines


def write_ninja() -> tuple:
    data = json.loads((SCRATCH / "actions.json").read_text())
    runtime = runtime_ninja.load(SCRATCH)
    make_tree(data["ApiLevels"])
    lines = [f"builddir = out", f"aosp = {AOSP}", RULES, runtime_ninja.RULES]
    outputs, compiled, linked = set(), [], []
    for action in data["Actions"] + (runtime["Actions"] if runtime else []):
        out = action["Outputs"][0]
        if out in outputs or action["Module"].startswith("libclang_rt."):  # runtimes: below
            continue
        outputs.add(out)
        lines += statement(action)
        if out.startswith(PROJECT_OUT) and action["Rule"] in ("cc", "ld"):
            (compiled if action["Rule"] == "cc" else linked).append(out)
    lines += runtime_statements(data, outputs)
    lines += [f"build compile: phony {' '.join(compiled)}", f"build link: phony {' '.join(linked)}"]
    headers = runtime_ninja.headers(runtime) if runtime else []
    lines.append(f"build headers: phony {' '.join(headers)}")
    if runtime:
        lines.append(f"build runtime: phony {' '.join(runtime_ninja.targets(runtime))}")
    path = TREE / "out/build.ninja"
    text = "\n".join(lines) + "\n"
    if not path.exists() or path.read_text() != text:
        path.write_text(text)
    return compiled, linked


ANSI = re.compile(r"\x1b\[[0-9;]*m")


def run_ninja(target: str) -> int:
    done = subprocess.run(["nice", "-n", "10", "ninja", "-f", "out/build.ninja", "-k", "0", "-j2",
                           target], cwd=TREE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True)
    if done.returncode:  # the tools' messages, then the failing outputs, without the command lines
        lines = ANSI.sub("", done.stdout).splitlines()
        print("\n".join([line for line in lines if re.search(
            r": (error|warning|fatal error):|errors generated|^ld\.lld|^>>> ", line)] +
            [line for line in lines if line.startswith(("FAILED", "ninja: error"))]), file=sys.stderr)
    return done.returncode


def main() -> int:
    step = sys.argv[1]
    compiled, linked = write_ninja()
    status = run_ninja("headers") or run_ninja(step)
    count = {"compile": len(compiled), "link": len(linked)}.get(step)
    if count is not None:
        print(f"{step}: {count} {'sources' if step == 'compile' else 'outputs'} for the device")
    return status


if __name__ == "__main__":
    sys.exit(main())
