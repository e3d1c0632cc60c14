#include "host/emulator/Faults.h"

#include <android/binder_status.h>

namespace tarnmodem {

ndk::ScopedAStatus FaultStatus::make() const {
    switch (kind) {
        case Kind::OK:
            break;
        case Kind::EXCEPTION:
            // A service-specific failure carries a code of its own; -1 is the usual one.
            if (code == EX_SERVICE_SPECIFIC)
                return ndk::ScopedAStatus::fromServiceSpecificError(-1);
            return ndk::ScopedAStatus::fromExceptionCode(code);
        case Kind::STATUS_CODE:
            return ndk::ScopedAStatus::fromStatus(code);
    }
    return ndk::ScopedAStatus::ok();
}

namespace {

const std::map<std::string, int32_t>& exception_codes() {
    static const std::map<std::string, int32_t> codes{
        {"EX_NONE", EX_NONE},
        {"EX_SECURITY", EX_SECURITY},
        {"EX_BAD_PARCELABLE", EX_BAD_PARCELABLE},
        {"EX_ILLEGAL_ARGUMENT", EX_ILLEGAL_ARGUMENT},
        {"EX_NULL_POINTER", EX_NULL_POINTER},
        {"EX_ILLEGAL_STATE", EX_ILLEGAL_STATE},
        {"EX_NETWORK_MAIN_THREAD", EX_NETWORK_MAIN_THREAD},
        {"EX_UNSUPPORTED_OPERATION", EX_UNSUPPORTED_OPERATION},
        {"EX_SERVICE_SPECIFIC", EX_SERVICE_SPECIFIC},
        {"EX_PARCELABLE", EX_PARCELABLE},
        {"EX_TRANSACTION_FAILED", EX_TRANSACTION_FAILED},
    };
    return codes;
}

}  // namespace

std::optional<int32_t> exception_code(const std::string& name) {
    auto it = exception_codes().find(name);
    if (it == exception_codes().end()) return std::nullopt;
    return it->second;
}

std::string exception_name(int32_t code) {
    for (const auto& [name, value] : exception_codes()) {
        if (value == code) return name;
    }
    return "EX_SERVICE_SPECIFIC";
}

const std::map<std::string, Operation>& service_operations() {
    static const std::map<std::string, Operation> operations = [] {
        const Operation list[] = {
            {"crashSubsystem", true},
            {"clearLogs", true},
            {"flushLogs", false},
            {"reserved04", false},
            {"getAgdspLogSettings", true},
            {"getCellularLogSettings", true},
            {"getConnectivityLogSettings", true},
            {"getPmSensorHubLogSettings", true},
            {"getSensorHubLogSettings", true},
            {"getSubsystemAutoReboot", true},
            {"getSubsystemRunState", true},
            {"getSubsystemPresence", true},
            {"getCurrentParentLogPath", false},
            {"reserved14", false},
            {"getPreferredStorageMedia", true},
            {"getSubsystemStorageParam", true},
            {"reserved17", false},
            {"reserved18", false},
            {"reserved19", false},
            {"setAgdspLogSettings", true},
            {"setCellularLogSettings", true},
            {"reserved22", false},
            {"setConnectivityLogSettings", true},
            {"setCurrentParentLogPath", true},
            {"reserved25", false},
            {"reserved26", false},
            {"reserved27", false},
            {"setPmSensorHubLogSettings", true},
            {"setPreferredStorageMedia", true},
            {"setSensorHubLogSettings", true},
            {"setSubsystemAutoReboot", true},
            {"setSubsystemStorageParam", true},
            {"collectLogs", true},
            {"reserved34", false},
            {"reserved35", false},
            {"setMipiLogConfig", true},
            {"getMipiLogConfig", true},
            {"setPsLogModuleConfig", true},
            {"setCellularModemIoSettings", true},
            {"getCellularModemIoSettings", true},
            {"reserved41", false},
            {"reserved42", false},
            {"clearLogsSkipBoot", true},
        };
        std::map<std::string, Operation> by_name;
        for (const Operation& op : list) by_name.emplace(op.name, op);
        return by_name;
    }();
    return operations;
}

}  // namespace tarnmodem
