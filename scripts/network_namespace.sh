# shellcheck shell=bash disable=SC2034
# Sourced by scripts that run the tool or the emulator: sets the array `isolate` to a command
# prefix that runs a command in a network namespace of its own (`unshare -n` as root,
# `unshare -rn` otherwise), or leaves it empty when neither can be had. Abstract socket names
# (the daemon's, the service's, the log sink's) are then private to what runs under it.
isolate=()
for prefix in "unshare -n" "unshare -rn"; do
    # shellcheck disable=SC2086
    if $prefix true 2>/dev/null; then
        read -r -a isolate <<<"$prefix"
        break
    fi
done
