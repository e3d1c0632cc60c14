#include "host/emulator/LogControlService.h"

#include <android/binder_status.h>
#include <unistd.h>

#include "host/emulator/RecordFields.h"

namespace tarnmodem {
namespace {

int32_t as_int(svc::SubsystemType type) {
    return static_cast<int32_t>(type);
}

bool valid_dest(int32_t dest) {
    return dest >= static_cast<int32_t>(svc::LogDestination::OFF) &&
           dest <= static_cast<int32_t>(svc::LogDestination::WIFI);
}

// What the daemon accepts in a written record.
template <typename Record>
bool acceptable(const Record&) {
    return true;
}
bool acceptable(const svc::CellularLogSettings& r) {
    return valid_dest(r.dest);
}
bool acceptable(const svc::ConnectivityLogSettings& r) {
    return valid_dest(r.dest);
}
bool acceptable(const svc::AgdspLogSettings& r) {
    return valid_dest(r.dest);
}
bool acceptable(const svc::CellularModemIoSettings& r) {
    return r.avg_ratio >= 0 && r.avg_ratio <= 100 && r.log_rate >= 0 && r.buf_size > 0 &&
           r.buf_num > 0 && r.log_commit_threshold >= 0 && r.buf_commit_threshold >= 0;
}
bool acceptable(const svc::SubsystemStorageParam& r) {
    return r.externalMaxSize >= 0 && r.internalMaxSize >= 0 && r.logFileSize >= 0 &&
           (r.overwrite == 0 || r.overwrite == 1) && r.fileCount >= 0;
}

// The value kept for a CP index, or -3 for a CP the device does not have.
int32_t cp_value(const std::map<int32_t, int32_t>& values, int32_t cp_index) {
    auto it = values.find(cp_index);
    return it == values.end() ? kResultUnsupported : it->second;
}

}  // namespace

std::optional<ndk::ScopedAStatus> LogControlService::arrive(const char* op, Json args,
                                                            std::optional<Fault>& fault) {
    journal_.service_call(op, std::move(args));
    fault = state_.fault(op);
    if (!fault) return std::nullopt;
    if (fault->die) _exit(0);  // the client sees its call hang up; the daemon's other parts live on
    if (fault->status && fault->status->kind != FaultStatus::Kind::OK) return fault->status->make();
    return std::nullopt;
}

ndk::ScopedAStatus LogControlService::serve(const char* op, Json args, int32_t* result,
                                            const Body& body) {
    std::optional<Fault> fault;
    if (auto early = arrive(op, std::move(args), fault)) return std::move(*early);
    std::optional<int32_t> forced;
    if (fault) forced = fault->result;
    int32_t value = state_.with([&](DeviceState& state) {
        if (!forced) return body(state);
        DeviceState scratch = state;
        body(scratch);
        return *forced;
    });
    if (result != nullptr) *result = value;
    return ndk::ScopedAStatus::ok();
}

ndk::ScopedAStatus LogControlService::unimplemented(const char* op) {
    std::optional<Fault> fault;
    if (auto early = arrive(op, Json::array(), fault)) return std::move(*early);
    return ndk::ScopedAStatus::fromStatus(STATUS_UNKNOWN_TRANSACTION);
}

template <typename Record>
ndk::ScopedAStatus LogControlService::get_record(const char* op, Record DeviceState::*field,
                                                 Record* out, int32_t* result) {
    return serve(op, Json::array(), result, [&](DeviceState& s) {
        *out = s.*field;
        return 0;
    });
}

template <typename Record>
ndk::ScopedAStatus LogControlService::set_record(const char* op, Record DeviceState::*field,
                                                 const Record& in, int32_t* result) {
    return serve(op, Json::array({record_to_json(in)}), result, [&](DeviceState& s) {
        if (!acceptable(in)) return kResultFailed;
        s.*field = in;
        return 0;
    });
}

ndk::ScopedAStatus LogControlService::crashSubsystem(svc::SubsystemType in_type,
                                                     int32_t* _aidl_return) {
    return serve("crashSubsystem", Json::array({as_int(in_type)}), _aidl_return, [&](DeviceState& s) {
        bool crashable = in_type == svc::SubsystemType::MODEM || in_type == svc::SubsystemType::WCN;
        return crashable && has_subsystem(s, as_int(in_type)) ? 0 : kResultUnsupported;
    });
}

ndk::ScopedAStatus LogControlService::clearLogs(int32_t* _aidl_return) {
    return serve("clearLogs", Json::array(), _aidl_return, [](DeviceState&) { return 0; });
}

ndk::ScopedAStatus LogControlService::flushLogs() {
    return serve("flushLogs", Json::array(), nullptr, [](DeviceState&) { return 0; });
}

ndk::ScopedAStatus LogControlService::getAgdspLogSettings(svc::AgdspLogSettings* out_settings,
                                                          int32_t* _aidl_return) {
    return get_record("getAgdspLogSettings", &DeviceState::agdsp, out_settings, _aidl_return);
}

ndk::ScopedAStatus LogControlService::getCellularLogSettings(svc::CellularLogSettings* out_settings,
                                                             int32_t* _aidl_return) {
    return get_record("getCellularLogSettings", &DeviceState::cellular, out_settings, _aidl_return);
}

ndk::ScopedAStatus LogControlService::getConnectivityLogSettings(
    svc::ConnectivityLogSettings* out_settings, int32_t* _aidl_return) {
    return get_record("getConnectivityLogSettings", &DeviceState::connectivity, out_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::getPmSensorHubLogSettings(
    svc::PmSensorHubLogSettings* out_settings, int32_t* _aidl_return) {
    return get_record("getPmSensorHubLogSettings", &DeviceState::pmSensorHub, out_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::getSensorHubLogSettings(svc::SensorHubLogSettings* out_settings,
                                                              int32_t* _aidl_return) {
    return get_record("getSensorHubLogSettings", &DeviceState::sensorHub, out_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::getSubsystemAutoReboot(int32_t in_cpIndex,
                                                             int32_t* _aidl_return) {
    return serve("getSubsystemAutoReboot", Json::array({in_cpIndex}), _aidl_return,
                 [&](DeviceState& s) { return cp_value(s.autoReboot, in_cpIndex); });
}

ndk::ScopedAStatus LogControlService::getSubsystemRunState(int32_t in_cpIndex,
                                                           int32_t* _aidl_return) {
    return serve("getSubsystemRunState", Json::array({in_cpIndex}), _aidl_return,
                 [&](DeviceState& s) { return cp_value(s.runState, in_cpIndex); });
}

ndk::ScopedAStatus LogControlService::getSubsystemPresence(svc::SubsystemPresence* out_presence,
                                                           int32_t* _aidl_return) {
    return get_record("getSubsystemPresence", &DeviceState::presence, out_presence, _aidl_return);
}

ndk::ScopedAStatus LogControlService::getCurrentParentLogPath(std::string* _aidl_return) {
    return serve("getCurrentParentLogPath", Json::array(), nullptr, [&](DeviceState& s) {
        *_aidl_return = s.parentLogPath;
        return 0;
    });
}

ndk::ScopedAStatus LogControlService::getPreferredStorageMedia(svc::StorageMedia* _aidl_return) {
    int32_t media = 0;
    ndk::ScopedAStatus status =
        serve("getPreferredStorageMedia", Json::array(), &media,
              [](DeviceState& s) { return static_cast<int32_t>(s.storageMedia); });
    if (status.isOk()) *_aidl_return = static_cast<svc::StorageMedia>(media);
    return status;
}

ndk::ScopedAStatus LogControlService::getSubsystemStorageParam(svc::SubsystemType in_type,
                                                               svc::SubsystemStorageParam* out_param,
                                                               int32_t* _aidl_return) {
    return serve("getSubsystemStorageParam", Json::array({as_int(in_type)}), _aidl_return,
                 [&](DeviceState& s) {
                     auto it = s.storage.find(as_int(in_type));
                     if (it == s.storage.end() || !has_subsystem(s, as_int(in_type))) {
                         return kResultUnsupported;
                     }
                     *out_param = it->second;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::setAgdspLogSettings(const svc::AgdspLogSettings& in_settings,
                                                          int32_t* _aidl_return) {
    return set_record("setAgdspLogSettings", &DeviceState::agdsp, in_settings, _aidl_return);
}

ndk::ScopedAStatus LogControlService::setCellularLogSettings(
    const svc::CellularLogSettings& in_settings, int32_t* _aidl_return) {
    return set_record("setCellularLogSettings", &DeviceState::cellular, in_settings, _aidl_return);
}

ndk::ScopedAStatus LogControlService::setConnectivityLogSettings(
    const svc::ConnectivityLogSettings& in_settings, int32_t* _aidl_return) {
    return set_record("setConnectivityLogSettings", &DeviceState::connectivity, in_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::setCurrentParentLogPath(const std::string& in_path,
                                                              int32_t* _aidl_return) {
    return serve("setCurrentParentLogPath", Json::array({in_path}), _aidl_return,
                 [&](DeviceState& s) {
                     // The daemon takes absolute directories only.
                     if (in_path.empty() || in_path[0] != '/') return kResultFailed;
                     s.parentLogPath = in_path;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::setPmSensorHubLogSettings(
    const svc::PmSensorHubLogSettings& in_settings, int32_t* _aidl_return) {
    return set_record("setPmSensorHubLogSettings", &DeviceState::pmSensorHub, in_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::setPreferredStorageMedia(svc::StorageMedia in_media,
                                                               int32_t* _aidl_return) {
    int32_t media = static_cast<int32_t>(in_media);
    return serve("setPreferredStorageMedia", Json::array({media}), _aidl_return,
                 [&](DeviceState& s) {
                     if (media < static_cast<int32_t>(svc::StorageMedia::DATA) ||
                         media > static_cast<int32_t>(svc::StorageMedia::EXTERNAL)) {
                         return kResultFailed;
                     }
                     s.storageMedia = in_media;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::setSensorHubLogSettings(
    const svc::SensorHubLogSettings& in_settings, int32_t* _aidl_return) {
    return set_record("setSensorHubLogSettings", &DeviceState::sensorHub, in_settings, _aidl_return);
}

ndk::ScopedAStatus LogControlService::setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state,
                                                             int32_t* _aidl_return) {
    return serve("setSubsystemAutoReboot", Json::array({in_cpIndex, in_state}), _aidl_return,
                 [&](DeviceState& s) {
                     auto it = s.autoReboot.find(in_cpIndex);
                     if (it == s.autoReboot.end()) return kResultUnsupported;
                     if (in_state < 0 || in_state > 2) return kResultFailed;  // off, on, rstdmp
                     it->second = in_state;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::setSubsystemStorageParam(
    svc::SubsystemType in_type, const svc::SubsystemStorageParam& in_param, int32_t* _aidl_return) {
    return serve("setSubsystemStorageParam",
                 Json::array({as_int(in_type), record_to_json(in_param)}), _aidl_return,
                 [&](DeviceState& s) {
                     auto it = s.storage.find(as_int(in_type));
                     if (it == s.storage.end() || !has_subsystem(s, as_int(in_type))) {
                         return kResultUnsupported;
                     }
                     if (!acceptable(in_param)) return kResultFailed;
                     it->second = in_param;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::collectLogs(svc::SubsystemType in_type,
                                                  int32_t* _aidl_return) {
    return serve("collectLogs", Json::array({as_int(in_type)}), _aidl_return, [&](DeviceState& s) {
        return has_subsystem(s, as_int(in_type)) ? 0 : kResultUnsupported;
    });
}

ndk::ScopedAStatus LogControlService::setMipiLogConfig(const svc::MipiLogConfig& in_config,
                                                       int32_t* _aidl_return) {
    return set_record("setMipiLogConfig", &DeviceState::mipi, in_config, _aidl_return);
}

ndk::ScopedAStatus LogControlService::getMipiLogConfig(const std::string& in_selector,
                                                       svc::MipiLogConfig* out_config,
                                                       int32_t* _aidl_return) {
    return serve("getMipiLogConfig", Json::array({in_selector}), _aidl_return, [&](DeviceState& s) {
        *out_config = s.mipi;
        return 0;
    });
}

ndk::ScopedAStatus LogControlService::setPsLogModuleConfig(int32_t in_opType,
                                                           int32_t* _aidl_return) {
    return serve("setPsLogModuleConfig", Json::array({in_opType}), _aidl_return,
                 [&](DeviceState& s) {
                     if (in_opType != 0 && in_opType != 1) return kResultFailed;  // user, debug
                     s.psLogProfile = in_opType;
                     return 0;
                 });
}

ndk::ScopedAStatus LogControlService::setCellularModemIoSettings(
    const svc::CellularModemIoSettings& in_settings, int32_t* _aidl_return) {
    return set_record("setCellularModemIoSettings", &DeviceState::modemIo, in_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::getCellularModemIoSettings(
    svc::CellularModemIoSettings* out_settings, int32_t* _aidl_return) {
    return get_record("getCellularModemIoSettings", &DeviceState::modemIo, out_settings,
                      _aidl_return);
}

ndk::ScopedAStatus LogControlService::clearLogsSkipBoot(int32_t* _aidl_return) {
    return serve("clearLogsSkipBoot", Json::array(), _aidl_return, [](DeviceState&) { return 0; });
}

#define TARNMODEM_RESERVED(op)                   \
    ndk::ScopedAStatus LogControlService::op() { \
        return unimplemented(#op);               \
    }

TARNMODEM_RESERVED(reserved04)
TARNMODEM_RESERVED(reserved14)
TARNMODEM_RESERVED(reserved17)
TARNMODEM_RESERVED(reserved18)
TARNMODEM_RESERVED(reserved19)
TARNMODEM_RESERVED(reserved22)
TARNMODEM_RESERVED(reserved25)
TARNMODEM_RESERVED(reserved26)
TARNMODEM_RESERVED(reserved27)
TARNMODEM_RESERVED(reserved34)
TARNMODEM_RESERVED(reserved35)
TARNMODEM_RESERVED(reserved41)
TARNMODEM_RESERVED(reserved42)

#undef TARNMODEM_RESERVED

}  // namespace tarnmodem
