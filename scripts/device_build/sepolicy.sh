#!/usr/bin/env bash
# Device check, SELinux step: builds the vendor policy of sepolicy/ the way an Android 13 tree
# does, with that tree's system/sepolicy and a stand-in for the daemon's own policy, and runs the
# build-time policy tests that concern vendor policy.
#
#  - The whole policy (public, private, vendor, then sepolicy/ and the daemon stand-in as the
#    board's vendor policy directories) for user and userdebug: m4 with the build's flags, then
#    checkpolicy -M -c 30, which checks every neverallow rule.
#  - The vendor half alone against the public policy (public, reqd_mask, vendor, board
#    directories), as the tree makes vendor_sepolicy.cil: vendor policy may name public types only.
#  - A copy of sepolicy/ with one rule that breaks a neverallow must fail to build.
#  - sepolicy_tests.py and treble_sepolicy_tests.py (coredomain, /data types, violator
#    attributes) on each built policy, with libsepolwrap built from the tree against Debian's
#    libsepol; the tree's checkfc on the vendor file_contexts and service_contexts, as the
#    build's contexts tests run it (each type has the attributes its kind needs).
#  - The names the tool's code uses, tied to the policy (code_policy.py): the service instance it
#    asks for is one service_contexts labels, the socket it opens one the policy lets it connect.
#
# Usage: [AOSP_SRC=DIR] bash scripts/device_build/sepolicy.sh [SEPOLICY_DIR]
# AOSP_SRC defaults to ../shared/aosp-a13 beside the project; scratch files go to
# build/device/sepolicy/. Exits 1 when anything fails, 2 when the tree is missing.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
tree=${AOSP_SRC:-$root/../shared/aosp-a13}
AOSP_SRC=$(cd "$tree" 2>/dev/null && pwd) || {
    echo "device_build/sepolicy: no Android tree at $tree" >&2
    exit 2
}
policy_dir=$(cd "${1:-$root/sepolicy}" && pwd)
sep=system/sepolicy
[ -d "$AOSP_SRC/$sep/public" ] || {
    echo "device_build/sepolicy: $AOSP_SRC has no $sep" >&2
    exit 2
}
work=$root/build/device/sepolicy
mkdir -p "$work"
cd "$AOSP_SRC"

# Everything the step reads; a policy that passed is not built again until one of them changes.
# The names the tool's code uses against the policy the device loads (run every time: the code
# changes more often than the policy).
code_policy() {
    ROOT=$root python3 "$root/scripts/device_build/code_policy.py" "$work/user/policy" \
        "$work/vendor_service_contexts" "$work/tests" tarnmodem vexilserver SOCK_STREAM
}
stamp=$( (cat "$root/scripts/device_build/sepolicy.sh" &&
    find "$policy_dir" "$sep" -type f -print0 | LC_ALL=C sort -z | xargs -0 sha1sum) |
    sha1sum | cut -c1-40)
if [ "$(cat "$work/passed" 2>/dev/null)" = "$stamp" ]; then
    echo "device_build/sepolicy: policy unchanged since it last passed"
    code_policy
    exit
fi
rm -f "$work/passed"

say() { echo "device_build/sepolicy: $*"; }
fail() {
    echo "device_build/sepolicy: FAIL: $*" >&2
    status=1
}
status=0

# The daemon's own policy, which is not part of this project: what sepolicy/ relies on it to
# declare. tarnmodem is started by init from /vendor/bin, serves the log-control service and
# listens on the abstract stream socket vexilserver (code_policy above); its data lives under
# /data/wyrm.
daemon=$work/tarnmodem
mkdir -p "$daemon"
cat >"$daemon/tarnmodem.te" <<'EOF'
type tarnmodem, domain;
type tarnmodem_exec, exec_type, vendor_file_type, file_type;
type tarnmodem_data_file, file_type, data_file_type;
init_daemon_domain(tarnmodem)
hal_server_domain(tarnmodem, hal_vexil_svc)
EOF
echo '/vendor/bin/tarnmodem    u:object_r:tarnmodem_exec:s0' >"$daemon/file_contexts"

# The order in which the tree concatenates a policy's files; *.te of every directory in turn.
order=(security_classes initial_sids access_vectors global_macros neverallow_macros mls_macros
    mls_decl mls policy_capabilities te_macros attributes ioctl_defines ioctl_macros '*.te'
    roles_decl roles users initial_sid_contexts fs_use genfs_contexts port_contexts)
