#!/usr/bin/env bash
# The compiler runtimes a device module links, which Android ships with its clang prebuilts
# (not in the tree): the builtins (emulated TLS among them) and the minimal UBSan runtime of the
# integer sanitizer, and for the fuzzers libFuzzer and the UBSan runtime their libraries link,
# taken from Debian's arm64 build of the same LLVM (14.0.6) as build/device/prebuilts/<name>.a
# (.so). Downloaded once, with a private apt state: the machine's own is not touched.
set -euo pipefail
out=$SCRATCH/prebuilts
names=(libclang_rt.builtins.a libclang_rt.ubsan_minimal.a libclang_rt.fuzzer.a libclang_rt.ubsan_standalone.so)
missing=0
for name in "${names[@]}"; do
    [ -f "$out/$name" ] || missing=1
done
[ $missing = 1 ] || exit 0

state=$out/apt
rm -rf "$state" && mkdir -p "$state/lists/partial" "$state/cache/archives/partial" "$state/sources.list.d"
: >"$state/status"
for sources in /etc/apt/sources.list.d/debian.sources; do # the machine's Debian, for arm64
    sed '/^Types:/a Architectures: arm64' "$sources" >"$state/sources.list.d/$(basename "$sources")"
done
apt=(-o Dir::State::Lists="$state/lists" -o Dir::State::status="$state/status"
    -o Dir::Cache="$state/cache" -o APT::Architecture=arm64 -o APT::Architectures=arm64
    -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$state/sources.list.d"
    -o APT::Sandbox::User=root)
apt-get "${apt[@]}" -qq update
version=$(dpkg-query -W -f '${Version}' clang-14)
(cd "$state" && apt-get "${apt[@]}" -qq download "libclang-rt-14-dev:arm64=$version")
dpkg-deb -x "$state"/libclang-rt-14-dev_*_arm64.deb "$state/x"
# Debian strips its archives with objcopy, which leaves address-significance tables that lld's
# --icf=safe warns about (an error under --fatal-warnings).
for name in "${names[@]}"; do
    llvm-objcopy-14 --remove-section=.llvm_addrsig \
        "$(find "$state/x" -name "${name%.*}-aarch64.${name##*.}")" "$out/$name"
done
rm -rf "$state"
