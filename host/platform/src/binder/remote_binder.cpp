// The client side of the host transport: a remote binder is one connection to the abstract
// stream socket a service listens on. Calls are synchronous request/reply frames (wire.h).
#include <errno.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <utility>

#include "host/platform/src/binder/binder_impl.h"
#include "host/platform/src/binder/wire.h"
#include "host/platform/src/local_socket.h"

namespace host::binder {

namespace {

constexpr time_t kDescriptorQueryTimeoutSeconds = 10;

}  // namespace

RemoteBinder::RemoteBinder(int fd, std::string descriptor)
    : fd_(fd), descriptor_(std::move(descriptor)) {}

RemoteBinder::~RemoteBinder() {
    forget_binder_links(this);
    close(fd_);
}

bool RemoteBinder::associate(const AIBinder_Class* c) {
    const AIBinder_Class* current = clazz.load();
    if (current != nullptr) return same_interface(current, c);
    if (descriptor_ != c->descriptor) return false;
    clazz.compare_exchange_strong(current, c);
    return same_interface(clazz.load(), c);
}

binder_status_t RemoteBinder::transact(transaction_code_t code, const AParcel& in, AParcel* out,
                                       binder_flags_t flags) {
    bool hung_up = false;
    binder_status_t status = STATUS_OK;
    {
        std::lock_guard<std::mutex> lock(call_mutex_);
        if (!alive()) return STATUS_DEAD_OBJECT;
        if (in.data.size() > kMaxParcelBytes) return STATUS_BAD_VALUE;
        if (!send_frame(fd_, code, flags, in.data)) {
            hung_up = true;
        } else if ((flags & FLAG_ONEWAY) == 0) {
            Frame reply;
            if (read_frame(fd_, &reply) != FrameResult::OK) {
                hung_up = true;
            } else {
                status = static_cast<binder_status_t>(reply.word1);
                out->data = std::move(reply.payload);
                out->position = 0;
            }
        }
        if (hung_up) shutdown(fd_, SHUT_RDWR);
    }
    if (hung_up) {
        die();
        return STATUS_DEAD_OBJECT;
    }
    return status;
}

AIBinder* connect_remote(const char* instance) {
    sockaddr_un addr;
    socklen_t len;
    if (!abstract_address(instance, &addr, &len)) return nullptr;
    int fd = connect_stream(addr, len);
    if (fd < 0) return nullptr;

    // Something that listens at the name but never answers must not hold the caller forever.
    timeval query_timeout{kDescriptorQueryTimeoutSeconds, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &query_timeout, sizeof(query_timeout));
    Frame reply;
    std::string descriptor;
    bool answered = send_frame(fd, kInterfaceTransaction, 0, {}) &&
                    read_frame(fd, &reply) == FrameResult::OK && reply.word1 == STATUS_OK;
    timeval no_timeout{0, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &no_timeout, sizeof(no_timeout));
    if (answered) {
        AParcel parcel;
        parcel.data = std::move(reply.payload);
        answered = AParcel_readString(&parcel, &descriptor, std_string_allocator) == STATUS_OK;
    }
    if (!answered) {
        close(fd);
        errno = ECONNRESET;
        return nullptr;
    }
    return new RemoteBinder(fd, std::move(descriptor));
}

}  // namespace host::binder