# A tree checked out without symbolic links holds a link's target path as the file's text
# (reqd_mask/security_classes reads "../private/security_classes"): follow it.
link_target() {
    local target
    target=$(head -c 256 "$1")
    if [[ $target =~ ^\.\./[A-Za-z0-9_./]+$ && -f $(dirname "$1")/$target ]]; then
        echo "$(dirname "$1")/$target"
    else
        echo "$1"
    fi
}
policy_files() {
    local name dir
    for name in "${order[@]}"; do
        for dir in "$@"; do
            if [ "$name" = '*.te' ]; then
                compgen -G "$dir/*.te" | LC_ALL=C sort || true
            elif [ -f "$dir/$name" ]; then
                link_target "$dir/$name"
            fi
        done
    done
}
m4_flags=(--fatal-warnings -D mls_num_sens=1 -D mls_num_cats=1024 -D target_arch=arm64
    -D target_with_asan=false -D target_with_dexpreopt=true -D target_with_native_coverage=false
    -D target_full_treble=true -D target_compatible_property=true
    -D target_treble_sysprop_neverallow=true -D target_enforce_sysprop_owner=true
    -D target_exclude_build_test=false -D target_requires_insecure_execmem_for_swiftshader=false
    -D target_enforce_debugfs_restriction=true -D target_recovery=false)

# conf OUT VARIANT DIR...: the policy's files of DIR... expanded into OUT/policy.conf.
conf() {
    local out=$1 variant=$2
    shift 2
    mkdir -p "$out"
    local -a files
    mapfile -t files < <(policy_files "$@")
    m4 "${m4_flags[@]}" -D target_build_variant="$variant" -s "${files[@]}" >"$out/policy.conf"
}
# checkpolicy OUT FLAGS...: compiles OUT/policy.conf; its messages go to OUT/log.
compile() {
    local out=$1
    shift
    checkpolicy "$@" "$out/policy.conf" >"$out/log" 2>&1
}
indent() { sed 's/^/  /' >&2; }
show_log() { grep -v '^checkpolicy:  \(loading\|policy configuration loaded\|writing\)' "$1" | indent || true; }

