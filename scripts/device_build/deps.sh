#!/usr/bin/env bash
# Installs the Debian packages the device-build check needs (Go for Soong's tests, what the aidl
# compiler builds with, clang, lld, the LLVM tools and ninja for the device build, qemu-user and
# bubblewrap to run it), when one is missing.
set -euo pipefail

declare -A packages=(
    [golang-go]=/usr/bin/go
    [golang-github-google-go-cmp-dev]=/usr/share/gocode/src/github.com/google/go-cmp/go.mod
    [golang-google-protobuf-dev]=/usr/share/gocode/src/google.golang.org/protobuf/go.mod
    [android-libbase-dev]=/usr/include/android/android-base/logging.h
    [android-liblog-dev]=/usr/include/android/android/log.h
    [libfmt-dev]=/usr/include/fmt/format.h
    [libgtest-dev]=/usr/include/gtest/gtest.h
    [libselinux1-dev]=/usr/include/selinux/label.h
    [bison]=/usr/bin/bison
    [flex]=/usr/bin/flex
    [clang-14]=/usr/bin/clang++-14
    [lld-14]=/usr/lib/llvm-14/bin/ld.lld
    [llvm-14]=/usr/bin/llvm-ifs-14
    [ninja-build]=/usr/bin/ninja
    [qemu-user]=/usr/bin/qemu-aarch64
    [bubblewrap]=/usr/bin/bwrap
)

source "$(dirname "${BASH_SOURCE[0]}")/../apt_install_missing.sh"
install_missing device_build
