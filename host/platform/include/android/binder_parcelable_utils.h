// Host stand-in for the Android 13 binder NDK parcelable helpers.
#pragma once

#include <android/binder_parcel.h>

#include <cstdint>

namespace ndk {

typedef int32_t parcelable_stability_t;
enum {
    STABILITY_LOCAL,
    STABILITY_VINTF,
};

}  // namespace ndk
