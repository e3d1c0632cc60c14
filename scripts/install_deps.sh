#!/usr/bin/env bash
# Installs what the host build and its tests need on a Debian machine, and nothing when all is
# there already. Needs root (apt-get) only when something is missing.
#   bash scripts/install_deps.sh        everything the test command uses
#   bash scripts/install_deps.sh demo   only what the demo (tool and emulator) needs
set -euo pipefail

# Debian package -> a file that shows it is installed. The build itself: compiler, CMake,
# Ninja, nlohmann-json (the emulator), unshare (the demo's network namespace).
declare -A packages=(
    [g++]=/usr/bin/g++
    [cmake]=/usr/bin/cmake
    [ninja-build]=/usr/bin/ninja
    [nlohmann-json3-dev]=/usr/include/nlohmann/json.hpp
    [util-linux]=/usr/bin/unshare
)
# The tests and checks (Python runs the end-to-end cases and the vendor-tree checks).
[ "${1:-}" = demo ] || packages+=(
    [python3]=/usr/bin/python3
    [libgtest-dev]=/usr/include/gtest/gtest.h
    [libgmock-dev]=/usr/include/gmock/gmock.h
    [clang-format]=/usr/bin/clang-format
    [soong]=/usr/bin/bpfix
    [sysvinit-utils]=/bin/pidof
    [bubblewrap]=/usr/bin/bwrap
    [strace]=/usr/bin/strace
    [hyperfine]=/usr/bin/hyperfine
    [time]=/usr/bin/time
    [m4]=/usr/bin/m4
    [checkpolicy]=/usr/bin/checkpolicy
    [secilc]=/usr/bin/secilc
    [libsepol-dev]=/usr/include/sepol/policydb/policydb.h
    [clang-14]=/usr/bin/clang++-14
    [libclang-rt-14-dev]=/usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.fuzzer-x86_64.a
    [clang-tidy-14]=/usr/bin/clang-tidy-14
    [valgrind]=/usr/bin/valgrind
)

source "$(dirname "${BASH_SOURCE[0]}")/apt_install_missing.sh"
install_missing install_deps
