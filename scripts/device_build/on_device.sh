#!/usr/bin/env bash
# Runs an arm64 program of the device image (build/device/image, image.py) under qemu-aarch64 in
# a mount namespace of its own (bubblewrap) where the image's /system, /vendor, /apex and
# /linkerconfig are at their device paths: the program's loader is the image's linker64, which
# reads the image's linker configuration and loads the image's libraries. Everything else is the
# caller's: the working directory, /proc, /tmp, the network (abstract sockets), standard streams.
#
#   on_device.sh [--data] [--logdw SOCKET] PROGRAM [ARG...]
#
# --data      also mounts the image's /data/nativetest64 (the unit tests and their data)
# --logdw S   mounts the datagram socket S at /dev/socket/logdw, where liblog writes
# PROGRAM is a device path (/vendor/bin/vexilctl). Exits with the program's status.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
image=${DEVICE_IMAGE:-$here/../../build/device/image}
own=(system vendor apex linkerconfig)
binds=()
for entry in /*; do # the caller's root, entry by entry, so that the image's mount points are new
    name=${entry#/}
    case " ${own[*]} dev proc " in *" $name "*) continue ;; esac
    binds+=(--bind "$entry" "$entry")
done
binds+=(--dev /dev --proc /proc)
for name in "${own[@]}"; do binds+=(--ro-bind "$image/$name" "/$name"); done
while [ $# -gt 0 ]; do
    case $1 in
    --data) binds+=(--bind "$image/data/nativetest64" /data/nativetest64) ;;
    --logdw) binds+=(--bind "$2" /dev/socket/logdw) && shift ;;
    *) break ;;
    esac
    shift
done
exec bwrap "${binds[@]}" --chdir "$PWD" --die-with-parent qemu-aarch64 "$@"
