// Finding the log-control service and watching it for death; the words for subsystems and log
// destinations shared by the requests.
#include "service/Request.h"

#include <android/binder_auto_utils.h>
#include <android/binder_manager.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "front/TarnLog.h"

namespace tarn {
namespace {

// Built once, before main runs.
const std::string kServiceInstance = std::string(ISysLogControl::descriptor) + "/default";

struct SubsysWord {
    const char* word;
    SubsystemType type;
};

constexpr SubsysWord kSubsysTypes[] = {
    {"modem", SubsystemType::MODEM},   {"wcn", SubsystemType::WCN},
    {"pmsh", SubsystemType::PMSH},     {"pm", SubsystemType::PMSH},
    {"sensor", SubsystemType::SENSOR}, {"agdsp", SubsystemType::AGDSP},
    {"gnss", SubsystemType::GNSS},
};

// Indexed by LogDestination value; "wifi" comes last and also names every larger value.
constexpr const char* kLogdestNames[] = {"off", "stor", "usb", "wifi"};
constexpr uint32_t kLogdestCount = sizeof(kLogdestNames) / sizeof(kLogdestNames[0]);

}  // namespace

std::shared_ptr<ISysLogControl> Request::start() {
    ndk::SpAIBinder binder(AServiceManager_getService(kServiceInstance.c_str()));
    if (binder.get() == nullptr) {
        TARN_LOG_ERRNO("%s: getService fail", "start");
        fprintf(stderr, "ERROR,getService error");
        death_recipient_ = nullptr;
        return nullptr;
    }

    std::shared_ptr<ISysLogControl> service = ISysLogControl::fromBinder(binder);
    if (!service) {
        TARN_LOG_ERRNO("%s: get mISysLogControl fail", "start");
        fprintf(stderr, "ERROR,getService error");
        death_recipient_ = nullptr;
        return nullptr;
    }

    // Never unlinked or freed: the process ends soon after, or in onBinderDied.
    death_recipient_ = AIBinder_DeathRecipient_new(onBinderDied);
    AIBinder_linkToDeath(binder.get(), death_recipient_, this);
    return service;
}

void Request::onBinderDied(void* /*cookie*/) {
    TARN_LOG("%s: Enter %s\n", "onBinderDied", "onBinderDied");
    // The notification can arrive in the middle of a call: end at once, without running
    // destructors that could wait on the connection.
    fflush(nullptr);
    _exit(0);
}

SubsystemType Request::get_subsys_type(const char* word) {
    if (word != nullptr) {
        for (const SubsysWord& entry : kSubsysTypes) {
            if (strcmp(word, entry.word) == 0) return entry.type;
        }
    }
    return static_cast<SubsystemType>(0);
}

int Request::get_logdest_type(const char* word, LogDestination& dest) {
    if (word != nullptr) {
        for (uint32_t value = 0; value < kLogdestCount; ++value) {
            if (strcmp(word, kLogdestNames[value]) == 0) {
                dest = static_cast<LogDestination>(value);
                return 0;
            }
        }
    }
    TARN_LOG_ERRNO("%s: LogDestination is error", "get_logdest_type");
    return -1;
}

const char* Request::logdest_type_to_name(LogDestination value) {
    const uint32_t index = static_cast<uint32_t>(value);
    return kLogdestNames[index < kLogdestCount ? index : kLogdestCount - 1];
}

}  // namespace tarn
