// The AParcel object: a byte buffer with one read/write position, in the host wire encoding.
//
// Encoding: every value takes a multiple of 4 bytes, little-endian as the host stores it.
// int32/uint32/bool/byte/char: 4 bytes; int64/uint64/double: 8; float: 4. A string is its int32
// byte length (-1 for null) followed by the bytes and a NUL, padded to 4.
#pragma once

#include <android/binder_parcel.h>
#include <stddef.h>
#include <stdint.h>

#include <vector>

namespace host::binder {

// Upper bound of one parcel; writes beyond it fail with STATUS_NO_MEMORY.
constexpr size_t kMaxParcelBytes = 1 << 20;

// AParcel_stringAllocator for a std::string; refuses a null string.
bool std_string_allocator(void* string, int32_t length, char** buffer);

}  // namespace host::binder

struct AParcel {
    std::vector<uint8_t> data;
    // Reads advance the position of a const parcel, as on the device.
    mutable size_t position = 0;
};
