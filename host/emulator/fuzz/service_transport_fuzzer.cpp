// The service side of the host binder transport: the input is a client's byte stream, cut into
// frames as a connection's reader cuts them, and each request frame is carried out on the
// emulator's log-control service through the generated stub, which decodes the parcel. Nothing
// touches the disk. Each input starts from the default device state, as a daemon just started
// (the state is encoded only when a second process shares it, so this costs a copy): an input
// does what it does alone, and its features do not depend on the inputs before it.
#include <android/binder_ibinder.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "host/emulator/DeviceState.h"
#include "host/emulator/Journal.h"
#include "host/emulator/LogControlService.h"
#include "host/emulator/SharedState.h"
#include "host/platform/src/binder/binder_impl.h"
#include "host/platform/src/binder/parcel_impl.h"
#include "host/platform/src/binder/wire.h"

namespace {

// Requests of one input that are carried out (a client makes a few per connection); the rest
// are dropped.
constexpr int kMaxRequests = 8;

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
    host->state->replace(tarnmodem::default_device_state(), {});
    host::binder::Frame request;
    for (int i = 0; i < kMaxRequests; ++i) {
        if (host::binder::take_frame(data, size, &request) != host::binder::FrameResult::OK) {
            break;
        }
        AParcel in;
        in.data = std::move(request.payload);
        AParcel out;
        host->binder.get()->transact(request.word1, in, &out, request.word2);
    }
    return 0;
}
