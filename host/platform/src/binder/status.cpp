// AStatus_*: the binder call status, with the device's factory and getter rules.
#include <algorithm>
#include <iterator>

#include "host/platform/src/binder/status_impl.h"

namespace host::binder {

namespace {

// The status and exception codes the device knows; any other is pruned.
constexpr binder_status_t kKnownStatuses[] = {
    STATUS_OK,
    STATUS_UNKNOWN_ERROR,
    STATUS_NO_MEMORY,
    STATUS_INVALID_OPERATION,
    STATUS_BAD_VALUE,
    STATUS_BAD_TYPE,
    STATUS_NAME_NOT_FOUND,
    STATUS_PERMISSION_DENIED,
    STATUS_NO_INIT,
    STATUS_ALREADY_EXISTS,
    STATUS_DEAD_OBJECT,
    STATUS_FAILED_TRANSACTION,
    STATUS_BAD_INDEX,
    STATUS_NOT_ENOUGH_DATA,
    STATUS_WOULD_BLOCK,
    STATUS_TIMED_OUT,
    STATUS_UNKNOWN_TRANSACTION,
    STATUS_FDS_NOT_ALLOWED,
    STATUS_UNEXPECTED_NULL,
};
constexpr binder_exception_t kKnownExceptions[] = {
    EX_NONE,
    EX_SECURITY,
    EX_BAD_PARCELABLE,
    EX_ILLEGAL_ARGUMENT,
    EX_NULL_POINTER,
    EX_ILLEGAL_STATE,
    EX_NETWORK_MAIN_THREAD,
    EX_UNSUPPORTED_OPERATION,
    EX_SERVICE_SPECIFIC,
    EX_PARCELABLE,
    EX_TRANSACTION_FAILED,
};

template <typename T, size_t N>
bool known(const T (&codes)[N], T code) {
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

AStatus* ok_status() {
    static AStatus ok;
    return &ok;
}

}  // namespace

binder_status_t prune_status(binder_status_t status) {
    return known(kKnownStatuses, status) ? status : STATUS_UNKNOWN_ERROR;
}

binder_exception_t prune_exception(binder_exception_t exception) {
    return known(kKnownExceptions, exception) ? exception : EX_TRANSACTION_FAILED;
}

AStatus* make_status(binder_exception_t exception, int32_t error_code, const char* message) {
    exception = prune_exception(exception);
    if (exception == EX_NONE) return ok_status();
    AStatus* status = new AStatus;
    status->exception = exception;
    if (exception == EX_TRANSACTION_FAILED) {
        status->error_code =
            error_code == STATUS_OK ? STATUS_FAILED_TRANSACTION : prune_status(error_code);
    } else if (exception == EX_SERVICE_SPECIFIC) {
        status->error_code = error_code;
    }
    if (message != nullptr) status->message = message;
    return status;
}

}  // namespace host::binder

using host::binder::make_status;

AStatus* AStatus_newOk() {
    return make_status(EX_NONE, 0, nullptr);
}

AStatus* AStatus_fromExceptionCode(binder_exception_t exception) {
    return make_status(exception, 0, nullptr);
}

AStatus* AStatus_fromServiceSpecificError(int32_t serviceSpecific) {
    return make_status(EX_SERVICE_SPECIFIC, serviceSpecific, nullptr);
}

AStatus* AStatus_fromStatus(binder_status_t status) {
    status = host::binder::prune_status(status);
    if (status == STATUS_OK) return AStatus_newOk();
    return make_status(EX_TRANSACTION_FAILED, status, nullptr);
}

bool AStatus_isOk(const AStatus* status) {
    return status->exception == EX_NONE;
}

binder_exception_t AStatus_getExceptionCode(const AStatus* status) {
    return status->exception;
}

binder_status_t AStatus_getStatus(const AStatus* status) {
    return status->exception == EX_TRANSACTION_FAILED ? status->error_code : STATUS_OK;
}

void AStatus_delete(AStatus* status) {
    if (status != AStatus_newOk()) delete status;
}
