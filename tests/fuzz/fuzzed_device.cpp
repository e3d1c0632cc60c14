#include "tests/fuzz/fuzzed_device.h"

#include <aidl/vendor/kest/hardware/vexil_svc/BnSysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/BpSysLogControl.h>
#include <android/binder_auto_utils.h>
#include <android/binder_ibinder.h>
#include <android/binder_parcel_utils.h>
#include <cutils/sockets.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace fuzz {
namespace {

using ::aidl::vendor::kest::hardware::vexil_svc::BpSysLogControl;
using ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl;
using ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControlDefault;
using ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControlDelegator;
using I = ISysLogControl;

// The reads the tool makes, by what the int they answer first means (a result code, a reset or
// run state, a value), and its writes; every other call is an action.
constexpr uint32_t kResultReads[] = {
    I::TRANSACTION_getAgdspLogSettings,        I::TRANSACTION_getCellularLogSettings,
    I::TRANSACTION_getConnectivityLogSettings, I::TRANSACTION_getPmSensorHubLogSettings,
    I::TRANSACTION_getSensorHubLogSettings,    I::TRANSACTION_getSubsystemPresence,
    I::TRANSACTION_getSubsystemStorageParam,   I::TRANSACTION_getMipiLogConfig,
    I::TRANSACTION_getCellularModemIoSettings,
};
constexpr uint32_t kStateReads[] = {I::TRANSACTION_getSubsystemAutoReboot,
                                    I::TRANSACTION_getSubsystemRunState};
constexpr uint32_t kValueReads[] = {I::TRANSACTION_getCurrentParentLogPath,
                                    I::TRANSACTION_getPreferredStorageMedia};
constexpr uint32_t kWrites[] = {
    I::TRANSACTION_setAgdspLogSettings,        I::TRANSACTION_setCellularLogSettings,
    I::TRANSACTION_setConnectivityLogSettings, I::TRANSACTION_setCurrentParentLogPath,
    I::TRANSACTION_setPmSensorHubLogSettings,  I::TRANSACTION_setPreferredStorageMedia,
    I::TRANSACTION_setSensorHubLogSettings,    I::TRANSACTION_setSubsystemAutoReboot,
    I::TRANSACTION_setSubsystemStorageParam,   I::TRANSACTION_setMipiLogConfig,
    I::TRANSACTION_setPsLogModuleConfig,       I::TRANSACTION_setCellularModemIoSettings,
};

// Most 32-bit words of an answer: of most, and of a long one (a path of about 4 KB).
constexpr size_t kAnswerWords = 40;
constexpr size_t kLongAnswerWords = 1024;

template <size_t N>
bool contains(const uint32_t (&codes)[N], uint32_t code) {
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

// How a read failed, judged from the answer's words: the status header, then the first int.
unsigned failure_of(uint32_t code, const std::vector<int32_t>& words) {
    const bool state = contains(kStateReads, code);
    if (!state && !contains(kResultReads, code) && !contains(kValueReads, code)) return 0;
    if (words.size() < 2 || words[0] != 0) return kStatus;
    const int32_t value = words[1];
    if (contains(kValueReads, code) || value == 0 || (state && value != -1 && value != -3)) {
        return 0;
    }
    return value == -1 ? kMinusOne : value == -3 ? kMinusThree : kOtherResult;
}

// The interface's own default for every call, but of this version, so that the stub takes it.
class Unimplemented : public ISysLogControlDefault {
  public:
    ndk::ScopedAStatus getInterfaceVersion(int32_t* version) override {
        *version = ISysLogControl::version;
        return ndk::ScopedAStatus::ok();
    }
};

FuzzedDataProvider* input = nullptr;
Journal journal;
std::vector<std::pair<AIBinder_DeathRecipient_onBinderDied, void*>> links;
int server = -1;  // the daemon's end of the tool's vexilserver connection

struct Device {
    // The generated stub over the default implementation: it reads each request the tool sends.
    ndk::SpAIBinder stub =
        ndk::SharedRefBase::make<ISysLogControlDelegator>(ndk::SharedRefBase::make<Unimplemented>())
            ->asBinder();
    // What the tool's proxy transacts with: the stub reads the request, the input answers it.
    AIBinder_Class* answering = AIBinder_Class_define(
        I::descriptor, [](void* args) { return args; }, [](void*) {}, &answer);
    std::shared_ptr<BpSysLogControl> proxy =
        ndk::SharedRefBase::make<BpSysLogControl>(ndk::SpAIBinder(AIBinder_new(answering, nullptr)));
    // What the service manager hands out: a binder of the interface whose object is that proxy,
    // so that fromBinder() gives the tool the generated proxy, as for a service in another
    // process. And a binder of another interface.
    AIBinder* service =
        AIBinder_new(AIBinder_getClass(stub.get()), static_cast<ndk::ICInterface*>(proxy.get()));
    AIBinder* other = AIBinder_new(
        AIBinder_Class_define(
            "fuzz.NotTheLogControl", [](void* args) { return args; }, [](void*) {}, &answer),
        nullptr);

    static binder_status_t answer(AIBinder*, transaction_code_t code, const AParcel* in,
                                  AParcel* out);
};
Device* device = nullptr;

void die() {
    for (const auto& [died, cookie] : links) died(cookie);
}

binder_status_t Device::answer(AIBinder*, transaction_code_t code, const AParcel* in, AParcel* out) {
    ndk::ScopedAParcel request;
    ndk::ScopedAParcel reply;
    AIBinder_prepareTransaction(device->stub.get(), request.getR());
    const int32_t start = AParcel_getDataPosition(in);
    AParcel_appendFrom(in, request.get(), start, AParcel_getDataSize(in) - start);
    if (AIBinder_transact(device->stub.get(), code, request.getR(), reply.getR(), 0) !=
        STATUS_UNKNOWN_TRANSACTION) {
        fail("the service's stub cannot read a request of the tool");
    }
    FuzzedDataProvider& data = *input;
    Call call{code, failure_of(code, {}), contains(kWrites, code)};
    switch (data.ConsumeIntegralInRange(0, 7)) {
        case 6:  // the service dies in the middle of the call
            journal.calls.push_back(call);
            die();
            return STATUS_DEAD_OBJECT;
        case 7:  // the transaction fails
            journal.calls.push_back(call);
            return data.ConsumeIntegral<int32_t>();
        default:
            break;
    }
    // Any answer, as a service of any version may give it, word by word: the status header, the
    // results, records and strings. Mostly a few words; a record takes the size of the words
    // after it unless the input declares another. (With the input used up, every word is 0: a
    // success, with records of zeros.)
    const size_t most = data.ConsumeBool() ? kLongAnswerWords : kAnswerWords;
    std::vector<int32_t> words(most - data.ConsumeIntegralInRange<size_t>(0, most));
    for (int32_t& word : words) data.ConsumeData(&word, sizeof(word));
    if (contains(kResultReads, code) && words.size() > 2 && !data.ConsumeBool()) {
        words[2] = static_cast<int32_t>(sizeof(int32_t) * (words.size() - 2));
    }
    for (int32_t word : words) AParcel_writeInt32(out, word);
    call.failure = failure_of(code, words);
    journal.calls.push_back(call);
    if (code == I::TRANSACTION_getCurrentParentLogPath) {
        std::string path;
        ndk::ScopedAStatus status;
        AParcel_setDataPosition(out, 0);
        journal.path.reset();
        if (AParcel_readStatusHeader(out, status.getR()) == STATUS_OK && status.isOk() &&
            ndk::AParcel_readString(out, &path) == STATUS_OK) {
            journal.path = path;
        }
    }
    return STATUS_OK;
}

}  // namespace

void set_up_device() {
    device = new Device;
}

void start_device(FuzzedDataProvider& data) {
    input = &data;
    journal = Journal{};
    links.clear();
}

const Journal& end_device() {
    if (server >= 0) {
        char bytes[256];
        ssize_t got;
        while ((got = recv(server, bytes, sizeof(bytes), MSG_DONTWAIT)) > 0) {
            journal.sent.append(bytes, static_cast<size_t>(got));
        }
        close(server);
        server = -1;
    }
    input = nullptr;
    return journal;
}

}  // namespace fuzz

