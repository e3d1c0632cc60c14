#!/usr/bin/env bash
# Every source of the device modules (the tool, its unit tests, the fuzzers' own) and of the
# generated NDK library, compiled for aarch64-linux-android33 with the flags and include paths of
# Soong's analysis: bionic, Android 13's libc++ and the headers of the libraries each module
# declares, nothing of the host's (after the soong and aidl_compile steps, whose outputs it reads).
set -euo pipefail
for needed in actions.json ndk/include; do
    [ -e "$SCRATCH/$needed" ] || { echo "clang_compile: run the soong and aidl_compile steps first" >&2; exit 1; }
done
exec python3 "$ROOT/scripts/device_build/soong_ninja.py" compile
