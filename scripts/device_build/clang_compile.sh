#!/usr/bin/env bash
# Every source of the device modules (the tool, its unit tests, every fuzzer) and of the
# generated NDK library, compiled for aarch64-linux-android33 with the flags and include paths of
# Soong's analysis: bionic, Android 13's libc++ and the headers of the libraries each module
# declares, nothing of the host's (after the soong and aidl_compile steps, whose outputs it
# reads; it refuses an analysis older than the project's Android.bp files and sources).
set -euo pipefail
source "$ROOT/scripts/device_build/analysis.sh"
require_analysis clang_compile
[ -e "$SCRATCH/ndk/include" ] || {
    echo "clang_compile: no generated NDK library: run the aidl_compile step first" \
        "(bash scripts/check_device_build.sh aidl_compile clang_compile)" >&2
    exit 1
}
exec python3 "$ROOT/scripts/device_build/soong_ninja.py" compile