using fuzz::input;
using fuzz::journal;

// The service manager: the service, none, or a binder of another interface.
extern "C" AIBinder* __wrap_AServiceManager_getService(const char* instance) {
    ++journal.lookups;
    if (std::string(instance) != std::string(fuzz::I::descriptor) + "/default") {
        fuzz::fail("the tool looks for another service");
    }
    AIBinder* const found[] = {fuzz::device->service, nullptr, fuzz::device->other};
    AIBinder* binder = found[input->ConsumeIntegralInRange(0, 2)];
    AIBinder_incStrong(binder);
    return binder;
}

// Death links: kept for the input, to be notified when its service dies. Nothing is allocated:
// the tool keeps its recipient until the process ends.
extern "C" AIBinder_DeathRecipient* __wrap_AIBinder_DeathRecipient_new(
    AIBinder_DeathRecipient_onBinderDied died) {
    return reinterpret_cast<AIBinder_DeathRecipient*>(died);
}

extern "C" binder_status_t __wrap_AIBinder_linkToDeath(AIBinder*, AIBinder_DeathRecipient* recipient,
                                                       void* cookie) {
    fuzz::links.emplace_back(reinterpret_cast<AIBinder_DeathRecipient_onBinderDied>(recipient),
                             cookie);
    return STATUS_OK;
}

// vexilserver: nothing listening, or a connection whose daemon end has sent its answer (any
// bytes, of any length, perhaps the first part only) and then hangs up or stays silent; or hangs
// up before reading the request.
extern "C" int __wrap_socket_local_client(const char* name, int namespace_id, int type) {
    if (strcmp(name, "vexilserver") != 0 || namespace_id != ANDROID_SOCKET_NAMESPACE_ABSTRACT ||
        type != SOCK_STREAM) {
        fuzz::fail("the tool connects to another socket than vexilserver");
    }
    ++journal.connections;
    const int fate = input->ConsumeIntegralInRange(0, 3);
    int ends[2];
    if (fate == 3 || fuzz::server >= 0 || socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) {
        errno = ECONNREFUSED;
        return -1;
    }
    fuzz::server = fcntl(ends[1], F_DUPFD_CLOEXEC, fuzz::kHarnessFds);
    close(ends[1]);
    const std::string answer = input->ConsumeRandomLengthString(64);
    if (fate == 2) {
        close(fuzz::server);
        fuzz::server = -1;
    } else if (send(fuzz::server, answer.data(), answer.size(), MSG_NOSIGNAL) < 0 || fate == 1) {
        shutdown(fuzz::server, SHUT_WR);
    }
    return ends[0];
}

// The tool waits for vexilserver's answer: what has not come by then is late, and no input
// waits for it.
extern "C" int __real_poll(pollfd* fds, nfds_t count, int timeout);
extern "C" int __wrap_poll(pollfd* fds, nfds_t count, int timeout) {
    return __real_poll(fds, count, input != nullptr ? 0 : timeout);
}
