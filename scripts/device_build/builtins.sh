#!/usr/bin/env bash
# The compiler runtimes a device module links, which Android ships with its clang prebuilts
# (not in the tree): the builtins (emulated TLS among them) and the minimal UBSan runtime of the
# integer sanitizer, for the fuzzers libFuzzer and the UBSan runtime their libraries link, and
# LLVM's libunwind (which bionic's linker links, and libc.so links whole as libunwind-exported),
# taken from Debian's arm64 build of the same LLVM (14.0.6) as build/device/prebuilts/<name>.a
# (.so). Downloaded once, with a private apt state: the machine's own is not touched. Debian
# builds them for glibc; what that changes is mended with the sources in compat/, compiled for
# bionic.
set -euo pipefail
out=$SCRATCH/prebuilts
names=(libclang_rt.builtins.a libclang_rt.ubsan_minimal.a libclang_rt.fuzzer.a
    libclang_rt.ubsan_standalone.so libunwind.a)
missing=0
for name in "${names[@]}" libunwind-exported.a; do
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
(cd "$state" && apt-get "${apt[@]}" -qq download "libclang-rt-14-dev:arm64=$version" \
    "libunwind-14-dev:arm64=$version")
for deb in "$state"/*_arm64.deb; do dpkg-deb -x "$deb" "$state/x"; done
# Debian strips its archives with objcopy, which leaves address-significance tables that lld's
# --icf=safe warns about (an error under --fatal-warnings). Its libunwind asks the linker for
# libdl and libpthread (.deplibs), which bionic has inside libc, and calls two functions a bionic
# build does not (compat/libunwind_glibc.c).
for name in "${names[@]}"; do
    flags=(--remove-section=.llvm_addrsig)
    [ "$name" = libunwind.a ] && flags+=(--remove-section=.deplibs
        --redefine-sym=__fprintf_chk=__libunwind_fprintf_chk
        --redefine-sym=dladdr=__libunwind_dladdr)
    file=$(find "$state/x" -type f \( -name "${name%.*}-aarch64.${name##*.}" -o -name "$name" \) |
        head -1)
    llvm-objcopy-14 "${flags[@]}" "$file" "$out/$name"
done
rm -rf "$state"

bionic=$AOSP_SRC/bionic/libc
compile() { # SOURCE ARCHIVE: compiles compat/SOURCE for bionic into ARCHIVE
    clang-14 -target aarch64-linux-android29 -O2 -fPIC -Wall -Wextra -Werror -nostdlibinc \
        -isystem "$bionic/include" -isystem "$bionic/kernel/uapi" \
        -isystem "$bionic/kernel/uapi/asm-arm64" -isystem "$bionic/kernel/android/uapi" \
        -c "$ROOT/scripts/device_build/compat/$1" -o "$out/${1%.c}.o"
    llvm-ar-14 qs "$out/$2" "$out/${1%.c}.o"
}
compile os_version_check.c libclang_rt.builtins.a
compile libunwind_glibc.c libunwind.a
# The same archive under the name the linker's global --exclude-libs=libunwind.a leaves exported.
cp "$out/libunwind.a" "$out/libunwind-exported.a"
