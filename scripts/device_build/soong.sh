#!/usr/bin/env bash
# Soong's analysis of the project's Android.bp files: vexilctl_blueprint_test.go runs on Soong's
# test fixture with the aidl_interface module type, from a scratch copy of the tree's Go sources
# in build/device/go/ (Go's caches beside it). Writes build/device/actions.json, Soong's build
# actions for the device modules and the platform libraries they link, for the compile and link
# steps, and build/device/runtime.json, those of Android 13's runtime that they load
# (runtime_blueprint_test.go), for the runtime step.
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
cd "$tree/system/tools/aidl/build"
VEXILCTL_ROOT=$ROOT VEXILCTL_AOSP=$AOSP_SRC VEXILCTL_ACTIONS=$SCRATCH/actions.json \
    VEXILCTL_RUNTIME=$SCRATCH/runtime.json \
    go test -count=1 -run '^TestVexilctlVendorTree$' . 2>&1 | tail -40
exit "${PIPESTATUS[0]}"
