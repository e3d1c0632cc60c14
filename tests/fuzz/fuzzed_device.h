// The device side of tool_fuzzer: the log-control service and the vexilserver socket in this
// process, every answer taken from the fuzz input. The tool reaches them through the platform
// calls it makes (AServiceManager_getService, AIBinder_DeathRecipient_new, AIBinder_linkToDeath,
// socket_local_client, poll), which the fuzz build wraps at link time (-Wl,--wrap), so that the
// tool's sources stay as they ship.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>
#include <stdint.h>

#include <optional>
#include <string>
#include <vector>

namespace fuzz {

// Descriptors of the harness and the device side are kept at or above this, clear of those the
// tool gets.
constexpr int kHarnessFds = 100;

// How a read (a get operation) failed: its status, or the int it answered.
enum Failure : unsigned {
    kStatus = 1,
    kMinusOne = 2,
    kMinusThree = 4,   // not supported
    kOtherResult = 8,  // any other result code but 0
};

// One service call: its transaction code and, for a read, how it failed (0: it did not).
struct Call {
    uint32_t code;
    unsigned failure;
    bool write;
};

// What the tool did to the device side during one input.
struct Journal {
    int lookups = 0;      // AServiceManager_getService
    int connections = 0;  // socket_local_client
    std::vector<Call> calls;
    std::optional<std::string> path;  // the last path the service answered, as the tool reads it
    std::string sent;                 // the bytes the tool wrote to vexilserver
};

// Builds the service and its binders; once, before the first input.
void set_up_device();
// Answers from `input` until end_device(), which returns the input's journal.
void start_device(FuzzedDataProvider& input);
const Journal& end_device();

// Ends the input when a rule is broken: the reason on the saved standard error, then abort().
[[noreturn]] void fail(const char* rule);

}  // namespace fuzz
