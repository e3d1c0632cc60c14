#!/usr/bin/env bash
# Builds the tool, the emulator and every test under AddressSanitizer and UndefinedBehaviorSanitizer
# (preset "asan", build/asan) and runs the whole ctest suite with them. Any sanitizer report ends
# the process that made it with a failure, so it fails its test. (The preset also turns off GCC's
# -Wmaybe-uninitialized, which the sanitizers' instrumentation makes report false positives in
# the standard library.)
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset asan >/dev/null
cmake --build --preset asan -j"$(nproc)"

# The usage text is its own printf format on purpose ("percentage(%)."): ASan's printf check
# would read that as a bad conversion.
export ASAN_OPTIONS="check_printf=0:detect_leaks=1:abort_on_error=0:${ASAN_OPTIONS:-}"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1:${UBSAN_OPTIONS:-}"
ctest --preset asan -j"$(nproc)"
