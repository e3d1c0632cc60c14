// __isOSVersionAtLeast, which clang calls for __builtin_available(android N, *): on Android the
// builtins of Android's clang prebuilts define it (LLVM's os_version_check.c), Debian's arm64
// builtins, built for glibc, do not. The device's SDK version, read once from the system
// property ro.build.version.sdk; without the property (no property area), a version from the
// future, so that every check passes as on an Android 13 device.
#include <android/api-level.h>
#include <pthread.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>
#include <sys/system_properties.h>

static int sdk_version;
static int pre_release;

static void read_versions(void) {
    char value[PROP_VALUE_MAX];
    sdk_version = __system_property_get("ro.build.version.sdk", value) > 0 ? atoi(value)
                                                                           : __ANDROID_API_FUTURE__;
    pre_release =
        __system_property_get("ro.build.version.codename", value) <= 0 || strcmp(value, "REL") != 0;
}

int32_t __isOSVersionAtLeast(int32_t major, int32_t minor, int32_t subminor) {
    (void)minor;
    (void)subminor;
    static pthread_once_t once = PTHREAD_ONCE_INIT;
    pthread_once(&once, read_versions);
    return sdk_version >= major || (pre_release && major == __ANDROID_API_FUTURE__);
}
