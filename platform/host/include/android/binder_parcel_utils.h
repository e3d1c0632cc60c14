// Host stand-in for the Android 13 binder NDK C++ parcel helpers (namespace ndk) that generated
// code uses for strings and records.
#pragma once

#include <android/binder_auto_utils.h>
#include <android/binder_parcel.h>

#include <cstdint>
#include <optional>
#include <string>

namespace ndk {

// Sizes a std::string for AParcel_readString; refuses a null string.
static inline bool AParcel_stdStringAllocator(void* stringData, int32_t length, char** buffer) {
    if (length <= 0) return false;
    std::string* str = static_cast<std::string*>(stringData);
    str->resize(static_cast<size_t>(length) - 1);
    *buffer = &(*str)[0];
    return true;
}

static inline bool AParcel_nullableStdStringAllocator(void* stringData, int32_t length,
                                                      char** buffer) {
    std::optional<std::string>* str = static_cast<std::optional<std::string>*>(stringData);
    if (length < 0) {
        *str = std::nullopt;
        return true;
    }
    *str = std::optional<std::string>(std::string{});
    return AParcel_stdStringAllocator(&**str, length, buffer);
}

static inline binder_status_t AParcel_writeString(AParcel* parcel, const std::string& str) {
    if (str.size() > INT32_MAX) return STATUS_BAD_VALUE;
    return AParcel_writeString(parcel, str.c_str(), static_cast<int32_t>(str.size()));
}

static inline binder_status_t AParcel_readString(const AParcel* parcel, std::string* str) {
    void* stringData = static_cast<void*>(str);
    return AParcel_readString(parcel, stringData, AParcel_stdStringAllocator);
}

static inline binder_status_t AParcel_writeString(AParcel* parcel,
                                                  const std::optional<std::string>& str) {
    if (!str) return AParcel_writeString(parcel, nullptr, -1);
    return AParcel_writeString(parcel, *str);
}

static inline binder_status_t AParcel_readString(const AParcel* parcel,
                                                 std::optional<std::string>* str) {
    void* stringData = static_cast<void*>(str);
    return AParcel_readString(parcel, stringData, AParcel_nullableStdStringAllocator);
}

// A non-null record: a presence marker, then the record itself.
template <typename P>
static inline binder_status_t AParcel_writeParcelable(AParcel* parcel, const P& p) {
    binder_status_t status = AParcel_writeInt32(parcel, 1);
    if (status != STATUS_OK) {
        return status;
    }
    return p.writeToParcel(parcel);
}

template <typename P>
static inline binder_status_t AParcel_readParcelable(const AParcel* parcel, P* p) {
    int32_t null;
    binder_status_t status = AParcel_readInt32(parcel, &null);
    if (status != STATUS_OK) {
        return status;
    }
    if (null == 0) {
        return STATUS_UNEXPECTED_NULL;
    }
    return p->readFromParcel(parcel);
}

}  // namespace ndk
