#!/usr/bin/env python3
"""Lays out build/device/image/ as an Android 13 device lays out what a vendor program loads
(after the runtime step), from runtime.json: each module where Soong installs it, with the
packaging that Soong leaves to the APEX build:

    /apex/com.android.runtime/     bionic (libc, libm, libdl, libdl_android, the linker): the
                                   files; /system/lib64/libc.so and /system/bin/linker64 are
                                   links there (cc/library.go, cc/binary.go
                                   installSymlinkToRuntimeApex)
    /apex/com.android.vndk.v33/    the VNDK libraries (Soong installs none: "vndk libs are
                                   packaged into VNDK APEX", cc/library.go)
    /system/lib64/                 the other system libraries (liblog, libvndksupport,
                                   libbinder_ndk, the system's libc++, ld-android)
    /vendor/, /data/nativetest64/  the project's modules, stripped, and the unit tests' data
    /linkerconfig/ld.config.txt    linkerconfig.py
    /vendor/bin/sh                 the shell bionic's popen runs for a /vendor program

Files are hard links (or copies) of the build's outputs; an unchanged image is left alone."""

import json
import os
import shutil
import sys
from pathlib import Path

import linkerconfig
from runtime_ninja import PROJECT_OUT

ROOT, SCRATCH = Path(os.environ["ROOT"]), Path(os.environ["SCRATCH"])
TREE, IMAGE = SCRATCH / "tree", SCRATCH / "image"
INSTALLED = "target/product/test_device/"
BIONIC = {"libc", "libm", "libdl", "libdl_android", "linker"}  # cc/cc.go isBionic
RUNTIME_APEX = "apex/com.android.runtime"
VNDK_APEX = f"apex/com.android.vndk.v{linkerconfig.VNDK_VERSION}"
# No shell is in the tree (a device's /vendor/bin/sh is mksh): the host's stands in.
SHELL = "/bin/sh"


def layout(runtime: dict) -> dict:
    """Image path -> ("file", source) or ("link", target)."""
    entries = {}
    for m in runtime["Modules"]:
        project = m["Stripped"].startswith(PROJECT_OUT)
        source = TREE / (m["Stripped"] if project else m["Linked"])
        installs = [i[len(INSTALLED):] for i in m["Installs"] or []]
        if not installs:  # a VNDK library
            entries[f"{VNDK_APEX}/lib64/{source.name}"] = ("file", source)
            continue
        if m["Module"] in BIONIC:
            first = Path(installs[0])  # system/bin/linker64, system/lib64/libc.so
            where = "bin" if first.parent.name == "bin" else f"{first.parent.name}/bionic"
            apex = f"{RUNTIME_APEX}/{where}/{first.name}"
            entries[apex] = ("file", source)
            for install in installs:
                entries[install] = ("link", "/" + apex)
            continue
        entries[installs[0]] = ("file", source)
        for rel, data in (m.get("Data") or {}).items():
            entries[str(Path(installs[0]).parent / rel)] = ("file", TREE / data)
    entries["vendor/bin/sh"] = ("link", SHELL)
    entries["linkerconfig/ld.config.txt"] = ("text", linkerconfig.config(runtime["Libraries"]))
    return entries


def same(path: Path, kind: str, what) -> bool:
    if kind == "link":
        return path.is_symlink() and os.readlink(path) == what
    if kind == "text":
        return path.is_file() and not path.is_symlink() and path.read_text() == what
    return path.is_file() and not path.is_symlink() and os.path.samefile(path, what)


def install(path: Path, kind: str, what) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    if path.is_symlink() or path.exists():
        path.unlink()
    if kind == "link":
        path.symlink_to(what)
    elif kind == "text":
        path.write_text(what)
    else:
        try:
            os.link(what, path)
        except OSError:
            shutil.copy2(what, path)


def main() -> int:
    runtime = json.loads((SCRATCH / "runtime.json").read_text())
    entries = layout(runtime)
    missing = [str(w) for kind, w in entries.values() if kind == "file" and not Path(w).exists()]
    if missing:
        print("image: not built (run the runtime step): " + " ".join(missing), file=sys.stderr)
        return 1
    for rel, (kind, what) in entries.items():
        if not same(IMAGE / rel, kind, what):
            install(IMAGE / rel, kind, what)
    wanted = {IMAGE / rel for rel in entries}
    for path in sorted(IMAGE.rglob("*"), reverse=True):  # what an earlier layout left
        if path not in wanted and (path.is_symlink() or path.is_file()):
            path.unlink()
        elif path.is_dir() and not any(path.iterdir()):
            path.rmdir()
    print(f"image: {len(entries)} files in {IMAGE.relative_to(ROOT)}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
