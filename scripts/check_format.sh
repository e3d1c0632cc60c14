#!/usr/bin/env bash
# Fails when a C or C++ source of the project differs from what clang-format makes of it, or
# includes one of the project's headers by a bare name instead of its path from the top
# ("front/Options.h", "host/emulator/Faults.h"). The aidl compiler's output in service/ndk/ is
# kept as generated.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files -co --exclude-standard -- '*.c' '*.cc' '*.cpp' '*.h' '*.hpp' |
                     grep -v -e '^build/' -e '^service/ndk/' || true)
[ ${#files[@]} -gt 0 ] || { echo "check_format: no sources"; exit 1; }
bare=$(grep -n '^#include "[^/"]*"' "${files[@]}" || true)
if [ -n "$bare" ]; then
    echo "$bare" >&2
    echo "check_format: include the project's headers by their path from the top" >&2
    exit 1
fi
if clang-format --dry-run -Werror "${files[@]}"; then
    echo "check_format: ${#files[@]} files formatted"
else
    echo "check_format: run clang-format -i on the files above" >&2
    exit 1
fi
