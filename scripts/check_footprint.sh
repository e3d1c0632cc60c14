#!/usr/bin/env bash
# Footprint budget of the release vexilctl: whole-process instruction counts (callgrind) of
# `getallvexilstate` and `state modem` against the C client that sends the same log line, and of
# an argument error against /bin/true; stripped size; peak resident memory for `state modem`.
# The emulator is the default build's. The timing ratios stay in scripts/bench/run.sh: on a shared, noisy
# machine they are no pass/fail test, while instruction counts repeat from run to run.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release -j"$(nproc)" --target vexilctl vexil_bench_client
bash scripts/bench/run.sh --no-build --footprint-only --emulator "$(pwd)/build/default/host/emulator/tarnmodem"
