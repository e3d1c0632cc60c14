#!/usr/bin/env bash
# The tool's main job on the host: installs what is missing, builds, starts the emulated daemon
# tarnmodem, runs a short session of real vexilctl commands against it (each command line, its
# output and its exit status), and stops the daemon.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)

if [ -z "${VEXIL_DEMO_INSIDE:-}" ]; then
    bash scripts/install_deps.sh demo
    # A build of its own without the tests, which need more than the demo installs.
    cmake -S . -B build/demo -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVEXIL_TESTS=OFF >/dev/null
    cmake --build build/demo -j"$(nproc)" --target vexilctl tarnmodem
    # The session runs in a network namespace of its own when one can be made.
    VEXIL_DEMO_INSIDE=1 exec bash scripts/isolated.sh bash "$0" "$@"
fi

build=$root/build/demo
tarnmodem=$build/host/emulator/tarnmodem
vexilctl=$build/vexilctl
work=$(mktemp -d)
daemon=
stop_daemon() {
    if [ -n "$daemon" ]; then
        kill "$daemon" 2>/dev/null || true
        wait "$daemon" 2>/dev/null || true
    fi
    rm -rf "$work"
}
trap stop_daemon EXIT

mkfifo "$work/ready"
"$tarnmodem" --journal "$work/journal.jsonl" --log "$work/log.jsonl" >"$work/ready" &
daemon=$!
if ! timeout 10 head -n1 "$work/ready" | grep -qx ready; then
    echo "demo: tarnmodem did not start" >&2
    exit 1
fi
echo "tarnmodem is running (pid $daemon)"

run() {
    echo
    echo "\$ vexilctl $*"
    local status=0
    "$vexilctl" "$@" >"$work/output" 2>&1 || status=$?
    cat "$work/output"
    # Some results deliberately end without a line end; keep the status on a line of its own.
    if [ -n "$(tail -c1 "$work/output")" ]; then echo; fi
    echo "[exit status $status]"
}

run state modem
run setlog modem off
run state modem
run setlog modem stor
run getallvexilstate
run setvexil wcn off
run state wcn
run getcpcapacity modem internal
run setfilesize modem 128
run getfilesize modem
run getcpreset modem
run getcprunstate wcn
run getstor
run getlogpath
run getiolimit modem

echo
echo "Calls the daemon received:"
sed 's/^/  /' "$work/journal.jsonl"
