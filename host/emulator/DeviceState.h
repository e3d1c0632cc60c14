// What the emulated daemon knows: every setting the service and the command socket read and
// change, with the values a freshly booted device has.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "host/emulator/ServiceTypes.h"

namespace tarnmodem {

// CP indexes of the auto-reboot and run-state operations.
inline constexpr int32_t kModemCpIndex = 0;
inline constexpr int32_t kWcnCpIndex = 1;

// Results the daemon gives besides 0.
inline constexpr int32_t kResultFailed = -1;
inline constexpr int32_t kResultUnsupported = -3;

struct DeviceState {
    svc::CellularLogSettings cellular;
    svc::ConnectivityLogSettings connectivity;
    svc::PmSensorHubLogSettings pmSensorHub;
    svc::SensorHubLogSettings sensorHub;
    svc::AgdspLogSettings agdsp;
    svc::SubsystemPresence presence;
    svc::CellularModemIoSettings modemIo;
    svc::MipiLogConfig mipi;
    // Storage limits by SubsystemType value; a type without an entry stores no logs.
    std::map<int32_t, svc::SubsystemStorageParam> storage;
    svc::StorageMedia storageMedia = svc::StorageMedia::DATA;
    std::string parentLogPath;
    // By CP index.
    std::map<int32_t, int32_t> autoReboot;
    std::map<int32_t, int32_t> runState;
    // Not part of the state file: the socket's log-to-PC switch and the PS log profile.
    bool logToPc = false;
    int32_t psLogProfile = 0;

    bool operator==(const DeviceState& rhs) const {
        auto fields = [](const DeviceState& s) {
            return std::tie(s.cellular, s.connectivity, s.pmSensorHub, s.sensorHub, s.agdsp,
                            s.presence, s.modemIo, s.mipi, s.storage, s.storageMedia,
                            s.parentLogPath, s.autoReboot, s.runState, s.logToPc, s.psLogProfile);
        };
        return fields(*this) == fields(rhs);
    }
};

DeviceState default_device_state();

// Whether the device has the co-processor of a SubsystemType value (0 and unknown: no).
bool has_subsystem(const DeviceState& state, int32_t type);

}  // namespace tarnmodem
