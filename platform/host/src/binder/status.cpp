// AStatus_*: the binder call status, with the device's factory, getter and description rules.
#include <stdlib.h>
#include <string.h>

#include <string>

#include "status_impl.h"

namespace host::binder {

namespace {

#define HOST_NAME_CASE(prefix, name) \
    case prefix##name:               \
        return #name

const char* status_name(binder_status_t status) {
    switch (status) {
        HOST_NAME_CASE(STATUS_, OK);
        HOST_NAME_CASE(STATUS_, UNKNOWN_ERROR);
        HOST_NAME_CASE(STATUS_, NO_MEMORY);
        HOST_NAME_CASE(STATUS_, INVALID_OPERATION);
        HOST_NAME_CASE(STATUS_, BAD_VALUE);
        HOST_NAME_CASE(STATUS_, BAD_TYPE);
        HOST_NAME_CASE(STATUS_, NAME_NOT_FOUND);
        HOST_NAME_CASE(STATUS_, PERMISSION_DENIED);
        HOST_NAME_CASE(STATUS_, NO_INIT);
        HOST_NAME_CASE(STATUS_, ALREADY_EXISTS);
        HOST_NAME_CASE(STATUS_, DEAD_OBJECT);
        HOST_NAME_CASE(STATUS_, FAILED_TRANSACTION);
        HOST_NAME_CASE(STATUS_, BAD_INDEX);
        HOST_NAME_CASE(STATUS_, NOT_ENOUGH_DATA);
        HOST_NAME_CASE(STATUS_, WOULD_BLOCK);
        HOST_NAME_CASE(STATUS_, TIMED_OUT);
        HOST_NAME_CASE(STATUS_, UNKNOWN_TRANSACTION);
        HOST_NAME_CASE(STATUS_, FDS_NOT_ALLOWED);
        HOST_NAME_CASE(STATUS_, UNEXPECTED_NULL);
        default:
            return nullptr;
    }
}

const char* exception_name(binder_exception_t exception) {
    switch (exception) {
        HOST_NAME_CASE(, EX_NONE);
        HOST_NAME_CASE(, EX_SECURITY);
        HOST_NAME_CASE(, EX_BAD_PARCELABLE);
        HOST_NAME_CASE(, EX_ILLEGAL_ARGUMENT);
        HOST_NAME_CASE(, EX_NULL_POINTER);
        HOST_NAME_CASE(, EX_ILLEGAL_STATE);
        HOST_NAME_CASE(, EX_NETWORK_MAIN_THREAD);
        HOST_NAME_CASE(, EX_UNSUPPORTED_OPERATION);
        HOST_NAME_CASE(, EX_SERVICE_SPECIFIC);
        HOST_NAME_CASE(, EX_PARCELABLE);
        HOST_NAME_CASE(, EX_TRANSACTION_FAILED);
        default:
            return nullptr;
    }
}

#undef HOST_NAME_CASE

std::string status_to_string(binder_status_t status) {
    const char* name = status_name(status);
    if (name != nullptr) return name;
    return std::to_string(status) + " (" + strerror(-status) + ")";
}

AStatus* ok_status() {
    static AStatus ok;
    return &ok;
}

}  // namespace

binder_status_t prune_status(binder_status_t status) {
    return status_name(status) != nullptr ? status : STATUS_UNKNOWN_ERROR;
}

binder_exception_t prune_exception(binder_exception_t exception) {
    return exception_name(exception) != nullptr ? exception : EX_TRANSACTION_FAILED;
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

AStatus* AStatus_fromExceptionCodeWithMessage(binder_exception_t exception, const char* message) {
    return make_status(exception, 0, message);
}

AStatus* AStatus_fromServiceSpecificError(int32_t serviceSpecific) {
    return make_status(EX_SERVICE_SPECIFIC, serviceSpecific, nullptr);
}

AStatus* AStatus_fromServiceSpecificErrorWithMessage(int32_t serviceSpecific, const char* message) {
    return make_status(EX_SERVICE_SPECIFIC, serviceSpecific, message);
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

int32_t AStatus_getServiceSpecificError(const AStatus* status) {
    return status->exception == EX_SERVICE_SPECIFIC ? status->error_code : 0;
}

binder_status_t AStatus_getStatus(const AStatus* status) {
    return status->exception == EX_TRANSACTION_FAILED ? status->error_code : STATUS_OK;
}

const char* AStatus_getMessage(const AStatus* status) {
    return status->message.c_str();
}

const char* AStatus_getDescription(const AStatus* status) {
    std::string text;
    if (status->exception == EX_NONE) {
        text = "No error";
    } else {
        const char* name = host::binder::exception_name(status->exception);
        text = "Status(" + std::to_string(status->exception) + ", " +
               (name != nullptr ? std::string(name) : std::to_string(status->exception)) + "): '";
        if (status->exception == EX_SERVICE_SPECIFIC) {
            text += std::to_string(status->error_code) + ": ";
        } else if (status->exception == EX_TRANSACTION_FAILED) {
            text += host::binder::status_to_string(status->error_code) + ": ";
        }
        text += status->message + "'";
    }
    return strdup(text.c_str());
}

void AStatus_deleteDescription(const char* description) {
    free(const_cast<char*>(description));
}

void AStatus_delete(AStatus* status) {
    if (status != AStatus_newOk()) delete status;
}
