// AParcel_*: reads and writes of the host wire encoding (see parcel_impl.h). Every read checks
// the remaining size; nothing here trusts a length taken from the data.
#include <string.h>

#include <string>

#include "host/platform/src/binder/parcel_impl.h"
#include "host/platform/src/binder/status_impl.h"

using host::binder::kMaxParcelBytes;

namespace host::binder {

bool std_string_allocator(void* string, int32_t length, char** buffer) {
    if (length <= 0) return false;
    auto* text = static_cast<std::string*>(string);
    text->resize(static_cast<size_t>(length) - 1);
    *buffer = &(*text)[0];
    return true;
}

}  // namespace host::binder

namespace {

size_t padded(size_t size) {
    return (size + 3) & ~static_cast<size_t>(3);
}

// Makes room for `size` bytes at the position and returns where they go, or null when the
// parcel would grow beyond its limit.
uint8_t* reserve(AParcel* parcel, size_t size) {
    size_t total = padded(size);
    if (parcel->position > kMaxParcelBytes || total > kMaxParcelBytes - parcel->position) {
        return nullptr;
    }
    size_t end = parcel->position + total;
    if (parcel->data.size() < end) parcel->data.resize(end, 0);
    uint8_t* where = parcel->data.data() + parcel->position;
    memset(where + size, 0, total - size);
    parcel->position = end;
    return where;
}

// The next `size` bytes (padded) for reading, or null when the parcel holds fewer.
const uint8_t* consume(const AParcel* parcel, size_t size) {
    size_t total = padded(size);
    if (parcel->position > parcel->data.size() || total > parcel->data.size() - parcel->position) {
        return nullptr;
    }
    const uint8_t* where = parcel->data.data() + parcel->position;
    parcel->position += total;
    return where;
}

template <typename T>
binder_status_t write_value(AParcel* parcel, T value) {
    if (parcel == nullptr) return STATUS_UNEXPECTED_NULL;
    uint8_t* where = reserve(parcel, sizeof(T));
    if (where == nullptr) return STATUS_NO_MEMORY;
    memcpy(where, &value, sizeof(T));
    return STATUS_OK;
}

template <typename T>
binder_status_t read_value(const AParcel* parcel, T* value) {
    if (parcel == nullptr || value == nullptr) return STATUS_UNEXPECTED_NULL;
    const uint8_t* where = consume(parcel, sizeof(T));
    if (where == nullptr) return STATUS_NOT_ENOUGH_DATA;
    memcpy(value, where, sizeof(T));
    return STATUS_OK;
}

}  // namespace

AParcel* AParcel_create() {
    return new AParcel();
}

void AParcel_delete(AParcel* parcel) {
    delete parcel;
}

binder_status_t AParcel_setDataPosition(const AParcel* parcel, int32_t position) {
    if (position < 0) return STATUS_BAD_VALUE;
    parcel->position = static_cast<size_t>(position);
    return STATUS_OK;
}

int32_t AParcel_getDataPosition(const AParcel* parcel) {
    return static_cast<int32_t>(parcel->position);
}

int32_t AParcel_getDataSize(const AParcel* parcel) {
    return static_cast<int32_t>(parcel->data.size());
}

// Copies size bytes of `from`, starting at start, to the position of `to`.
binder_status_t AParcel_appendFrom(const AParcel* from, AParcel* to, int32_t start, int32_t size) {
    if (from == nullptr || to == nullptr) return STATUS_UNEXPECTED_NULL;
    if (start < 0 || size < 0 || static_cast<size_t>(start) > from->data.size() ||
        static_cast<size_t>(size) > from->data.size() - static_cast<size_t>(start)) {
        return STATUS_BAD_VALUE;
    }
    if (size == 0) return STATUS_OK;
    uint8_t* where = reserve(to, static_cast<size_t>(size));
    if (where == nullptr) return STATUS_NO_MEMORY;
    memcpy(where, from->data.data() + start, static_cast<size_t>(size));
    return STATUS_OK;
}

binder_status_t AParcel_writeInt32(AParcel* parcel, int32_t value) {
    return write_value(parcel, value);
}

binder_status_t AParcel_readInt32(const AParcel* parcel, int32_t* value) {
    return read_value(parcel, value);
}

