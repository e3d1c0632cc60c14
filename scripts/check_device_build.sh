#!/usr/bin/env bash
# Checks the vendor-tree build with the real Android 13 build tools taken from an Android source
# tree: Soong's analysis of the Android.bp files, the aidl compiler's NDK backend, the frozen
# service API, every device source compiled and linked for arm64 as Soong's build actions say
# (bionic, Android 13's libc++, the LLNDK stubs and VNDK libraries), the SELinux policy built
# with the tree's platform policy, and the device build run on Android 13's own runtime (linker,
# bionic and platform libraries built from the tree as Soong builds them) under qemu-aarch64.
#
#   AOSP_SRC=/path/to/android-13 bash scripts/check_device_build.sh [STEP...]
#
# AOSP_SRC defaults to ../shared/aosp-a13 beside the project when that exists. Scratch files, the
# Go cache, the built aidl compiler, the platform's libraries and the device image stay under
# build/device/, so a second run is quick. With AOSP_SRC unset and no ../shared/aosp-a13 the
# check prints why it was skipped and exits 0; an AOSP_SRC that is no Android tree fails. STEP
# names a step's script in scripts/device_build/ (default: all the steps, in order).
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT=$PWD

if [ -z "${AOSP_SRC:-}" ] && [ -d "$ROOT/../shared/aosp-a13" ]; then
    AOSP_SRC=$ROOT/../shared/aosp-a13
fi
if [ -z "${AOSP_SRC:-}" ]; then
    echo "check_device_build: skipped: no Android 13 source tree (AOSP_SRC unset, ../shared/aosp-a13 absent)"
    exit 0
fi
if [ ! -d "$AOSP_SRC/build/soong" ]; then
    echo "check_device_build: AOSP_SRC=$AOSP_SRC is no Android tree: it has no build/soong" >&2
    exit 1
fi
AOSP_SRC=$(cd "$AOSP_SRC" && pwd)
export ROOT AOSP_SRC
export SCRATCH=$ROOT/build/device
mkdir -p "$SCRATCH"

bash scripts/device_build/deps.sh

steps=("$@")
if [ ${#steps[@]} -eq 0 ]; then
    steps=(soong aidl_compile frozen_api clang_compile link sepolicy runtime device_tests)
fi

status=0
for step in "${steps[@]}"; do
    start=$SECONDS
    if bash "scripts/device_build/$step.sh"; then
        echo "check_device_build: $step: ok ($((SECONDS - start)) s)"
    else
        echo "check_device_build: $step: FAILED ($((SECONDS - start)) s)" >&2
        status=1
    fi
done
exit $status
