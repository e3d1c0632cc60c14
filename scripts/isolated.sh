#!/usr/bin/env bash
# Runs a command in a network namespace of its own, so that the abstract socket names it uses
# (the daemon's, the service's, the log sink's) cannot meet those of anything else on the
# machine: `unshare -n` as root, `unshare -rn` (the caller mapped to root) otherwise. Everything
# that starts the tool or the emulator goes through here: the demo, the tests, the benchmarks.
#
#   bash scripts/isolated.sh COMMAND [ARG...]   runs COMMAND there; where no namespace can be
#                                               made, says so on stderr and runs it here
#   bash scripts/isolated.sh --check            exit status 0 when a namespace can be made
set -uo pipefail

prefix=()
for candidate in "unshare -n" "unshare -rn"; do
    # shellcheck disable=SC2086
    if $candidate true 2>/dev/null; then
        read -r -a prefix <<<"$candidate"
        break
    fi
done

if [ "${1:-}" = --check ]; then
    [ ${#prefix[@]} -gt 0 ]
    exit
fi
if [ $# -eq 0 ]; then
    echo "usage: isolated.sh COMMAND [ARG...] | --check" >&2
    exit 2
fi
if [ ${#prefix[@]} -eq 0 ]; then
    echo "isolated.sh: no network namespace can be made; running $1 in the machine's own" >&2
    exec "$@"
fi
exec "${prefix[@]}" "$@"
