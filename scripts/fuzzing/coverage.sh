#!/usr/bin/env bash
# Line coverage of the tool's and the emulator's sources reached by the fuzz corpora: builds the
# targets with clang's source-based coverage (preset "fuzz-coverage"), runs each once over its
# corpus, and prints llvm-cov's report per source file, then the lines no target
# reaches (build/fuzz-coverage/unreached.txt).
#
#   bash scripts/fuzzing/coverage.sh
set -euo pipefail
cd "$(dirname "$0")/../.."
build=build/fuzz-coverage
# shellcheck source=scripts/fuzzing/targets.sh
source scripts/fuzzing/targets.sh

cmake --preset fuzz-coverage >/dev/null
cmake --build --preset fuzz-coverage -j"$(nproc)" >/dev/null
rm -rf "$build/profiles" && mkdir -p "$build/profiles"
objects=()
for target in "${fuzz_targets[@]}"; do
    LLVM_PROFILE_FILE="$build/profiles/$target.profraw" "$build/fuzzers/$target" -runs=0 \
        -close_fd_mask=3 "$(fuzz_dir "$target")/corpus/$target" >/dev/null 2>&1
    objects+=(-object "$build/fuzzers/$target")
done
llvm-profdata-14 merge -sparse "$build"/profiles/*.profraw -o "$build/fuzz.profdata"
sources=(front service/*.cpp service/*.h requests server debug host/emulator)
llvm-cov-14 report -instr-profile="$build/fuzz.profdata" "${objects[@]:1}" "${sources[@]}"
# Each function with unreached lines ("file: function", demangled), then those lines.
llvm-cov-14 show -instr-profile="$build/fuzz.profdata" "${objects[@]:1}" "${sources[@]}" \
    -show-line-counts-or-regions=false -format=text -line-coverage-lt=100 |
    grep -E '^[^ ]|^ *[0-9]+\| *0\|' | sed -E 's/^([^ ][^:]*):(.*):$/\1: \2/' |
    llvm-cxxfilt-14 >"$build/unreached.txt" || true
echo "coverage: lines no target reaches: $build/unreached.txt"
