#!/usr/bin/env bash
# Footprint budget of the release vexilctl: stripped size and peak resident memory for
# `state modem` against the emulator of the default build. The timing ratios stay in
# bench/run.sh: on a shared, noisy machine they are no pass/fail test.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release -j"$(nproc)" --target vexilctl vexil_bench_client
bash bench/run.sh --no-build --footprint-only --emulator "$(pwd)/build/default/emulator/tarnmodem"
