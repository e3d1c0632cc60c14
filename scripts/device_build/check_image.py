#!/usr/bin/env python3
"""Checks the device image's programs against what its loader loads for them (the listing
device_tests.sh writes to build/device/loaded.txt from linker64 --list):

- every symbol the project's programs and libraries import is defined, at the version asked, by
  a library the loader loaded: the loader binds a weak reference that nothing defines to null,
  and a call through it crashes where the link step saw the LLNDK stub define it;
- libbinder_ndk.so, the host rig's transport, exports LLNDK symbols only, each at the version
  libbinder_ndk.map.txt gives it (the LLNDK stub's), so that the programs' versioned needs
  resolve as on a device; it is a partial NDK: the count of what it exports is reported."""

import json
import os
import sys
from pathlib import Path

from check_linked import dynamic_symbols, provider

SCRATCH = Path(os.environ["SCRATCH"])
IMAGE, TREE = SCRATCH / "image", SCRATCH / "tree"
PROJECT = ("/vendor/", "/data/")  # the project's files in the image


def loaded() -> dict:
    """Program -> the image paths of the libraries the loader listed for it."""
    programs, current = {}, None
    for line in (SCRATCH / "loaded.txt").read_text().splitlines():
        if not line.startswith("\t"):
            current = programs.setdefault(line.rstrip(":"), [])
        elif "=>" in line:
            current.append(line.split("=>")[1].strip())
    return programs


def llndk_stub() -> Path:
    for action in json.loads((SCRATCH / "actions.json").read_text())["Actions"]:
        if action["Module"] == "vexilctl" and action["Rule"] == "ld":
            return TREE / next(f for f in action["Args"]["libFlags"].split()
                               if f.endswith("/libbinder_ndk.so"))
    raise SystemExit("check_image: no link of vexilctl in actions.json")


def unresolved() -> list:
    """The imports of the project's files that no library the loader loaded defines."""
    found = []
    for program, libraries in loaded().items():
        defined = {lib: dynamic_symbols(IMAGE / lib.lstrip("/"))[1] for lib in libraries}
        for path in [program] + [lib for lib in libraries if lib.startswith(PROJECT)]:
            imports, _ = dynamic_symbols(IMAGE / path.lstrip("/"))
            found += [f"{path} (in {program}): {symbol} is defined by no library the loader "
                      f"loaded" for symbol in sorted(imports) if not provider(symbol, defined)]
    return found


def main() -> int:
    _, exported = dynamic_symbols(IMAGE / "system/lib64/libbinder_ndk.so")
    _, llndk = dynamic_symbols(llndk_stub())
    not_llndk = [f"libbinder_ndk.so exports {symbol}, which is not LLNDK at that version"
                 for symbol in sorted(exported - llndk)]
    print(f"check_image: libbinder_ndk.so exports {len(exported & llndk)} of the "
          f"{len(llndk)} LLNDK symbols" + ("" if not_llndk else ", nothing else"))
    errors = unresolved() + not_llndk
    for error in errors:
        sys.stderr.write(f"check_image: {error}\n")
    return int(bool(errors))


if __name__ == "__main__":
    sys.exit(main())
