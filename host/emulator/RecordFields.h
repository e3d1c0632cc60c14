// The fields of each service record by their interface names, for the state file and journal.
#pragma once

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "host/emulator/JsonLines.h"
#include "host/emulator/ServiceTypes.h"

namespace tarnmodem {

// A state file entry that does not fit; names the key as a dotted path.
class StateError : public std::runtime_error {
  public:
    StateError(const std::string& key, const std::string& problem)
        : std::runtime_error("\"" + key + "\" " + problem) {}
};

template <typename Record>
struct Field {
    const char* name;
    std::variant<int32_t Record::*, std::string Record::*> member;
};

// Name of the record as the interface declares it, and its fields in declaration order.
template <typename Record>
struct RecordFields;

#define TARNMODEM_RECORD(Type)                                \
    template <>                                               \
    struct RecordFields<svc::Type> {                          \
        static constexpr const char* kName = #Type;           \
        static const std::vector<Field<svc::Type>>& fields(); \
    }

TARNMODEM_RECORD(AgdspLogSettings);
TARNMODEM_RECORD(CellularLogSettings);
TARNMODEM_RECORD(CellularModemIoSettings);
TARNMODEM_RECORD(ConnectivityLogSettings);
TARNMODEM_RECORD(MipiLogConfig);
TARNMODEM_RECORD(PmSensorHubLogSettings);
TARNMODEM_RECORD(SensorHubLogSettings);
TARNMODEM_RECORD(SubsystemPresence);
TARNMODEM_RECORD(SubsystemStorageParam);

#undef TARNMODEM_RECORD

// The int32 of a JSON value, or StateError naming key.
int32_t int32_from_json(const Json& value, const std::string& key);

// {"field": value, ...} in declaration order.
template <typename Record>
Json record_to_json(const Record& record) {
    Json out = Json::object();
    for (const auto& field : RecordFields<Record>::fields()) {
        std::visit([&](auto member) { out[field.name] = record.*member; }, field.member);
    }
    return out;
}

// Sets the fields named in the object and leaves the others; StateError for an unknown field or
// a value of the wrong type. key is the dotted path of the object, for the message.
template <typename Record>
void record_from_json(const Json& object, Record& record, const std::string& key) {
    if (!object.is_object()) throw StateError(key, "must be an object");
    const auto& fields = RecordFields<Record>::fields();
    for (const auto& item : object.items()) {
        const std::string& name = item.key();
        const Json& value = item.value();
        std::string path = key + "." + name;
        auto it = std::find_if(fields.begin(), fields.end(),
                               [&](const Field<Record>& f) { return name == f.name; });
        if (it == fields.end()) throw StateError(path, "is not a field of " + key);
        if (auto member = std::get_if<int32_t Record::*>(&it->member)) {
            record.** member = int32_from_json(value, path);
        } else {
            if (!value.is_string()) throw StateError(path, "must be a string");
            record.*std::get<std::string Record::*>(it->member) = value.template get<std::string>();
        }
    }
}

}  // namespace tarnmodem
