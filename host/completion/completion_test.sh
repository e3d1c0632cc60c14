#!/usr/bin/env bash
# Drives the bash completion of vexilctl as bash does (COMP_WORDS, COMP_CWORD, the function that
# `complete -p vexilctl` names) and checks:
#  - a table of command lines and what they complete to;
#  - the command words offered are exactly those of the front end's command table;
#  - every command line made of offered words passes the real binary's front end (exit status 0,
#    not 1), when the binary is given.
# Usage: completion_test.sh [VEXILCTL]
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
vexilctl=${1:-}

# shellcheck source=/dev/null
source "$root/host/completion/vexilctl.bash"

failures=0
checks=0
fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}

# Completes LINE (the cursor at its end) and prints the candidates sorted, on one line.
complete_line() {
    local line=$1
    read -r -a COMP_WORDS <<<"$line"
    [[ $line == *' ' ]] && COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMP_LINE=$line
    COMP_POINT=${#line}
    COMPREPLY=()
    local function_name
    function_name=$(complete -p vexilctl | sed -n 's/.*-F \([^ ]*\) .*/\1/p')
    "$function_name" vexilctl "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf '%s\n' "${COMPREPLY[@]}" | sort | tr '\n' ' ' | sed 's/ $//'
}

expect() {
    local line=$1 expected=$2 actual
    checks=$((checks + 1))
    actual=$(complete_line "$line")
    [[ $actual == "$expected" ]] || fail "'$line' completes to '$actual', expected '$expected'"
}

# --- A table of lines and their completions (the word lists themselves are checked against the
# front end below) ---------------------------------------------------------------------------
expect 'vexilctl getc' 'getcomp getcpcapacity getcpreset getcprunstate'
expect 'vexilctl zz' ''
expect 'vexilctl state ' 'agdsp gnss modem pm pmsh sensor wcn'
expect 'vexilctl state modem ' ''
expect 'vexilctl setlog wcn ' 'off stor usb wifi'
expect 'vexilctl collect ' 'agdsp all gnss modem pm pmsh sensor wcn'
expect 'vexilctl collect modem wcn a' 'agdsp all'
expect 'vexilctl getcpcapacity gnss ' 'external internal'
expect 'vexilctl setfilenodel ' 'modem'
expect 'vexilctl setcpreset wcn ' 'off on rstdmp'
expect 'vexilctl setminidump ' 'off on'
expect 'vexilctl setiolimit modem ' \
    'avgratio bufcommitthreshold bufnum bufsize logcommitthreshold lograte'
expect 'vexilctl setiolimit modem buf' 'bufcommitthreshold bufnum bufsize'
expect 'vexilctl setvexil ' 'agdsp all gnss modem pmsh wcn'
expect 'vexilctl setvexil all ' 'off on'
expect 'vexilctl clear ' 'skipboot'
expect 'vexilctl dbg ' 'debuggerd fdinfo strace'
expect 'vexilctl setmipilog ' ''

# setlogpath offers directories (and only directories).
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/logs_a" "$scratch/logs_b"
touch "$scratch/logs_file"
expect "vexilctl setlogpath $scratch/lo" "$scratch/logs_a $scratch/logs_b"

# --- Agreement with the front end -----------------------------------------------------------
# Command words of the front end's command table (the words offered to each command are held to
# the front end by the real binary below).
table_commands=$(grep -o '{"[a-z]*", bind_handler' "$root/front/RequestManager.cpp" |
    sed 's/{"\([a-z]*\)".*/\1/' | sort | tr '\n' ' ' | sed 's/ $//')

checks=$((checks + 1))
offered_commands=$(complete_line 'vexilctl ')
[[ $(wc -w <<<"$offered_commands") -eq 36 ]] || fail "$(wc -w <<<"$offered_commands") commands offered, not 36"
[[ $offered_commands == "$table_commands" ]] ||
    fail "commands offered: '$offered_commands'; command table: '$table_commands'"

# --- The real front end accepts every completed line ----------------------------------------
# Each command with, at each position, each offered word (the other positions taking the first
# offered word, or 5 where a number goes). dbg is left out: it writes under /data.
# The runs get a network namespace of their own, so that no daemon, service or log sink of the
# machine (all on abstract sockets) sees them.
isolate=(bash "$root/scripts/isolated.sh")
if [[ -n $vexilctl ]]; then
    for command in $offered_commands; do
        [[ $command == dbg || $command == setlogpath ]] && continue
        first=()
        for position in 1 2 3; do
            words=$(_vexilctl_arg_words "$command" "$position")
            first+=("${words%% *}")
        done
        for position in 1 2 3; do
            for word in $(_vexilctl_arg_words "$command" "$position"); do
                args=()
                for p in 1 2 3; do
                    if ((p == position)); then
                        args+=("$word")
                    elif [[ -n ${first[p - 1]} ]]; then
                        args+=("${first[p - 1]}")
                    fi
                done
                [[ $command == setcpcapacity || $command == setiolimit ]] && args+=(5)
                [[ $command == setmipilog ]] && args=(a b c)
                checks=$((checks + 1))
                timeout 20 "${isolate[@]}" "$vexilctl" "$command" "${args[@]}" >/dev/null 2>&1
                status=$?
                [[ $status -eq 0 ]] ||
                    fail "vexilctl $command ${args[*]} exits $status (front end refused it)"
            done
        done
    done
fi

echo "completion: $((checks - failures)) passed, $failures failed"
[[ $failures -eq 0 ]]
