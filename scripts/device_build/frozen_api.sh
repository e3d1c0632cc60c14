#!/usr/bin/env bash
# The service's frozen API as the build checks it: the sources' dump (aidl --dumpapi) equal to
# current/, every version compatible with the one before, the newest frozen version equal to
# current/ (the tool links its library), and each version's .hash the tree's hash rule
# (system/tools/aidl/build: `latest-version` for the newest frozen version, the previous
# version's number for later ones). With API_UPDATE=1 the dump first replaces current/ (what
# `m <name>-update-api` does).
set -euo pipefail
aidl=$(bash "$ROOT/scripts/device_build/build_aidl.sh")
messages=$AOSP_SRC/system/tools/aidl/build
name=vendor.kest.hardware.vexil_svc
api=$ROOT/service/aidl/aidl_api/$name
dump=$SCRATCH/api_dump
status=0

rm -rf "$dump"
mapfile -t sources < <(find "$ROOT/service/aidl" -path "$api" -prune -o -name '*.aidl' -print | LC_ALL=C sort)
"$aidl" --dumpapi --structured --stability vintf -I "$ROOT/service/aidl" --out "$dump" "${sources[@]}"
if [ "${API_UPDATE:-}" = 1 ]; then
    rm -rf "$api/current"
    cp -r "$dump" "$api/current"
fi

check() { # LEVEL OLD NEW MESSAGE_FILE
    if ! "$aidl" --stability vintf --checkapi="$1" "$2" "$3"; then
        echo "frozen_api: $3 is not $1 to $2" >&2
        cat "$messages/$4" >&2
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
        cat "$messages/message_check_integrity.txt" >&2
        status=1
    fi
done
exit $status
