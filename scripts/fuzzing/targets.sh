# shellcheck shell=bash disable=SC2034
# Sourced by the fuzzing scripts: the fuzz targets and where each lives. The tool's targets are
# among its tests (tests/fuzz/), the emulator's beside it (host/emulator/fuzz/); each directory
# holds a target's source, its dictionary <target>.dict where there is one, and its seed corpus
# corpus/<target>/. The built targets are in <build>/fuzzers/.
fuzz_tool_targets=(tool_fuzzer)
fuzz_emulator_targets=(vexilserver_line_fuzzer service_transport_fuzzer state_file_fuzzer)
fuzz_targets=("${fuzz_tool_targets[@]}" "${fuzz_emulator_targets[@]}")

# The directory of a target's source, dictionary and corpus.
fuzz_dir() {
    local dir
    for dir in tests/fuzz host/emulator/fuzz; do
        [ -f "$dir/$1.cpp" ] && echo "$dir" && return 0
    done
    echo "fuzz: no target $1 in tests/fuzz or host/emulator/fuzz" >&2
    return 1
}
