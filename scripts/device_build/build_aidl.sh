#!/usr/bin/env bash
# Builds the aidl compiler from the Android tree's system/tools/aidl (the sources of its
# Android.bp: libaidl-common and main.cpp), once: the binary stays in build/device/aidl/ and is
# rebuilt only when the tree's sources change. Prints the compiler's path.
set -euo pipefail
src=$AOSP_SRC/system/tools/aidl
out=$SCRATCH/aidl
bin=$out/aidl
sources=(aidl_checkapi aidl_const_expressions aidl_dumpapi aidl_language aidl_to_cpp_common
    aidl_to_cpp aidl_to_java aidl_to_ndk aidl_to_rust aidl_typenames aidl ast_java check_valid
    code_writer comments diagnostics generate_aidl_mappings generate_cpp generate_java_binder
    generate_java generate_ndk generate_rust import_resolver io_delegate location logging options
    parser permission preprocess main)

stamp=$( (echo "$src"; cat "$src"/*.cpp "$src"/*.h "$src"/*.ll "$src"/*.yy) | sha1sum | cut -c1-40)
if [ -x "$bin" ] && [ "$(cat "$out/stamp" 2>/dev/null)" = "$stamp" ]; then
    echo "$bin"
    exit 0
fi
rm -rf "$out" && mkdir -p "$out/obj"
bison -d --defines="$out/aidl_language_y.h" -o "$out/aidl_language_y.cpp" "$src/aidl_language_y.yy"
flex -o "$out/aidl_language_l.cpp" "$src/aidl_language_l.ll"

# Soong's host flags for it, plus what Debian's libbase headers need. Without
# -ftrivial-auto-var-init=zero (Soong's default) the compiler aborts on @Backing enums.
flags=(-std=gnu++17 -O1 -w -I"$src" -I"$out" -I/usr/include/android -include memory
    -ftrivial-auto-var-init=zero -enable-trivial-auto-var-init-zero-knowing-it-will-be-removed-from-clang
    -DPLATFORM_SDK_VERSION=33)
objects=()
for name in "${sources[@]}"; do
    objects+=("$out/obj/$name.o")
    echo "clang++-14 ${flags[*]} -c $src/$name.cpp -o $out/obj/$name.o"
done >"$out/commands"
for gen in aidl_language_y aidl_language_l; do
    objects+=("$out/obj/$gen.o")
    echo "clang++-14 ${flags[*]} -c $out/$gen.cpp -o $out/obj/$gen.o" >>"$out/commands"
done
xargs -P "$(nproc)" -I{} sh -c '{}' <"$out/commands" >&2
clang++-14 -o "$bin" "${objects[@]}" -L/usr/lib/x86_64-linux-gnu/android \
    -Wl,-rpath,/usr/lib/x86_64-linux-gnu/android -lbase -llog -lfmt -lgtest -lpthread
echo "$stamp" >"$out/stamp"
echo "$bin"
