#!/usr/bin/env python3
"""Makes a stub archive of a static runtime: one object that defines every global symbol the
runtime's archive defines (functions as an empty body, data as zeroes of its size, weak ones
weak), for arm64, as ndkstubgen's stubs stand in for an LLNDK library. The device check links
the fuzzers against it: Debian's arm64 libFuzzer is built for glibc and libstdc++, which a
bionic program cannot link, while what the fuzzers need of it is what it defines. Its main
calls LLVMFuzzerTestOneInput, as libFuzzer's does: a fuzzer without one does not link.

    runtime_stub.py ARCHIVE OUT.a"""

import subprocess
import sys
from pathlib import Path

ENTRY = "LLVMFuzzerTestOneInput"


def main(archive: str, out: str) -> int:
    listing = subprocess.run(["llvm-nm-14", "--defined-only", "--extern-only", "-P", archive],
                             check=True, stdout=subprocess.PIPE, text=True).stdout
    text, data, seen = [], [], set()
    for line in listing.splitlines():
        fields = line.split()
        if len(fields) < 2 or fields[0].endswith(":") or fields[0] in seen:
            continue
        name, kind = fields[0], fields[1]
        seen.add(name)
        binding = ".weak" if kind in "wWvV" else ".globl"
        if kind in "tTwWiI":
            body = f"  b {ENTRY}\n" if name == "main" else "  ret\n"
            text.append(f"{binding} {name}\n.type {name},%function\n{name}:\n{body}")
        else:
            size = int(fields[3], 16) if len(fields) > 3 else 8
            data.append(f"{binding} {name}\n.type {name},%object\n.size {name},{size}\n"
                        f"{name}:\n  .zero {max(size, 1)}\n")
    source = Path(out + ".s")
    source.write_text(".text\n" + "".join(text) + ".data\n.balign 16\n" + "".join(data))
    obj = out + ".o"
    subprocess.run(["clang-14", "-target", "aarch64-linux-android33", "-c", str(source), "-o", obj],
                   check=True)
    Path(out).unlink(missing_ok=True)
    subprocess.run(["llvm-ar-14", "crsD", out, obj], check=True)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
