#include "host/emulator/StateJson.h"

#include <string>

#include "host/emulator/RecordFields.h"

namespace tarnmodem {
namespace {

Json cp_map_to_json(const std::map<int32_t, int32_t>& values) {
    Json out = Json::object();
    for (const auto& [index, value] : values) out[std::to_string(index)] = value;
    return out;
}

Json status_to_json(const FaultStatus& status) {
    switch (status.kind) {
        case FaultStatus::Kind::OK:
            break;
        case FaultStatus::Kind::EXCEPTION:
            return exception_name(status.code);
        case FaultStatus::Kind::STATUS_CODE:
            return status.code;
    }
    return "ok";
}

Json faults_to_json(const FaultTable& faults) {
    Json out = Json::object();
    for (const auto& [op, fault] : faults) {
        Json item = Json::object();
        if (fault.status) item["status"] = status_to_json(*fault.status);
        if (fault.result) item["result"] = *fault.result;
        if (fault.die) item["die"] = true;
        out[op] = item;
    }
    return out;
}

}  // namespace

Json state_to_json(const DeviceState& d, const FaultTable& faults) {
    Json storage = Json::object();
    for (int32_t type = 1; type <= 6; ++type) {
        auto it = d.storage.find(type);
        storage[std::to_string(type)] =
            it == d.storage.end() ? Json(nullptr) : record_to_json(it->second);
    }
    return Json{
        {"CellularLogSettings", record_to_json(d.cellular)},
        {"ConnectivityLogSettings", record_to_json(d.connectivity)},
        {"PmSensorHubLogSettings", record_to_json(d.pmSensorHub)},
        {"SensorHubLogSettings", record_to_json(d.sensorHub)},
        {"AgdspLogSettings", record_to_json(d.agdsp)},
        {"SubsystemPresence", record_to_json(d.presence)},
        {"CellularModemIoSettings", record_to_json(d.modemIo)},
        {"MipiLogConfig", record_to_json(d.mipi)},
        {"SubsystemStorageParam", storage},
        {"StorageMedia", static_cast<int32_t>(d.storageMedia)},
        {"ParentLogPath", d.parentLogPath},
        {"AutoReboot", cp_map_to_json(d.autoReboot)},
        {"RunState", cp_map_to_json(d.runState)},
        {"faults", faults_to_json(faults)},
    };
}

}  // namespace tarnmodem
