#!/usr/bin/env bash
# The device build run on Android 13's own runtime (after the runtime step): the Soong-built arm64
# vexilctl and vexilctl_unit_tests in the device image, under qemu-aarch64 (on_device.sh).
#
#  - What the loader loads for each, from the loader itself (linker64 --list), to
#    build/device/loaded.txt; the loader writes nothing else; every symbol they import is defined
#    there, and libbinder_ndk.so exports LLNDK symbols only (check_image.py).
#  - A library a vendor program may not load fails to load: in a copy of the image whose libc++.so
#    is the system's alone (/system/lib64, outside the vendor namespaces), vexilctl does not start.
#  - The unit tests, run from / as Tradefed runs them, their data read where Soong installs it.
#  - Every end-to-end case file and the fault matrix, with this vexilctl against the host build
#    of tarnmodem (built if missing), whose log sink reads logd's format at the image's
#    /dev/socket/logdw, and the golden texts written as bionic's formatter writes them.
# A run that passed is not repeated until the image, tarnmodem, the tests or this step change.
set -euo pipefail
run=$ROOT/scripts/device_build/on_device.sh
image=$SCRATCH/image
tarnmodem=$ROOT/build/default/host/emulator/tarnmodem
status=0
fail() {
    echo "device_tests: $*" >&2
    status=1
}

if [ ! -x "$image/vendor/bin/vexilctl" ]; then
    echo "device_tests: run the runtime step first" >&2
    exit 1
fi
if [ ! -x "$tarnmodem" ]; then
    (cd "$ROOT" && cmake --preset default && cmake --build --preset default --target tarnmodem) \
        >/dev/null
fi
stamp=$( (cd "$image" && find . \( -type f -o -type l \) -printf '%p %l\n' | LC_ALL=C sort &&
    find . -type f -print0 | LC_ALL=C sort -z | xargs -0 sha1sum) |
    cat - "$tarnmodem" "$ROOT"/tests/{e2e,fault_matrix}/*.py "$ROOT"/tests/e2e/cases/* \
        "$ROOT"/tests/golden/* "$ROOT"/scripts/device_build/{device_tests.sh,on_device.sh} \
        "$ROOT"/scripts/device_build/check_*.py |
    sha1sum | cut -c1-40)
if [ "$(cat "$SCRATCH/device_tests.passed" 2>/dev/null)" = "$stamp" ]; then
    echo "device_tests: ok (unchanged since it last passed)"
    exit 0
fi
rm -f "$SCRATCH/device_tests.passed"

programs=(/vendor/bin/vexilctl /data/nativetest64/vendor/vexilctl_unit_tests/vexilctl_unit_tests)
for program in "${programs[@]}"; do
    echo "$program:"
    (cd / && bash "$run" --data /system/bin/linker64 --list "$program" 2>&1) |
        sed 's/ (0x[0-9a-f]*)$//'
done >"$SCRATCH/loaded.txt" || fail "the loader cannot list what ${programs[*]} load"
sed 's/^/device_tests: /' "$SCRATCH/loaded.txt"
python3 "$ROOT/scripts/device_build/check_image.py" || status=1

# The loader is silent: the usage text alone on stderr, byte for byte as bionic formats it.
err=$(bash "$run" /vendor/bin/vexilctl foo 2>&1 >/dev/null) && fail "vexilctl foo exits 0"
if [ "$(grep -c 'percentage()\.' <<<"$err")" != 1 ] ||
    [ "$(head -1 <<<"$err")" != "Usage: vexilctl <command> [<arg1> [<arg2> ...]]" ]; then
    fail "vexilctl foo wrote: $(head -3 <<<"$err")"
fi

# Without the VNDK's libc++.so, the system's is not found for vendor code.
isolated=$SCRATCH/image-isolation
rm -rf "$isolated" && cp -al "$image" "$isolated"
rm "$isolated/apex/com.android.vndk.v33/lib64/libc++.so"
err=$(DEVICE_IMAGE=$isolated bash "$run" /vendor/bin/vexilctl foo 2>&1 >/dev/null) &&
    fail "vexilctl starts without the VNDK's libc++.so"
grep -q 'library "libc++.so" not found' <<<"$err" ||
    fail "without the VNDK's libc++.so, vexilctl fails otherwise: $err"
rm -rf "$isolated"

echo "device_tests: unit tests"
unit_log=$SCRATCH/unit_tests.log
(cd / && bash "$run" --data /data/nativetest64/vendor/vexilctl_unit_tests/vexilctl_unit_tests \
    --gtest_brief=1) >"$unit_log" 2>&1 || fail "unit tests failed:"$'\n'"$(cat "$unit_log")"
tail -1 "$unit_log"

# The end-to-end harness runs what it is given: the image's vexilctl, its log at the case's socket.
mkdir -p "$SCRATCH/bin"
printf '#!/bin/sh\nexec bash %s --logdw "$VEXIL_LOGDW" /vendor/bin/vexilctl "$@"\n' "$run" \
    >"$SCRATCH/bin/vexilctl"
chmod +x "$SCRATCH/bin/vexilctl"
harness=(--vexilctl "$SCRATCH/bin/vexilctl" --tarnmodem "$tarnmodem" --logd --formatter bionic
    --jobs "$(nproc)")
python3 "$ROOT/tests/e2e/run_cases.py" "${harness[@]}" --golden "$ROOT/tests/golden" \
    "$ROOT"/tests/e2e/cases/*.case >"$SCRATCH/e2e.log" 2>&1 || status=1
python3 "$ROOT/tests/fault_matrix/fault_matrix.py" "${harness[@]}" \
    >"$SCRATCH/fault_matrix.log" 2>&1 || status=1
for suite in e2e fault_matrix; do
    grep -v '^ok ' "$SCRATCH/$suite.log" | sed "s/^/device_tests: $suite: /"
done
[ $status = 0 ] && echo "$stamp" >"$SCRATCH/device_tests.passed"
exit $status
