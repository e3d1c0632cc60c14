#include "host/emulator/SharedState.h"

#include <sys/mman.h>

#include <cerrno>
#include <cstring>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/StateFile.h"
#include "host/emulator/StateJson.h"

namespace tarnmodem {
namespace {

// Room for the encoded state; a state whose text outgrows it stays in the process that made it.
constexpr size_t kCapacity = 1 << 20;

// The keys the state file does not carry, beside its object.
Json encode(const DeviceState& device, const FaultTable& faults) {
    return Json{{"state", state_to_json(device, faults)},
                {"logToPc", device.logToPc},
                {"psLogProfile", device.psLogProfile}};
}

}  // namespace

struct SharedState::Region {
    pthread_mutex_t mutex;
    uint64_t version;
    size_t length;
    char text[kCapacity];
};

std::unique_ptr<SharedState> SharedState::create(const DeviceState& device,
                                                 const FaultTable& faults) {
    void* memory =
        mmap(nullptr, sizeof(Region), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) return nullptr;
    auto* region = static_cast<Region*>(memory);
    pthread_mutexattr_t attr;
    pthread_mutexattr_init(&attr);
    pthread_mutexattr_setpshared(&attr, PTHREAD_PROCESS_SHARED);
    // A service process that dies holding the lock must not stop the others.
    pthread_mutexattr_setrobust(&attr, PTHREAD_MUTEX_ROBUST);
    pthread_mutex_init(&region->mutex, &attr);
    pthread_mutexattr_destroy(&attr);
    region->version = 0;
    region->length = 0;
    std::unique_ptr<SharedState> state(new SharedState(region, Copy{device, faults}));
    state->replace(device, faults);
    return state;
}

SharedState::SharedState(Region* region, Copy initial)
    : region_(region), copy_(std::move(initial)) {}

SharedState::~SharedState() {
    munmap(region_, sizeof(Region));
}

SharedState::Lock::Lock(SharedState& owner) : owner_(owner) {
    if (pthread_mutex_lock(&owner_.region_->mutex) == EOWNERDEAD) {
        pthread_mutex_consistent(&owner_.region_->mutex);
    }
    owner_.refresh();
}

SharedState::Lock::~Lock() {
    pthread_mutex_unlock(&owner_.region_->mutex);
}

std::optional<Fault> SharedState::fault(const std::string& op) {
    Lock lock(*this);
    auto it = copy_.faults.find(op);
    if (it == copy_.faults.end()) return std::nullopt;
    return it->second;
}

void SharedState::replace(const DeviceState& device, const FaultTable& faults) {
    Lock lock(*this);
    copy_ = Copy{device, faults};
    publish();
}

void SharedState::share() {
    Lock lock(*this);
    shared_ = true;
    if (unpublished_) publish();
}

void SharedState::refresh() {
    if (seen_version_ == region_->version) return;
    Json decoded = Json::parse(region_->text, region_->text + region_->length, nullptr, false);
    EmulatorConfig config;
    std::string error;
    // Text left half-written by a process that died is not taken; the next change rewrites it.
    if (decoded.is_object() && decoded.contains("state") &&
        parse_state_json(decoded["state"], config, error)) {
        copy_.device = config.device;
        copy_.faults = config.faults;
        copy_.device.logToPc = decoded.value("logToPc", false);
        copy_.device.psLogProfile = decoded.value("psLogProfile", 0);
    }
    seen_version_ = region_->version;
}

void SharedState::publish() {
    if (!shared_) {
        unpublished_ = true;
        return;
    }
    unpublished_ = false;
    std::string text = to_json_line(encode(copy_.device, copy_.faults));
    if (text.size() > kCapacity) return;
    if (text.size() == region_->length && memcmp(text.data(), region_->text, text.size()) == 0) {
        return;
    }
    memcpy(region_->text, text.data(), text.size());
    region_->length = text.size();
    seen_version_ = ++region_->version;
}

}  // namespace tarnmodem
