// The emulator's state file, as a user writes it: any text is either taken or refused with a
// message, never a crash or an exception that escapes (which ends the daemon without its
// "state file ...: ..." line and exit status 2).
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/StateFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarnmodem::EmulatorConfig config;
    std::string error;
    bool taken = tarnmodem::parse_state(std::string(reinterpret_cast<const char*>(data), size),
                                        config, error);
    // A refusal always says why; a file that is taken leaves no complaint behind.
    if (taken == error.empty()) return 0;
    abort();
}
