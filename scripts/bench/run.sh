#!/usr/bin/env bash
# Benchmark of vexilctl against the physical limit of its job, and its footprint.
#
#   bash scripts/bench/run.sh [--rounds N] [--runs N] [--commands N]
#
# `--no-build` (first) uses build/release as it is; the other options go to scripts/bench/measure.py
# (`--footprint-only`, `--emulator PATH`, see its --help).
#
# Builds the release configuration (preset `release`), starts the host emulator tarnmodem in a
# network namespace of its own, and prints one table: whole-process instruction counts (callgrind)
# and, beside them, ratios of median whole-process wall times (hyperfine, interleaved in rounds;
# the ratio is the median of the rounds' ratios), the stripped size of vexilctl, its peak resident
# memory for `state modem`, and the emulator's resident memory before and after many commands;
# then, unless --footprint-only, 1000 concurrent commands against the emulator
# (scripts/bench/emulator_load.py).
# Exits 1 when a line misses its budget or a command of the load is lost; the budgets are on
# instructions, not on times.
set -euo pipefail
cd "$(dirname "$0")/../.."
root=$(pwd)

if [ "${1:-}" = "--no-build" ]; then
    shift
elif [ -z "${VEXIL_BENCH_INSIDE:-}" ]; then
    bash scripts/install_deps.sh
    cmake --preset release >/dev/null
    cmake --build --preset release -j"$(nproc)" --target vexilctl tarnmodem vexil_bench_client
fi

if [ -z "${VEXIL_BENCH_INSIDE:-}" ]; then
    VEXIL_BENCH_INSIDE=1 exec bash scripts/isolated.sh bash "$0" "$@"
fi

status=0
python3 -S "$root/scripts/bench/measure.py" --build "$root/build/release" "$@" || status=1
# The emulator under 1000 concurrent commands: every answer, call and log line must be kept.
if [[ " $* " != *" --footprint-only "* ]]; then
    python3 "$root/scripts/bench/emulator_load.py" "$root/build/release/vexilctl" \
        "$root/build/release/host/emulator/tarnmodem" || status=1
fi
exit $status
