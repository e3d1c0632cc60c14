// The words for subsystems and log destinations shared by the requests.
#include <cstdint>
#include <cstring>

#include "service/Request.h"
#include "service/TarnLog.h"

namespace tarn {
namespace {

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
