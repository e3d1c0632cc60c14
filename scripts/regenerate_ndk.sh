#!/usr/bin/env bash
# Regenerates service/ndk/, the service package's NDK backend, with the aidl compiler of the
# Android 13 tree in AOSP_SRC (default ../shared/aosp-a13), after a change of the frozen API.
set -euo pipefail
cd "$(dirname "$0")/.."
NDK_UPDATE=1 exec bash scripts/check_device_build.sh soong aidl_compile
