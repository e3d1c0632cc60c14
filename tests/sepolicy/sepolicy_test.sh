#!/usr/bin/env bash
# scripts/check_sepolicy.sh against copies of sepolicy/ with one fault each: the real policy
# passes, every fault fails the check with the message named.
set -uo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

failures=0
cases=0
# check NAME EXPECTED_STATUS MESSAGE EDIT...: EDIT runs in the copy's directory.
check() {
    local name=$1 expected=$2 message=$3
    shift 3
    rm -rf "$work/sepolicy" && cp -r "$root/sepolicy" "$work/sepolicy"
    (cd "$work/sepolicy" && eval "$@")
    local output status
    output=$(bash "$root/scripts/check_sepolicy.sh" "$work/sepolicy" 2>&1)
    status=$?
    cases=$((cases + 1))
    if [[ $status -ne $expected || $output != *"$message"* ]]; then
        echo "FAIL: $name: status $status, expected $expected with '$message':" >&2
        echo "$output" | sed 's/^/  /' >&2
        failures=$((failures + 1))
    fi
}

check 'policy as it is' 0 'policies compile' true
check 'system program run on user builds' 1 'user policy does not compile' \
    'echo "allow vexilctl toolbox_exec:file { execute execute_no_trans };" >> vexilctl.te'
check 'violator mark outside debuggable builds' 1 'lets vexilctl run /system programs' \
    'echo "typeattribute vexilctl vendor_executes_system_violators;" >> vexilctl.te'
check 'undeclared type' 1 'does not compile' \
    'echo "allow vexilctl nosuch_file:file read;" >> vexilctl.te'
check 'capture type not declared' 1 'does not compile' \
    'sed -i "/^type vexilctl_debug_file/d" vexilctl.te'
check 'unknown type in file_contexts' 1 'file_contexts names undeclared type vexilctl_exe' \
    'sed -i "s/vexilctl_exec:s0/vexilctl_exe:s0/" file_contexts'
check 'unknown type in service_contexts' 1 'service_contexts names undeclared type hal_vexil_service' \
    'sed -i "s/hal_vexil_svc_service/hal_vexil_service/" service_contexts'
check 'service found by a non-client' 1 'does not compile' \
    'echo "allow shell hal_vexil_svc_service:service_manager find;" >> vexilctl.te'
check 'not a client of the service' 1 'does not compile' \
    'sed -i "/hal_client_domain/d" vexilctl.te; echo "allow vexilctl hal_vexil_svc_service:service_manager find;" >> vexilctl.te'

echo "sepolicy: $((cases - failures)) passed, $failures failed"
[[ $failures -eq 0 ]]
