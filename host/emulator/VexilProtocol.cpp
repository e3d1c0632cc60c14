#include "host/emulator/VexilProtocol.h"

#include <functional>
#include <map>

namespace tarnmodem {
namespace {

const char kOk[] = "OK\n";
const char kUnknownRequest[] = "ERROR 1\n";
const char kUnknownSubsystem[] = "ERROR 9\n";
const char kNoAgdsp[] = "ERROR 10\n";

void switch_modem_log(DeviceState& s, bool on) {
    svc::CellularLogSettings& c = s.cellular;
    c.mode = c.logSwitch1 = c.logSwitch2 = c.logSwitch3 = on ? 1 : 0;
    c.logSwitch4 = c.logSwitch5 = c.logSwitch6 = on ? 1 : 0;
}

void switch_agdsp_log(DeviceState& s, bool on) {
    s.agdsp.enable = s.agdsp.enableAux = on ? 1 : 0;
}

void switch_pm_sensor_hub_log(DeviceState& s, bool on) {
    s.pmSensorHub.enable = s.sensorHub.enable = on ? 1 : 0;
}

struct SubsystemSwitch {
    svc::SubsystemType type;
    std::function<void(DeviceState&, bool)> apply;
};

// The daemon's own subsystem words.
const std::map<std::string, SubsystemSwitch>& subsystem_switches() {
    static const std::map<std::string, SubsystemSwitch> switches{
        {"5MODE", {svc::SubsystemType::MODEM, switch_modem_log}},
        {"WCN", {svc::SubsystemType::WCN, [](DeviceState& s, bool on) { s.connectivity.wcn = on; }}},
        {"GNSS",
         {svc::SubsystemType::GNSS, [](DeviceState& s, bool on) { s.connectivity.gnss = on; }}},
        {"AG-DSP", {svc::SubsystemType::AGDSP, switch_agdsp_log}},
        {"PM_SH", {svc::SubsystemType::PMSH, switch_pm_sensor_hub_log}},
    };
    return switches;
}

std::string switch_log(const std::string& word, bool on, DeviceState& state) {
    if (word.empty()) {
        for (const auto& [name, sw] : subsystem_switches()) {
            if (has_subsystem(state, static_cast<int32_t>(sw.type))) sw.apply(state, on);
        }
        return kOk;
    }
    auto it = subsystem_switches().find(word);
    if (it == subsystem_switches().end()) return kUnknownSubsystem;
    if (!has_subsystem(state, static_cast<int32_t>(it->second.type))) {
        return it->second.type == svc::SubsystemType::AGDSP ? kNoAgdsp : kUnknownSubsystem;
    }
    it->second.apply(state, on);
    return kOk;
}

std::string log_state(const DeviceState& s) {
    if (s.cellular.mode == 2) return "OK EVENT\n";
    bool any_on = s.cellular.mode != 0 || s.connectivity.wcn != 0 || s.connectivity.gnss != 0 ||
                  s.agdsp.enable != 0 || s.pmSensorHub.enable != 0;
    return any_on ? "OK ON\n" : "OK OFF\n";
}

}  // namespace

std::string answer_vexilserver_request(const std::string& request, DeviceState& state) {
    if (request == "GET_LOG_STATE") return log_state(state);
    if (request == "GET_LOG_TO_PC_STATE") return state.logToPc ? "OK ON\n" : "OK OFF\n";
    if (request == "ENABLE_LOG_TO_PC" || request == "DISABLE_LOG_TO_PC") {
        state.logToPc = request == "ENABLE_LOG_TO_PC";
        return kOk;
    }
    std::string command = request.substr(0, request.find(' '));
    bool has_word = command.size() < request.size();
    std::string word = has_word ? request.substr(command.size() + 1) : "";
    if (command != "ENABLE_LOG" && command != "DISABLE_LOG") return kUnknownRequest;
    if (has_word && word.empty()) return kUnknownSubsystem;
    return switch_log(word, command == "ENABLE_LOG", state);
}

}  // namespace tarnmodem
