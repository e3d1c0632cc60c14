#!/usr/bin/env bash
# Every device source (binary, unit tests, fuzzers) and the generated NDK backend compiled with
# clang and Soong's device flags against the Android tree's headers (after the soong and
# aidl_compile steps, whose outputs it reads).
set -euo pipefail
for needed in modules.json ndk/include; do
    [ -e "$SCRATCH/$needed" ] || { echo "clang_compile: run the soong and aidl_compile steps first" >&2; exit 1; }
done
exec nice -n 10 python3 "$ROOT/scripts/device_build/clang_compile.py"