binder_status_t AParcel_writeString(AParcel* parcel, const char* string, int32_t length) {
    if (parcel == nullptr) return STATUS_UNEXPECTED_NULL;
    if (string == nullptr) {
        return length == -1 ? AParcel_writeInt32(parcel, -1) : STATUS_BAD_VALUE;
    }
    if (length < 0) return STATUS_BAD_VALUE;
    size_t size = static_cast<size_t>(length);
    // Nothing is written unless the whole string fits.
    size_t start = parcel->position;
    size_t start_size = parcel->data.size();
    uint8_t* where = nullptr;
    if (AParcel_writeInt32(parcel, length) == STATUS_OK) where = reserve(parcel, size + 1);
    if (where == nullptr) {
        parcel->position = start;
        parcel->data.resize(start_size);
        return STATUS_NO_MEMORY;
    }
    memcpy(where, string, size);
    where[size] = 0;
    return STATUS_OK;
}

binder_status_t AParcel_readString(const AParcel* parcel, void* stringData,
                                   AParcel_stringAllocator allocator) {
    if (parcel == nullptr || allocator == nullptr) return STATUS_UNEXPECTED_NULL;
    size_t start = parcel->position;
    int32_t length = 0;
    binder_status_t status = AParcel_readInt32(parcel, &length);
    if (status != STATUS_OK) return status;
    if (length == -1) {
        char* unused = nullptr;
        return allocator(stringData, -1, &unused) ? STATUS_OK : STATUS_UNEXPECTED_NULL;
    }
    if (length < 0 || length == INT32_MAX) {
        parcel->position = start;
        return STATUS_BAD_VALUE;
    }
    size_t size = static_cast<size_t>(length);
    const uint8_t* where = consume(parcel, size + 1);
    if (where == nullptr || where[size] != 0) {
        parcel->position = start;
        return where == nullptr ? STATUS_NOT_ENOUGH_DATA : STATUS_BAD_VALUE;
    }
    char* buffer = nullptr;
    if (!allocator(stringData, length + 1, &buffer) || buffer == nullptr) return STATUS_NO_MEMORY;
    memcpy(buffer, where, size);
    buffer[size] = '\0';
    return STATUS_OK;
}

// Binders do not cross the host transport; only null ones can be written.
binder_status_t AParcel_writeStrongBinder(AParcel* parcel, AIBinder* binder) {
    if (binder != nullptr) return STATUS_INVALID_OPERATION;
    return AParcel_writeInt32(parcel, 0);
}

binder_status_t AParcel_readStrongBinder(const AParcel* parcel, AIBinder** binder) {
    if (binder == nullptr) return STATUS_UNEXPECTED_NULL;
    int32_t marker = 0;
    binder_status_t status = AParcel_readInt32(parcel, &marker);
    if (status != STATUS_OK) return status;
    if (marker != 0) return STATUS_BAD_TYPE;
    *binder = nullptr;
    return STATUS_OK;
}

// Status header: int32 exception; unless EX_NONE, then the message (string) and an int32 error
// code (the service-specific code). A transaction error is no header: it is returned, so that the
// service's answer fails the transaction itself, as the platform's does.
binder_status_t AParcel_writeStatusHeader(AParcel* parcel, const AStatus* status) {
    if (status == nullptr) return STATUS_UNEXPECTED_NULL;
    if (status->exception == EX_TRANSACTION_FAILED) return status->error_code;
    binder_status_t rc = AParcel_writeInt32(parcel, status->exception);
    if (rc != STATUS_OK || status->exception == EX_NONE) return rc;
    rc = AParcel_writeString(parcel, status->message.c_str(),
                             static_cast<int32_t>(status->message.size()));
    if (rc != STATUS_OK) return rc;
    return AParcel_writeInt32(parcel, status->error_code);
}

binder_status_t AParcel_readStatusHeader(const AParcel* parcel, AStatus** status) {
    if (status == nullptr) return STATUS_UNEXPECTED_NULL;
    int32_t exception = 0;
    binder_status_t rc = AParcel_readInt32(parcel, &exception);
    if (rc != STATUS_OK) return rc;
    std::string message;
    int32_t error_code = 0;
    if (exception != EX_NONE) {
        rc = AParcel_readString(parcel, &message, host::binder::std_string_allocator);
        if (rc != STATUS_OK) return rc;
        rc = AParcel_readInt32(parcel, &error_code);
        if (rc != STATUS_OK) return rc;
    }
    *status = host::binder::make_status(exception, error_code, message.c_str());
    return STATUS_OK;
}
