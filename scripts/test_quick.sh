#!/usr/bin/env bash
# The quick run for daily work: builds the host configuration and runs its ctest suite (the unit
# tests of the tool and of the emulator, the end-to-end cases, the fault matrix, the completion
# and the vendor-tree files), none of the slower checks of scripts/test.sh. About a minute on a
# quiet 2-core machine once built. Arguments go to ctest (e.g. -R e2e.logdest).
#   bash scripts/test_quick.sh [CTEST_ARG...]
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset default >/dev/null
cmake --build --preset default -j"$(nproc)"
ctest --preset default -j"$(nproc)" "$@"
