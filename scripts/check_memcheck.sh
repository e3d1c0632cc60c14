#!/usr/bin/env bash
# Runs end-to-end cases with vexilctl under valgrind memcheck: any invalid read or write, use of
# an uninitialised value, or memory definitely lost fails the case (valgrind's report lands on
# stderr, and its exit status 99 differs from the expected one). Uses the default build (or
# $VEXIL_BUILD_DIR); time limits are stretched for valgrind's slowness.
#
#   bash scripts/check_memcheck.sh             # a small subset (the test command runs this)
#   bash scripts/check_memcheck.sh --all       # every case file
set -euo pipefail
cd "$(dirname "$0")/.."

build="${VEXIL_BUILD_DIR:-build/default}"
if [ "${1:-}" = "--all" ]; then
    cases=(tests/e2e/cases/*.case)
else
    # The front end's refusals, every kind of service fault, the socket commands and their
    # bad answers.
    cases=(tests/e2e/cases/front.case tests/e2e/cases/faults.case
           tests/e2e/cases/vexilserver.case tests/e2e/cases/vexilserver_replies.case)
fi

wrap="valgrind -q --vgdb=no --error-exitcode=99 --leak-check=full --show-leak-kinds=definite"
wrap+=" --errors-for-leak-kinds=definite"
python3 tests/e2e/run_cases.py --vexilctl "$build/vexilctl" \
    --tarnmodem "$build/host/emulator/tarnmodem" --golden tests/golden --jobs "$(nproc)" \
    --wrap "$wrap" --slowdown 6 "${cases[@]}"
