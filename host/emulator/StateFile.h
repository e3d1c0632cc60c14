// The state file: JSON that sets the initial device state, how the service is published, the
// injected faults and the behaviour of the command socket (README.md beside this file).
#pragma once

#include <string>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/JsonLines.h"

namespace tarnmodem {

// Fills config from the JSON text of a state file, on top of the defaults. False with a message
// naming the offending key when the text is not a valid state.
bool parse_state(const std::string& text, EmulatorConfig& config, std::string& error);
// The same for a state already parsed as JSON.
bool parse_state_json(const Json& root, EmulatorConfig& config, std::string& error);

// Reads and parses a state file; the message names the file.
bool load_state_file(const std::string& path, EmulatorConfig& config, std::string& error);

}  // namespace tarnmodem
