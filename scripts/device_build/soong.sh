#!/usr/bin/env bash
# Soong's analysis of the project's Android.bp files: vexilctl_blueprint_test.go runs on Soong's
# test fixture with the aidl_interface module type, from a scratch copy of the tree's Go sources
# in build/device/go/ (Go's caches beside it). Writes build/device/actions.json, Soong's build
# actions for the project's modules and the platform libraries they link (for the compile and
# link steps) and the aidl compiler's (for aidl_compile and frozen_api), and
# build/device/runtime.json, those of Android 13's runtime that they load
# (runtime_blueprint_test.go, for the runtime step), and records in build/device/actions.inputs
# what it analysed (analysis.sh). Fails unless the test ran and passed: go test passes when its
# -run pattern matches nothing.
set -euo pipefail
tree=$SCRATCH/go/tree
mkdir -p "$tree/build" "$tree/system/tools/aidl" "$tree/external"
for dir in build/soong build/blueprint system/tools/aidl/build; do
    mkdir -p "$tree/$dir"
    cp -a --no-preserve=ownership "$AOSP_SRC/$dir/." "$tree/$dir/"
done
external() { # the tree's copy of a Go dependency, or Debian's
    if [ -d "$AOSP_SRC/external/$1" ]; then echo "$AOSP_SRC/external/$1"; else echo "$2"; fi
}
ln -sfn "$(external go-cmp /usr/share/gocode/src/github.com/google/go-cmp)" "$tree/external/go-cmp"
ln -sfn "$(external golang-protobuf /usr/share/gocode/src/google.golang.org/protobuf)" \
    "$tree/external/golang-protobuf"

cp "$ROOT"/scripts/device_build/*_test.go "$tree/system/tools/aidl/build/"

export GOFLAGS=-mod=mod GOPROXY=off GO111MODULE=on GOTOOLCHAIN=local
export GOCACHE=$SCRATCH/go/cache GOPATH=$SCRATCH/go/path
source "$ROOT/scripts/device_build/analysis.sh"
rm -f "$SCRATCH/actions.json" "$SCRATCH/runtime.json" "$SCRATCH/actions.inputs"
inputs=$(analysis_inputs)
cd "$tree/system/tools/aidl/build"
status=0
VEXILCTL_ROOT=$ROOT VEXILCTL_AOSP=$AOSP_SRC VEXILCTL_ACTIONS=$SCRATCH/actions.json \
    VEXILCTL_RUNTIME=$SCRATCH/runtime.json go test -v -count=1 -run '^TestVexilctlVendorTree$' . >"$SCRATCH/soong.log" 2>&1 || status=$?
if [ $status -ne 0 ]; then # the test's errors first
    { grep -E '^\s+\S+\.go:[0-9]+: ' "$SCRATCH/soong.log" || true; grep -v '^=== RUN' "$SCRATCH/soong.log" | tail -40; } >&2
    exit $status
fi
grep -v '^=== RUN' "$SCRATCH/soong.log" | tail -40
# A renamed or filtered test matches nothing, and a test can skip itself.
if ! grep -q '^--- PASS: TestVexilctlVendorTree ' "$SCRATCH/soong.log" ||
    [ ! -f "$SCRATCH/actions.json" ] || [ ! -f "$SCRATCH/runtime.json" ]; then
    echo "soong: TestVexilctlVendorTree did not run and pass (renamed, filtered or skipped), so" \
        "nothing was analysed: scripts/device_build/vexilctl_blueprint_test.go must define it" >&2
    exit 1
fi
echo "$inputs" >"$SCRATCH/actions.inputs"
