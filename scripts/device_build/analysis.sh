# Sourced by the device check's steps. The build actions they replay (build/device/actions.json)
# are Soong's analysis of the project as the soong step found it: its Android.bp files, the list
# of its files (Soong expands the source globs), the Go test and the Android tree. The soong step
# records that beside the actions; a step run alone refuses actions made from anything else.

# A digest of what the analysis depends on (the files the Go test reads: not build/, .git,
# node_modules or Python's caches).
analysis_inputs() {
    local skip=(\( -path ./build -o -path ./.git -o -name node_modules -o -name __pycache__ \) -prune -o)
    (
        cd "$ROOT"
        find . "${skip[@]}" -type f -print | LC_ALL=C sort
        find . "${skip[@]}" -name Android.bp -print0 | LC_ALL=C sort -z | xargs -0 sha1sum
        sha1sum scripts/device_build/*_test.go
        echo "$AOSP_SRC"
    ) | sha1sum | cut -c1-40
}

# require_analysis STEP: exits unless actions.json is the analysis of the project as it is now.
require_analysis() {
    local why=
    if [ ! -f "$SCRATCH/actions.json" ] || [ ! -f "$SCRATCH/actions.inputs" ]; then
        why="there is no Soong analysis (build/device/actions.json)"
    elif [ "$(cat "$SCRATCH/actions.inputs")" != "$(analysis_inputs)" ]; then
        why="build/device/actions.json is Soong's analysis of older Android.bp files or another list of sources"
    fi
    if [ -n "$why" ]; then
        echo "$1: $why: run the soong step first (bash scripts/check_device_build.sh soong $1)" >&2
        exit 1
    fi
}
