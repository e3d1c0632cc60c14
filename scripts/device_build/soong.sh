#!/usr/bin/env bash
# Soong's analysis of the project's Android.bp files: vexilctl_blueprint_test.go runs on Soong's
# test fixture with the aidl_interface module type, from a scratch copy of the tree's Go sources
# in build/device/go/ (Go's caches beside it). Writes build/device/modules.json, each C++
# module's sources and own flags, for the compile step.
set -euo pipefail
tree=$SCRATCH/go/tree
mkdir -p "$tree/build" "$tree/system/tools/aidl" "$tree/external"
for dir in build/soong build/blueprint system/tools/aidl/build; do
    mkdir -p "$tree/$dir"
    cp -a --no-preserve=ownership -u "$AOSP_SRC/$dir/." "$tree/$dir/"
done
external() { # the tree's copy of a Go dependency, or Debian's
    if [ -d "$AOSP_SRC/external/$1" ]; then echo "$AOSP_SRC/external/$1"; else echo "$2"; fi
}
ln -sfn "$(external go-cmp /usr/share/gocode/src/github.com/google/go-cmp)" "$tree/external/go-cmp"
ln -sfn "$(external golang-protobuf /usr/share/gocode/src/google.golang.org/protobuf)" \
    "$tree/external/golang-protobuf"

# The fixture's mock note_memtag_heap_* libraries have no vendor variant, which a vendor cc_test
# needs.
sed -e '/name: "note_memtag_heap_\(a\)\?sync",/a\			vendor_available: true,' \
    "$AOSP_SRC/build/soong/cc/testing.go" >"$tree/build/soong/cc/testing.go"
# Its mock platform libraries have no vendor variant either; on a device they are LL-NDK (liblog,
# libbinder_ndk) or VNDK (libcutils, libutils) libraries that vendor modules link.
python3 - "$AOSP_SRC/system/tools/aidl/build/aidl_test.go" "$tree/system/tools/aidl/build/aidl_test.go" <<'PY'
import re, sys
text = open(sys.argv[1]).read()
text = re.sub(r'(cc_library \{\s*name: "(?:libbinder_ndk|libcutils|liblog|libutils)",)',
              r'\1\n\t\t\tvendor_available: true,', text)
open(sys.argv[2], "w").write(text)
PY
cp "$ROOT/scripts/device_build/vexilctl_blueprint_test.go" "$tree/system/tools/aidl/build/"

export GOFLAGS=-mod=mod GOPROXY=off GO111MODULE=on GOTOOLCHAIN=local
export GOCACHE=$SCRATCH/go/cache GOPATH=$SCRATCH/go/path
cd "$tree/system/tools/aidl/build"
VEXILCTL_ROOT=$ROOT VEXILCTL_MODULES=$SCRATCH/modules.json \
    go test -count=1 -run '^TestVexilctlVendorTree$' . 2>&1 | tail -40
exit "${PIPESTATUS[0]}"
