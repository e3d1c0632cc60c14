// Reading the state file. The JSON library reports errors by exceptions; they stop here.
#include "host/emulator/StateFile.h"

#include <fstream>
#include <functional>
#include <iterator>

#include "host/emulator/RecordFields.h"

namespace tarnmodem {
namespace {

template <typename Record>
void read_record(const Json& value, Record& record) {
    record_from_json(value, record, RecordFields<Record>::kName);
}

// The integer a key such as "3" spells, within [low, high]; StateError otherwise.
int32_t index_key(const std::string& key, const std::string& path, int32_t low, int32_t high) {
    if (key.empty() || key.size() > 2 || key.find_first_not_of("0123456789") != std::string::npos ||
        std::stoi(key) < low || std::stoi(key) > high) {
        throw StateError(
            path, "must be a number from " + std::to_string(low) + " to " + std::to_string(high));
    }
    return std::stoi(key);
}

void read_storage(const Json& value, DeviceState& device) {
    const std::string name = "SubsystemStorageParam";
    if (!value.is_object()) throw StateError(name, "must be an object");
    for (const auto& [key, param] : value.items()) {
        std::string path = name + "." + key;
        int32_t type = index_key(key, path, 1, 6);
        if (param.is_null()) {
            device.storage.erase(type);  // this subsystem stores no logs
            continue;
        }
        record_from_json(param, device.storage[type], path);
    }
}

void read_cp_map(const Json& value, const std::string& name, std::map<int32_t, int32_t>& out) {
    if (!value.is_object()) throw StateError(name, "must be an object");
    for (const auto& [key, state] : value.items()) {
        std::string path = name + "." + key;
        out[index_key(key, path, kModemCpIndex, kWcnCpIndex)] = int32_from_json(state, path);
    }
}

FaultStatus read_fault_status(const Json& value, const std::string& path) {
    FaultStatus status;
    if (value.is_string()) {
        std::string name = value.get<std::string>();
        if (name == "ok") return status;
        std::optional<int32_t> code = exception_code(name);
        if (!code) throw StateError(path, "names no exception: " + name);
        status.kind = FaultStatus::Kind::EXCEPTION;
        status.code = *code;
        return status;
    }
    if (!value.is_number_integer()) {
        throw StateError(path, "must be \"ok\", an exception name or a status code");
    }
    status.kind = FaultStatus::Kind::STATUS_CODE;
    status.code = int32_from_json(value, path);
    return status;
}

void read_faults(const Json& value, FaultTable& faults) {
    if (!value.is_object()) throw StateError("faults", "must be an object");
    for (const auto& [op_name, fields] : value.items()) {
        std::string path = "faults." + op_name;
        auto op = service_operations().find(op_name);
        if (op == service_operations().end()) throw StateError(path, "is not an operation");
        if (!fields.is_object()) throw StateError(path, "must be an object");
        Fault fault;
        for (const auto& [key, item] : fields.items()) {
            std::string item_path = path + "." + key;
            if (key == "status") {
                fault.status = read_fault_status(item, item_path);
            } else if (key == "result") {
                if (!op->second.returns_int) throw StateError(item_path, "has no int to return");
                fault.result = int32_from_json(item, item_path);
            } else if (key == "die") {
                if (!item.is_boolean()) throw StateError(item_path, "must be true or false");
                fault.die = item.get<bool>();
            } else {
                throw StateError(item_path, "is not a fault (status, result, die)");
            }
        }
        faults[op_name] = fault;
    }
}

// The longest pause of a reply piece: the longest wait of a client, and a little more.
constexpr int32_t kMaxDelayMs = 600000;

// A list of strings (bytes, each sent in one write) and numbers (the pause in ms before the
// next bytes).
std::vector<ReplyPiece> read_pieces(const Json& value, const std::string& path) {
    std::vector<ReplyPiece> pieces;
    int delay_ms = 0;
    for (const Json& item : value) {
        if (item.is_string()) {
            pieces.push_back({delay_ms, item.get<std::string>()});
            delay_ms = 0;
            continue;
        }
        int32_t pause = item.is_number_integer() ? int32_from_json(item, path) : -1;
        if (pause < 0 || pause > kMaxDelayMs) {
            throw StateError(path, "must hold strings and pauses from 0 to " +
                                       std::to_string(kMaxDelayMs) + " ms");
        }
        delay_ms += pause;
    }
    if (delay_ms > 0) pieces.push_back({delay_ms, ""});
    return pieces;
}

ReplyOverride read_reply(const Json& reply, const std::string& path) {
    ReplyOverride out;
    if (reply.is_null()) {
        out.kind = ReplyOverride::Kind::SILENT;
    } else if (reply == "close") {
        out.kind = ReplyOverride::Kind::CLOSE;
    } else if (reply.is_string()) {
        out.pieces.push_back({0, reply.get<std::string>()});
    } else if (reply.is_array()) {
        out.pieces = read_pieces(reply, path);
    } else {
        throw StateError(path, "must be a string, a list or null");
    }
    return out;
}

void read_vexilserver(const Json& value, VexilServerConfig& config) {
    if (!value.is_object()) throw StateError("vexilserver", "must be an object");
    for (const auto& [key, item] : value.items()) {
        std::string path = "vexilserver." + key;
        if (key == "up") {
            if (!item.is_boolean()) throw StateError(path, "must be true or false");
            config.up = item.get<bool>();
        } else if (key == "replies") {
            if (!item.is_object()) throw StateError(path, "must be an object");
            for (const auto& [line, reply] : item.items()) {
                config.replies[line] = read_reply(reply, path + "." + line);
            }
        } else {
            throw StateError(path, "is not a key of vexilserver (up, replies)");
        }
    }
}

void read_service(const Json& value, ServicePublication& service) {
    if (value == "present") {
        service = ServicePublication::PRESENT;
    } else if (value == "absent") {
        service = ServicePublication::ABSENT;
    } else if (value == "wrong-interface") {
        service = ServicePublication::WRONG_INTERFACE;
    } else {
        throw StateError("service", "must be \"present\", \"absent\" or \"wrong-interface\"");
    }
}

void read_state(const Json& root, EmulatorConfig& config) {
    DeviceState& d = config.device;
    using Reader = std::function<void(const Json&)>;
    const std::map<std::string, Reader> readers{
        {"service", [&](const Json& v) { read_service(v, config.service); }},
        {"CellularLogSettings", [&](const Json& v) { read_record(v, d.cellular); }},
        {"ConnectivityLogSettings", [&](const Json& v) { read_record(v, d.connectivity); }},
        {"PmSensorHubLogSettings", [&](const Json& v) { read_record(v, d.pmSensorHub); }},
        {"SensorHubLogSettings", [&](const Json& v) { read_record(v, d.sensorHub); }},
        {"AgdspLogSettings", [&](const Json& v) { read_record(v, d.agdsp); }},
        {"SubsystemPresence", [&](const Json& v) { read_record(v, d.presence); }},
        {"CellularModemIoSettings", [&](const Json& v) { read_record(v, d.modemIo); }},
        {"MipiLogConfig", [&](const Json& v) { read_record(v, d.mipi); }},
        {"SubsystemStorageParam", [&](const Json& v) { read_storage(v, d); }},
        {"StorageMedia",
         [&](const Json& v) {
             d.storageMedia = static_cast<svc::StorageMedia>(int32_from_json(v, "StorageMedia"));
         }},
        {"ParentLogPath",
         [&](const Json& v) {
             if (!v.is_string()) throw StateError("ParentLogPath", "must be a string");
             d.parentLogPath = v.get<std::string>();
         }},
        {"AutoReboot", [&](const Json& v) { read_cp_map(v, "AutoReboot", d.autoReboot); }},
        {"RunState", [&](const Json& v) { read_cp_map(v, "RunState", d.runState); }},
        {"faults", [&](const Json& v) { read_faults(v, config.faults); }},
        {"vexilserver", [&](const Json& v) { read_vexilserver(v, config.vexilserver); }},
    };
    if (!root.is_object()) throw StateError("(top level)", "must be a JSON object");
    for (const auto& [key, value] : root.items()) {
        auto reader = readers.find(key);
        if (reader == readers.end()) throw StateError(key, "is not a state key");
        reader->second(value);
    }
}

}  // namespace

bool parse_state(const std::string& text, EmulatorConfig& config, std::string& error) {
    Json root;
    try {
        root = Json::parse(text);
    } catch (const Json::exception& e) {
        error = std::string("not valid JSON: ") + e.what();
        return false;
    }
    return parse_state_json(root, config, error);
}

bool parse_state_json(const Json& root, EmulatorConfig& config, std::string& error) {
    try {
        read_state(root, config);
        return true;
    } catch (const StateError& e) {
        error = e.what();
    } catch (const Json::exception& e) {
        error = std::string("not valid JSON: ") + e.what();
    } catch (const std::exception& e) {
        error = e.what();
    }
    return false;
}

bool load_state_file(const std::string& path, EmulatorConfig& config, std::string& error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "state file " + path + ": cannot be read";
        return false;
    }
    std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (parse_state(text, config, error)) return true;
    error = "state file " + path + ": " + error;
    return false;
}

}  // namespace tarnmodem
