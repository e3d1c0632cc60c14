#!/usr/bin/env bash
# The service's frozen API as the build checks it: the sources' dump (aidl --dumpapi) equal to
# current/, every version compatible with the one before, the newest frozen version equal to
# current/ (the tool links its library), and each version's .hash the tree's hash rule
# (system/tools/aidl/build: `latest-version` for the newest frozen version, the previous
# version's number for later ones). With API_UPDATE=1 the dump first replaces current/ (what
# `m <name>-update-api` does).
# The aidl flags (stability, ...) are those Soong gives the interface's dump and API checks.
set -euo pipefail
source "$ROOT/scripts/device_build/analysis.sh"
require_analysis frozen_api
aidl=$(bash "$ROOT/scripts/device_build/build_aidl.sh")
read -ra dump_flags <<<"$(python3 "$ROOT/scripts/device_build/aidl_actions.py" flags aidlDumpApiRule)"
read -ra check_flags <<<"$(python3 "$ROOT/scripts/device_build/aidl_actions.py" flags aidlCheckApiRule)"
messages=$AOSP_SRC/system/tools/aidl/build
name=vendor.kest.hardware.vexil_svc
api=$ROOT/service/aidl/aidl_api/$name
dump=$SCRATCH/api_dump
status=0

rm -rf "$dump"
mapfile -t sources < <(find "$ROOT/service/aidl" -path "$api" -prune -o -name '*.aidl' -print | LC_ALL=C sort)
"$aidl" --dumpapi --structured "${dump_flags[@]}" -I "$ROOT/service/aidl" --out "$dump" "${sources[@]}"
if [ "${API_UPDATE:-}" = 1 ]; then
    rm -rf "$api/current"
    cp -r "$dump" "$api/current"
fi

# The tree's message, with the interface's name where m's build puts it, and this project's fix.
tree_message() { # MESSAGE_FILE
    # shellcheck disable=SC2059
    printf "$(cat "$messages/$1")\n" "$name" "$name" "$name" >&2
    case $1 in
    message_check_equality.txt)
        echo "In this project: API_UPDATE=1 bash scripts/check_device_build.sh soong frozen_api" \
            "rewrites current/ from the sources (m's $name-update-api); the tool links version 1," \
            "so current/ must also stay equal to the newest frozen version." >&2 ;;
    message_check_compatibility.txt)
        echo "In this project: undo the incompatible change in service/aidl/ and current/ (a" \
            "new version keeps every method and field of the one before)." >&2 ;;
    *)
        echo "In this project: a frozen version's files never change: restore them (git" \
            "checkout ${api#$ROOT/})." >&2 ;;
    esac
}
check() { # LEVEL OLD NEW MESSAGE_FILE
    if ! "$aidl" "${check_flags[@]}" --checkapi="$1" "$2" "$3"; then
        echo "frozen_api: ${3#$ROOT/} is not $1 to ${2#$ROOT/}" >&2
        tree_message "$4"
        status=1
    fi
}
check equal "$api/current" "$dump" message_check_equality.txt
mapfile -t versions < <(find "$api" -mindepth 1 -maxdepth 1 -name '[0-9]*' -printf '%f\n' | sort -n)
previous=
for version in "${versions[@]}" current; do
    [ -n "$previous" ] && check compatible "$api/$previous" "$api/$version" message_check_compatibility.txt
    previous=$version
done
check equal "$api/${versions[-1]}" "$api/current" message_check_equality.txt

for version in "${versions[@]}"; do
    word=latest-version
    [ "$version" -gt 1 ] && word=$((version - 1))
    expected=$(cd "$api/$version" && { find ./ -name "*.aidl" -print0 | LC_ALL=C sort -z | xargs -0 sha1sum && echo "$word"; } | sha1sum | cut -d " " -f 1)
    if [ "$expected" != "$(tail -1 "$api/$version/.hash" 2>/dev/null)" ]; then
        echo "frozen_api: ${api#$ROOT/}/$version/.hash: expected $expected" >&2
        tree_message message_check_integrity.txt
        status=1
    fi
done
exit $status
