// Host stand-in for the Android 13 binder NDK status API (same names and declarations).
#pragma once

#include <errno.h>
#include <stdbool.h>
#include <stdint.h>
#include <sys/cdefs.h>

#ifndef __BIONIC__
#ifndef __INTRODUCED_IN
#define __INTRODUCED_IN(n)
#endif
// glibc declares a function named __assert, so the device header's macro of that name is left out.
#ifndef __ANDROID_API__
#define __ANDROID_API__ 10000
#endif
#endif

__BEGIN_DECLS

enum {
    STATUS_OK = 0,
    STATUS_UNKNOWN_ERROR = (-2147483647 - 1),
    STATUS_NO_MEMORY = -ENOMEM,
    STATUS_INVALID_OPERATION = -ENOSYS,
    STATUS_BAD_VALUE = -EINVAL,
    STATUS_BAD_TYPE = (STATUS_UNKNOWN_ERROR + 1),
    STATUS_NAME_NOT_FOUND = -ENOENT,
    STATUS_PERMISSION_DENIED = -EPERM,
    STATUS_NO_INIT = -ENODEV,
    STATUS_ALREADY_EXISTS = -EEXIST,
    STATUS_DEAD_OBJECT = -EPIPE,
    STATUS_FAILED_TRANSACTION = (STATUS_UNKNOWN_ERROR + 2),
    STATUS_BAD_INDEX = -EOVERFLOW,
    STATUS_NOT_ENOUGH_DATA = -ENODATA,
    STATUS_WOULD_BLOCK = -EWOULDBLOCK,
    STATUS_TIMED_OUT = -ETIMEDOUT,
    STATUS_UNKNOWN_TRANSACTION = -EBADMSG,
    STATUS_FDS_NOT_ALLOWED = (STATUS_UNKNOWN_ERROR + 7),
    STATUS_UNEXPECTED_NULL = (STATUS_UNKNOWN_ERROR + 8),
};

typedef int32_t binder_status_t;

enum {
    EX_NONE = 0,
    EX_SECURITY = -1,
    EX_BAD_PARCELABLE = -2,
    EX_ILLEGAL_ARGUMENT = -3,
    EX_NULL_POINTER = -4,
    EX_ILLEGAL_STATE = -5,
    EX_NETWORK_MAIN_THREAD = -6,
    EX_UNSUPPORTED_OPERATION = -7,
    EX_SERVICE_SPECIFIC = -8,
    EX_PARCELABLE = -9,
    EX_TRANSACTION_FAILED = -129,
};

typedef int32_t binder_exception_t;

struct AStatus;
typedef struct AStatus AStatus;

__attribute__((warn_unused_result)) AStatus* AStatus_newOk() __INTRODUCED_IN(29);
__attribute__((warn_unused_result)) AStatus* AStatus_fromExceptionCode(binder_exception_t exception)
    __INTRODUCED_IN(29);
__attribute__((warn_unused_result)) AStatus* AStatus_fromServiceSpecificError(int32_t serviceSpecific)
    __INTRODUCED_IN(29);
__attribute__((warn_unused_result)) AStatus* AStatus_fromStatus(binder_status_t status)
    __INTRODUCED_IN(29);
bool AStatus_isOk(const AStatus* status) __INTRODUCED_IN(29);
binder_exception_t AStatus_getExceptionCode(const AStatus* status) __INTRODUCED_IN(29);
binder_status_t AStatus_getStatus(const AStatus* status) __INTRODUCED_IN(29);
void AStatus_delete(AStatus* status) __INTRODUCED_IN(29);

__END_DECLS
