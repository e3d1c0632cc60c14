// The emulator's vexilserver request handling: every line of the input, in order, answered on
// one device state, as one client connection's requests would be.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/emulator/DeviceState.h"
#include "host/emulator/VexilProtocol.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarnmodem::DeviceState state = tarnmodem::default_device_state();
    const std::string input(reinterpret_cast<const char*>(data), size);
    size_t start = 0;
    while (start <= input.size()) {
        size_t end = input.find('\n', start);
        if (end == std::string::npos) end = input.size();
        const std::string answer =
            tarnmodem::answer_vexilserver_request(input.substr(start, end - start), state);
        // Every request gets one whole response line.
        if (answer.empty() || answer.back() != '\n' || answer.find('\n') != answer.size() - 1) {
            abort();
        }
        start = end + 1;
    }
    return 0;
}
