// The service side of the host binder transport: the input arrives on a connection as a client's
// byte stream, is cut into frames and each request frame is carried out on the emulator's
// log-control service, whose stub decodes the parcel.
#include <android/binder_ibinder.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "DeviceState.h"
#include "Journal.h"
#include "LogControlService.h"
#include "SharedState.h"
#include "binder_impl.h"
#include "parcel_impl.h"
#include "wire.h"

namespace {

// Requests of one input that are carried out; the rest are read and dropped.
constexpr int kMaxRequests = 64;

struct Service {
    std::unique_ptr<tarnmodem::SharedState> state =
        tarnmodem::SharedState::create(tarnmodem::default_device_state(), {});
    tarnmodem::Journal journal;
    std::shared_ptr<tarnmodem::LogControlService> service =
        ndk::SharedRefBase::make<tarnmodem::LogControlService>(*state, journal);
    ndk::SpAIBinder binder = service->asBinder();
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Service* const host = new Service();
    int fds[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, fds) != 0) return 0;
    bool sent = size == 0 || send(fds[1], data, size, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
    close(fds[1]);
    for (int i = 0; sent && i < kMaxRequests; ++i) {
        host::binder::Frame request;
        if (host::binder::read_frame(fds[0], &request) != host::binder::FrameResult::kOk) break;
        AParcel in;
        in.data = std::move(request.payload);
        AParcel out;
        host->binder.get()->transact(request.word1, in, &out, request.word2);
    }
    close(fds[0]);
    return 0;
}
