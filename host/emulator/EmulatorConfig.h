// Everything the state file decides: the initial device state, how the service is published,
// the injected faults and the behaviour of the command socket.
#pragma once

#include <string>

#include "host/emulator/DeviceState.h"
#include "host/emulator/Faults.h"
#include "host/emulator/VexilServer.h"

namespace tarnmodem {

enum class ServicePublication {
    kPresent,         // the log-control service under its instance name
    kAbsent,          // nothing under the name
    kWrongInterface,  // a service of another interface under the name
};

struct EmulatorConfig {
    ServicePublication service = ServicePublication::kPresent;
    DeviceState device = default_device_state();
    FaultTable faults;
    VexilServerConfig vexilserver;
};

// Fills config from the JSON text of a state file, on top of the defaults. False with a message
// naming the offending key when the text is not a valid state.
bool parse_state(const std::string& text, EmulatorConfig& config, std::string& error);
// The same for a state already parsed as JSON.
bool parse_state_json(const Json& root, EmulatorConfig& config, std::string& error);

// Reads and parses a state file; the message names the file.
bool load_state_file(const std::string& path, EmulatorConfig& config, std::string& error);

}  // namespace tarnmodem
