#!/usr/bin/env bash
# Builds the libFuzzer targets (preset "fuzz": clang-14, ASan + UBSan) and runs them side by side,
# each from its seed corpus (scripts/fuzzing/targets.sh says where each lives) for FUZZ_SECONDS
# seconds (default 5: a smoke run). New inputs go to a scratch directory, not into the tree; a
# crashing input is kept under build/fuzz/findings/.
#
#   bash scripts/check_fuzz.sh                    # smoke run of every target
#   FUZZ_SECONDS=600 bash scripts/check_fuzz.sh   # longer run, nothing kept
#   bash scripts/check_fuzz.sh tool_fuzzer        # only the named targets
#   bash scripts/check_fuzz.sh --campaign 3600 [TARGET...]
#       a campaign: each target for the given seconds, what it finds merged (minimised) into
#       its corpus, per target the executions, coverage and whether it flattened, recorded in
#       scripts/fuzzing/campaign.tsv (scripts/fuzzing/campaign.py)
set -euo pipefail
cd "$(dirname "$0")/.."

campaign=
if [ "${1:-}" = --campaign ]; then
    campaign=${2:?check_fuzz: --campaign needs a number of seconds}
    shift 2
fi
seconds="${FUZZ_SECONDS:-5}"
# shellcheck source=scripts/fuzzing/targets.sh
source scripts/fuzzing/targets.sh
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=("${fuzz_targets[@]}")

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --preset fuzz >/dev/null
if ! cmake --build --preset fuzz -j"$(nproc)" >"$scratch/build.log" 2>&1; then
    cat "$scratch/build.log" >&2
    echo "check_fuzz: the fuzz targets do not build" >&2
    exit 1
fi

findings=build/fuzz/findings
mkdir -p "$findings"

# The usage text is its own printf format on purpose ("percentage(%)."): ASan's printf check
# would read that as a bad conversion.
export ASAN_OPTIONS="check_printf=0:${ASAN_OPTIONS:-}"

if [ -n "$campaign" ]; then
    exec python3 scripts/fuzzing/campaign.py "$campaign" "${targets[@]}"
fi

# The targets run side by side, each for the given time; their outcomes are reported in order.
run_target() {
    local target=$1 dir dict=() rc=0
    mkdir -p "$scratch/$target"
    dir=$(fuzz_dir "$target")
    [ -f "$dir/$target.dict" ] && dict=(-dict="$dir/$target.dict")
    build/fuzz/fuzzers/"$target" "${dict[@]}" -max_total_time="$seconds" -close_fd_mask=3 \
        -print_final_stats=1 -artifact_prefix="$findings/$target-" \
        "$scratch/$target" "$dir/corpus/$target" >"$scratch/$target.log" 2>&1 || rc=$?
    echo $rc >"$scratch/$target.status"
}
for target in "${targets[@]}"; do
    run_target "$target" &
done
wait

status=0
for target in "${targets[@]}"; do
    if [ "$(cat "$scratch/$target.status")" = 0 ]; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$scratch/$target.log")
        echo "check_fuzz: $target: ${runs:-?} runs in ${seconds} s, no finding"
    else
        echo "check_fuzz: $target FAILED:" >&2
        grep -v '^#\|^INFO\|^stat::' "$scratch/$target.log" | head -60 >&2
        status=1
    fi
done
exit $status
