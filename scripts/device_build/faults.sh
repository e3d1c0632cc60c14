#!/usr/bin/env bash
# Proves that the device check fails where it must: each fault below is made in the working tree,
# the steps that must catch it run, and the tree is restored (also when the script is stopped).
# Prints, per fault, the first error line the check gave; fails when a fault passes. Then the
# whole check runs on the restored tree, which must pass. Uses build/device/ as the check does.
#
#   bash scripts/device_build/faults.sh [FAULT...]     (default: all, in the order below)
set -euo pipefail
cd "$(dirname "$0")/../.."
ROOT=$PWD
backup=$ROOT/build/device/faults
rm -rf "$backup" && mkdir -p "$backup/files"
created=()

save() { # FILE...: kept in the backup before the fault changes it
    local file
    for file in "$@"; do
        mkdir -p "$backup/files/$(dirname "$file")"
        cp "$file" "$backup/files/$file"
    done
}
restore() { # as a new write: ninja must see the file newer than what the fault built from it
    (cd "$backup/files" && find . -type f) | while read -r file; do
        cp "$backup/files/$file" "$ROOT/$file"
    done
    rm -rf "$backup/files" && mkdir -p "$backup/files"
    [ ${#created[@]} -eq 0 ] || rm -rf "${created[@]}"
    created=()
}
trap restore EXIT

check() { bash scripts/check_device_build.sh "$@"; }

# Each fault: a function that makes it and runs the steps that must fail.
stability() { # the service package's stability changed
    save service/aidl/Android.bp
    sed -i '/stability: "vintf",/d' service/aidl/Android.bp
    check soong aidl_compile
}
go_test_renamed() {
    save scripts/device_build/vexilctl_blueprint_test.go
    sed -i 's/^func TestVexilctlVendorTree(/func TestVexilctlVendorTreeRenamed(/' \
        scripts/device_build/vexilctl_blueprint_test.go
    check soong
}
module_unseen() { # a module missing from what check_linked.py sees
    check soong >/dev/null 2>&1
    python3 - "$ROOT/build/device/actions.json" <<'EOF'
import json, sys
data = json.load(open(sys.argv[1]))
data["Actions"] = [a for a in data["Actions"] if not (a["Module"] == "vexilctl_tool_fuzzer" and a["Rule"] == "ld")]
json.dump(data, open(sys.argv[1], "w"))
EOF
    check link
}
link_alone_after_edit() { # an Android.bp edit, then the link step alone
    check soong >/dev/null 2>&1
    save Android.bp
    sed -i 's/        "-Werror",/        "-Werror",\n        "-DVEXILCTL_EDITED",/' Android.bp
    check link
}
fuzzer_host_only_call() { # a fuzzer that calls a function only the host build defines
    save tests/fuzz/tool_fuzzer.cpp
    python3 - tests/fuzz/tool_fuzzer.cpp <<'EOF'
import sys
path = sys.argv[1]
text = open(path).read()
entry = 'extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {\n'
text = text.replace(entry, '#include <vector>\nnamespace host::binder {\n'
                    'bool send_frame(int fd, uint32_t word1, uint32_t word2, const std::vector<uint8_t>& payload);\n'
                    '}\n' + entry + '    host::binder::send_frame(-1, 0, 0, {});\n')
open(path, "w").write(text)
EOF
    check soong clang_compile link
}
golden_subdirectory() {
    mkdir -p tests/golden/sub
    created+=("$ROOT/tests/golden/sub")
    echo "a golden text" >tests/golden/sub/extra.txt
    check soong
}
file_contexts_type() { # a type in file_contexts without the attributes checkfc wants
    save sepolicy/vexilctl.te sepolicy/file_contexts
    echo 'type vexilctl_tool;' >>sepolicy/vexilctl.te
    echo '/vendor/bin/vexilctl_tool       u:object_r:vexilctl_tool:s0' >>sepolicy/file_contexts
    check sepolicy
}
instance_renamed() { # the service instance renamed in the code only
    save service/Request.cpp
    sed -i 's|descriptor) + "/default"|descriptor) + "/vexil"|' service/Request.cpp
    check sepolicy
}
socket_type_changed() { # the socket type changed in the code only
    save server/VexilserverRequest.cpp
    sed -i 's/ANDROID_SOCKET_NAMESPACE_ABSTRACT, SOCK_STREAM)/ANDROID_SOCKET_NAMESPACE_ABSTRACT, SOCK_SEQPACKET)/' \
        server/VexilserverRequest.cpp
    check sepolicy
}
missing_dependency() { # a library the tree does not have
    save Android.bp
    sed -i 's/        "libutils",/        "libutils",\n        "libvexilnone",/' Android.bp
    check soong
}
binder_function_missing() { # the binder transport without a function the device build calls
    save host/platform/src/binder/ibinder.cpp
    python3 - host/platform/src/binder/ibinder.cpp <<'EOF'
import re, sys
path = sys.argv[1]
text = open(path).read()
open(path, "w").write(re.sub(r"\nvoid AIBinder_Class_setHandleShellCommand\(.*?\n}\n", "\n", text,
                             flags=re.S))
EOF
    check soong runtime device_tests
}

faults=("$@")
[ ${#faults[@]} -gt 0 ] || faults=(stability go_test_renamed module_unseen link_alone_after_edit
    fuzzer_host_only_call golden_subdirectory file_contexts_type instance_renamed socket_type_changed
    missing_dependency binder_function_missing)
status=0
table=()
for fault in "${faults[@]}"; do
    start=$SECONDS
    if "$fault" >"$backup/$fault.out" 2>"$backup/$fault.err"; then
        line="PASSED: the check did not catch it"
        status=1
    else
        line=$(grep -v '^debconf:' "$backup/$fault.err" | head -1)
    fi
    restore
    table+=("$fault ($((SECONDS - start)) s): $line")
    echo "faults: ${table[-1]}"
done
start=$SECONDS
if check >"$backup/unchanged.out" 2>&1; then
    echo "faults: the restored tree passes the whole check ($((SECONDS - start)) s)"
else
    echo "faults: the restored tree FAILS the check (build/device/faults/unchanged.out)" >&2
    status=1
fi
exit $status
