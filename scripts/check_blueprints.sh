#!/usr/bin/env bash
# Fails when an Android.bp does not parse or is not in bpfmt's format. bpfix exits 0 even on a
# parse error, so its output is what is judged: an error on stderr, or a text that differs.
set -euo pipefail
cd "$(dirname "$0")/.."

status=0
mapfile -t blueprints < <(git ls-files -co --exclude-standard -- 'Android.bp' '*/Android.bp')
for bp in "${blueprints[@]}"; do
    errors=$(bpfix "$bp" 2>&1 >/dev/null || true)
    if [ -n "$errors" ]; then
        echo "check_blueprints: $bp does not parse: $errors" >&2
        status=1
    elif ! bpfix "$bp" 2>/dev/null | diff -u "$bp" - >&2; then
        echo "check_blueprints: $bp is not formatted (bpfix -w $bp)" >&2
        status=1
    fi
done
[ $status -eq 0 ] && echo "check_blueprints: ${#blueprints[@]} files parse and are formatted"
exit $status
