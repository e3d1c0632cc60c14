#!/usr/bin/env bash
# Lints the tool's own sources with clang-tidy against .clang-tidy, and the emulator's for the
# project's naming (host/emulator/.clang-tidy), using the
# compile commands of a configured build (default: build/default, configured by scripts/test.sh).
# Any finding fails.
set -euo pipefail
cd "$(dirname "$0")/.."

build="${1:-build/default}"
[ -f "$build/compile_commands.json" ] || cmake --preset default >/dev/null

mapfile -t sources < <(git ls-files -co --exclude-standard -- \
    'front/*.cpp' 'service/*.cpp' 'requests/*.cpp' 'server/*.cpp' 'debug/*.cpp' \
    'host/emulator/*.cpp')
printf '%s\n' "${sources[@]}" |
    xargs -P "$(nproc)" -n 4 clang-tidy-14 -p "$build" --quiet 2>&1 |
    grep -v '^[0-9]* warnings\? generated\.$' >"${TMPDIR:-/tmp}/check_tidy.$$" || true
if [ -s "${TMPDIR:-/tmp}/check_tidy.$$" ]; then
    cat "${TMPDIR:-/tmp}/check_tidy.$$" >&2
    rm -f "${TMPDIR:-/tmp}/check_tidy.$$"
    echo "check_tidy: findings above" >&2
    exit 1
fi
rm -f "${TMPDIR:-/tmp}/check_tidy.$$"
echo "check_tidy: ${#sources[@]} files clean"
