#!/usr/bin/env bash
# Checks the vendor-tree build with the real Android 13 build tools taken from an Android source
# tree: Soong's analysis of the Android.bp files, the aidl compiler's NDK backend, every device
# source compiled with Soong's flags against the platform headers, the frozen service API, and
# the SELinux policy built with the tree's platform policy.
#
#   AOSP_SRC=/path/to/android-13 bash scripts/check_device_build.sh [STEP...]
#
# AOSP_SRC defaults to ../shared/aosp-a13 beside the project when that exists. Scratch files, the
# Go cache and the built aidl compiler stay under build/device/, so a second run is quick. With
# no Android tree the check prints why it was skipped and exits 0. STEP names a script in
# scripts/device_build/ (default: all of them, in order).
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
    echo "check_device_build: skipped: AOSP_SRC=$AOSP_SRC has no build/soong"
    exit 0
fi
AOSP_SRC=$(cd "$AOSP_SRC" && pwd)
export ROOT AOSP_SRC
export SCRATCH=$ROOT/build/device
mkdir -p "$SCRATCH"

bash scripts/device_build/deps.sh

steps=("$@")
if [ ${#steps[@]} -eq 0 ]; then
    steps=(soong aidl_compile frozen_api clang_compile sepolicy)
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
