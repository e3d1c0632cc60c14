// Host stand-in for the Android 13 binder NDK parcel API: the reads and writes generated code
// and the host transport use.
#pragma once

#include <android/binder_status.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/cdefs.h>

struct AIBinder;
typedef struct AIBinder AIBinder;

__BEGIN_DECLS

struct AParcel;
typedef struct AParcel AParcel;

void AParcel_delete(AParcel* parcel) __INTRODUCED_IN(29);

AParcel* AParcel_create() __INTRODUCED_IN(31);

binder_status_t AParcel_setDataPosition(const AParcel* parcel, int32_t position) __INTRODUCED_IN(29);
int32_t AParcel_getDataPosition(const AParcel* parcel) __INTRODUCED_IN(29);
int32_t AParcel_getDataSize(const AParcel* parcel) __INTRODUCED_IN(31);
binder_status_t AParcel_appendFrom(const AParcel* from, AParcel* to, int32_t start, int32_t size)
    __INTRODUCED_IN(31);

// Called with the string's length plus one (room for the terminator), or -1 for a null string.
typedef bool (*AParcel_stringAllocator)(void* stringData, int32_t length, char** buffer);

binder_status_t AParcel_writeStrongBinder(AParcel* parcel, AIBinder* binder) __INTRODUCED_IN(29);
binder_status_t AParcel_readStrongBinder(const AParcel* parcel, AIBinder** binder)
    __INTRODUCED_IN(29);

binder_status_t AParcel_writeStatusHeader(AParcel* parcel, const AStatus* status)
    __INTRODUCED_IN(29);
binder_status_t AParcel_readStatusHeader(const AParcel* parcel, AStatus** status)
    __INTRODUCED_IN(29);

binder_status_t AParcel_writeString(AParcel* parcel, const char* string, int32_t length)
    __INTRODUCED_IN(29);
binder_status_t AParcel_readString(const AParcel* parcel, void* stringData,
                                   AParcel_stringAllocator allocator) __INTRODUCED_IN(29);

binder_status_t AParcel_writeInt32(AParcel* parcel, int32_t value) __INTRODUCED_IN(29);

binder_status_t AParcel_readInt32(const AParcel* parcel, int32_t* value) __INTRODUCED_IN(29);

__END_DECLS
