// The AStatus object behind the binder status API.
#pragma once

#include <android/binder_status.h>

#include <string>

struct AStatus {
    binder_exception_t exception = EX_NONE;
    // The transaction error for EX_TRANSACTION_FAILED, the service's own code for
    // EX_SERVICE_SPECIFIC, 0 otherwise.
    int32_t error_code = 0;
    std::string message;
};

namespace host::binder {

// A known status code as it is, anything else as STATUS_UNKNOWN_ERROR.
binder_status_t prune_status(binder_status_t status);

// A known exception code as it is, anything else as EX_TRANSACTION_FAILED.
binder_exception_t prune_exception(binder_exception_t exception);

// A new status for exception/error_code/message, pruned and shaped as the factories make them.
AStatus* make_status(binder_exception_t exception, int32_t error_code, const char* message);

}  // namespace host::binder
