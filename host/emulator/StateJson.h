// Writing a device state and its faults back as the JSON of a state file.
#pragma once

#include "host/emulator/DeviceState.h"
#include "host/emulator/Faults.h"
#include "host/emulator/JsonLines.h"

namespace tarnmodem {

// The state-file object that, read on top of the defaults, gives exactly this state and these
// faults (every record whole, every storage entry, null for a subsystem without storage).
Json state_to_json(const DeviceState& device, const FaultTable& faults);

}  // namespace tarnmodem
