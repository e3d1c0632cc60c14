#!/usr/bin/env bash
# Compiles the vendor policy of sepolicy/ on its own, for a user and for a userdebug build, with
# Debian's m4 and checkpolicy: the policy's files expanded with the platform macros it uses and
# compiled between stub declarations of the platform and daemon types it names
# (tests/sepolicy/), with the platform's neverallow rules that bear on it. Then every type named
# in file_contexts and service_contexts must be declared, and the user policy must not let the
# tool run /system programs. Exits 1 when anything fails.
# Usage: check_sepolicy.sh [SEPOLICY_DIR]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
policy_dir=${1:-$root/sepolicy}
stubs=$root/tests/sepolicy
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

status=0
for variant in user userdebug; do
    conf=$work/policy.$variant.conf
    {
        cat "$stubs/policy_head.conf"
        m4 --fatal-warnings -D target_build_variant="$variant" -s "$stubs/te_macros.m4" \
            "$policy_dir/attributes" "$stubs/platform_stub.te" "$policy_dir"/*.te
        cat "$stubs/policy_tail.conf"
    } >"$conf"
    if ! checkpolicy -M -c 30 -o "$work/policy.$variant" "$conf" >"$work/log" 2>&1; then
        echo "check_sepolicy: $variant policy does not compile:" >&2
        sed 's/^/  /' "$work/log" >&2
        status=1
        continue
    fi
    if [ $variant = user ] && grep -qE 'vexilctl (vendor_executes_system_violators|system_file)' "$conf"; then
        echo "check_sepolicy: the user policy lets vexilctl run /system programs (dbg is for debuggable builds)" >&2
        status=1
    fi
    declared=$(grep -oE '^\s*type [a-z0-9_]+' "$conf" | awk '{print $2}' | sort -u)
    for contexts in file_contexts service_contexts; do
        while read -r type; do
            grep -qx "$type" <<<"$declared" ||
                { echo "check_sepolicy: $contexts names undeclared type $type" >&2; status=1; }
        done < <(grep -v '^\s*#' "$policy_dir/$contexts" | grep -oE 'u:object_r:[a-z0-9_]+:s0' |
            cut -d: -f3)
    done
done
[ $status -eq 0 ] && echo "check_sepolicy: user and userdebug policies compile; contexts name declared types"
exit $status
