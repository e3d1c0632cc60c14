#!/usr/bin/env bash
# The test command: installs what is missing, builds the host configuration and runs every test
# (unit, end to end, formatting, Blueprint files). Exits non-zero when anything fails.
set -euo pipefail
cd "$(dirname "$0")/.."

# Each step's wall time, printed at the end.
times=()
step() {
    local start=$SECONDS rc=0
    "$@" || rc=$?
    times+=("$(printf '%4d s  %s' $((SECONDS - start)) "$*")")
    return $rc
}

status=0
step bash scripts/install_deps.sh
step cmake --preset default >/dev/null
step cmake --build --preset default -j"$(nproc)"
step ctest --preset default -j"$(nproc)" || status=1
step bash scripts/check_format.sh || status=1
step bash scripts/check_blueprints.sh || status=1
step bash scripts/check_device_build.sh || status=1
step bash scripts/check_footprint.sh || status=1
step bash scripts/check_tidy.sh || status=1
step bash scripts/check_memcheck.sh || status=1
step bash scripts/check_sanitizers.sh || status=1
step bash scripts/check_fuzz.sh || status=1

printf 'test.sh: %s\n' "${times[@]}"
if [ $status -ne 0 ]; then
    echo "test.sh: FAILED" >&2
fi
exit $status
