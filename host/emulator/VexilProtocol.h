// The daemon's answers on its command socket.
#pragma once

#include <string>

#include "host/emulator/DeviceState.h"

namespace tarnmodem {

// Carries out one request (the line without its "\n") on the state and gives the response
// line with its "\n": "OK", "OK ON"/"OK OFF"/"OK EVENT" for the queries, "ERROR 1" for an
// unknown request, "ERROR 9" for an unknown subsystem word, "ERROR 10" for the audio DSP on a
// device without one.
std::string answer_vexilserver_request(const std::string& request, DeviceState& state);

}  // namespace tarnmodem
