// Everything the state file decides: the initial device state, how the service is published,
// the injected faults and the behaviour of the command socket.
#pragma once

#include "host/emulator/DeviceState.h"
#include "host/emulator/Faults.h"
#include "host/emulator/VexilServer.h"

namespace tarnmodem {

enum class ServicePublication {
    PRESENT,          // the log-control service under its instance name
    ABSENT,           // nothing under the name
    WRONG_INTERFACE,  // a service of another interface under the name
};

struct EmulatorConfig {
    ServicePublication service = ServicePublication::PRESENT;
    DeviceState device = default_device_state();
    FaultTable faults;
    VexilServerConfig vexilserver;
};

}  // namespace tarnmodem