# The build-time policy tests read file_contexts and the compiled policy through libsepolwrap.
tests=$work/tests
mkdir -p "$tests" "$work/include/android-base"
cp $sep/tests/*.py "$tests/"
# sepol_wrap.cpp includes two libbase headers it does not use.
touch "$work/include/android-base/file.h" "$work/include/android-base/strings.h"
if [ ! -f "$tests/libsepolwrap.so" ] || [ $sep/tests/sepol_wrap.cpp -nt "$tests/libsepolwrap.so" ]; then
    g++ -std=gnu++17 -O1 -shared -fPIC -include memory -I$sep/tests/include -I"$work/include" \
        -o "$tests/libsepolwrap.so" $sep/tests/sepol_wrap.cpp -l:libsepol.a
fi
m4 --fatal-warnings -s $sep/private/file_contexts >"$work/plat_file_contexts"
m4 --fatal-warnings -s $sep/vendor/file_contexts "$policy_dir/file_contexts" \
    "$daemon/file_contexts" >"$work/vendor_file_contexts"
m4 --fatal-warnings -s "$policy_dir/service_contexts" $sep/reqd_mask/service_contexts \
    >"$work/vendor_service_contexts"
# The tree's checkfc, against Debian's libselinux, which is built without Android's reader of
# service_contexts: its file_contexts reader takes those lines (a name, a context) instead.
if [ ! -x "$tests/checkfc" ] || [ $sep/tools/checkfc.c -nt "$tests/checkfc" ]; then
    printf '#include <selinux/label.h>\n#undef SELABEL_CTX_ANDROID_SERVICE\n#define SELABEL_CTX_ANDROID_SERVICE SELABEL_CTX_FILE\n' \
        >"$tests/checkfc_service.h"
    gcc -O1 -include "$tests/checkfc_service.h" -o "$tests/checkfc" $sep/tools/checkfc.c -lselinux -l:libsepol.a
fi
fc=(-f "$work/plat_file_contexts" -f "$work/vendor_file_contexts")
# The tests match every file_contexts path against prefixes by compiling each of its leading
# parts as a regular expression, most of them several times over and many invalid: run them with
# re.compile remembering its answers, which takes their time from about 20 s to a few.
cat >"$tests/run.py" <<'EOF'
import re, runpy, sys

compiled = {}
compile_uncached = re.compile

def compile_cached(pattern, flags=0):
    key = (pattern, flags)
    if key not in compiled:
        try:
            compiled[key] = compile_uncached(pattern, flags)
        except re.error as error:
            compiled[key] = error
    if isinstance(compiled[key], re.error):
        raise compiled[key]
    return compiled[key]

re.compile = compile_cached
sys.argv = sys.argv[1:]
runpy.run_path(sys.argv[0], run_name="__main__")
EOF

# check_variant VARIANT: the whole policy of one build variant: the neverallow check; then the
# policy the device loads, compiled as the tree compiles precompiled_sepolicy (through CIL,
# neverallow rules left to the check), and the policy tests on it.
check_variant() {
    local variant=$1 out=$work/$1 result
    conf "$out" "$variant" $sep/public $sep/private $sep/vendor "$policy_dir" "$daemon"
    if compile "$out" -M -c 30 -o "$out/checked"; then
        say "$variant policy builds, neverallow rules hold"
    else
        fail "$variant policy breaks neverallow rules:"
        show_log "$out/log"
    fi
    rm -f "$out/policy"
    if ! { compile "$out" -C -M -c 30 -o "$out/policy.cil" &&
        cat $sep/private/technical_debt.cil >>"$out/policy.cil" &&
        secilc -m -M true -G -N -c 30 -o "$out/policy" -f /dev/null "$out/policy.cil" \
            >>"$out/log" 2>&1; }; then
        fail "$variant policy does not compile:"
        show_log "$out/log"
        return 1
    fi
    # The build's vendor_file_contexts_test and vendor_service_contexts_test.
    if result=$("$tests/checkfc" "$out/policy" "$work/vendor_file_contexts" 2>&1 &&
        "$tests/checkfc" -s "$out/policy" "$work/vendor_service_contexts" 2>&1); then
        say "$variant: checkfc passes file_contexts and service_contexts"
    else
        fail "$variant: checkfc: $(head -1 <<<"$result") (a type in file_contexts needs file_type," \
            "dev_type or fs_type, one in service_contexts service_manager_type: give it the" \
            "attribute where it is declared)"
        indent <<<"$result"
    fi
    if result=$(python3 "$tests/run.py" "$tests/sepolicy_tests.py" "${fc[@]}" -p "$out/policy" 2>&1); then
        say "$variant: sepolicy_tests pass"
    else
        fail "$variant: sepolicy_tests:"
        indent <<<"$result"
    fi
    # TrebleCompatMapping needs the previous releases' policies (prebuilts/api), which a vendor
    # policy does not change.
    if result=$(python3 "$tests/run.py" "$tests/treble_sepolicy_tests.py" "${fc[@]}" -p "$out/policy" \
        -t CoredomainViolations -t CoreDatatypeViolations -t ViolatorAttributes 2>&1); then
        say "$variant: treble_sepolicy_tests pass"
    else
        fail "$variant: treble_sepolicy_tests:"
        indent <<<"$result"
    fi
    return $status
}
# The two variants in parallel, each reporting into a file; the other checks meanwhile.
variants=(user userdebug)
pids=()
for variant in "${variants[@]}"; do
    check_variant "$variant" >"$work/$variant.report" 2>"$work/$variant.errors" &
    pids+=($!)
done
trap 'kill "${pids[@]}" 2>/dev/null || true' EXIT

out=$work/vendor
conf "$out" user $sep/public $sep/reqd_mask $sep/vendor "$policy_dir" "$daemon"
if compile "$out" -C -M -c 30 -o "$out/policy.cil"; then
    say "vendor policy builds against the public policy alone"
else
    fail "vendor policy does not build against the public policy alone:"
    show_log "$out/log"
fi

# A rule that breaks a neverallow of the platform must stop the build.
rm -rf "$work/violating" && cp -r "$policy_dir" "$work/violating"
echo 'allow vexilctl self:capability sys_ptrace;' >>"$work/violating/vexilctl.te"
out=$work/violating.out
conf "$out" user $sep/public $sep/private $sep/vendor "$work/violating" "$daemon"
if compile "$out" -M -c 30 -o "$out/checked"; then
    fail "a policy that breaks a neverallow rule builds"
elif ! grep -q 'neverallow on line .* violated by allow vexilctl vexilctl:capability { sys_ptrace }' \
    "$out/log"; then
    fail "a policy that breaks a neverallow rule fails for another reason:"
    show_log "$out/log"
else
    say "a rule that breaks a neverallow stops the build"
fi

for i in "${!variants[@]}"; do
    wait "${pids[$i]}" || status=1
    cat "$work/${variants[$i]}.report"
    cat "$work/${variants[$i]}.errors" >&2
done
pids=()

[ $status -eq 0 ] && say "policy ok" && echo "$stamp" >"$work/passed"
if [ -f "$work/user/policy" ]; then
    code_policy || status=1
fi
exit $status
