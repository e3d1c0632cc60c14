#!/usr/bin/env bash
# Android 13's runtime built as Soong builds it (after the soong step, from its runtime.json): the
# dynamic linker, bionic's libc, libm and libdl, liblog and libvndksupport, libbinder_ndk (the
# host rig's binder transport), and the VNDK's libc++, libcutils, libutils and libbase, with
# everything they link; genrules run in Soong's own sbox, built from the tree's build/soong. Then
# the device image (build/device/image, image.py) with these and the project's modules.
set -euo pipefail
source "$ROOT/scripts/device_build/analysis.sh"
require_analysis runtime
bash "$ROOT/scripts/device_build/builtins.sh"
export GOFLAGS=-mod=mod GOPROXY=off GO111MODULE=on GOTOOLCHAIN=local
export GOCACHE=$SCRATCH/go/cache GOPATH=$SCRATCH/go/path
mkdir -p "$SCRATCH/tree/out/soong/host/linux-x86/bin"
(cd "$SCRATCH/go/tree/build/soong" &&
    go build -o "$SCRATCH/tree/out/soong/host/linux-x86/bin/sbox" ./cmd/sbox)
# bionic's generated_android_ids.h is made by build/tools' fs_config_generator.py, a Python 2
# program; Debian has no Python 2, pyenv's runs it.
if ! python2 -c '' 2>/dev/null; then
    py2=$(pyenv versions --bare 2>/dev/null | grep -m1 '^2\.7' || true)
    if [ -z "$py2" ]; then
        echo "runtime: no Python 2 (bionic's fs_config_generator.py needs one)" >&2
        exit 1
    fi
    export PYENV_VERSION="$(pyenv version-name):$py2"
fi
python3 "$ROOT/scripts/device_build/soong_ninja.py" runtime
python3 "$ROOT/scripts/device_build/image.py"
