// Drives the front end as the entry point does: the input is the argument vector (arguments
// separated by NUL bytes), classified and handed to the command's handler. A handler's refusal
// comes back here through the process-end hook instead of ending the process. The request a
// handler builds is not run.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "front/RequestManager.h"

namespace {

// Arguments after the program name that one input may hold.
constexpr size_t kMaxArguments = 8;

struct ProcessEnded {};

[[noreturn]] void unwind_to_fuzzer(int /*status*/) {
    throw ProcessEnded{};
}

std::vector<std::string> split_arguments(const uint8_t* data, size_t size) {
    std::vector<std::string> args{"vexilctl"};
    if (size == 0) return args;
    std::string current;
    for (size_t i = 0; i < size && args.size() <= kMaxArguments; ++i) {
        if (data[i] == '\0') {
            args.push_back(current);
            current.clear();
        } else {
            current.push_back(static_cast<char>(data[i]));
        }
    }
    if (args.size() <= kMaxArguments) args.push_back(current);
    return args;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    tarn::set_process_end_hook(unwind_to_fuzzer);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static tarn::RequestManager manager;
    std::vector<std::string> args = split_arguments(data, size);
    std::vector<char*> argv;
    for (std::string& arg : args) argv.push_back(arg.data());
    argv.push_back(nullptr);

    std::shared_ptr<tarn::Request> request;
    try {
        manager.prepare_request(static_cast<int>(args.size()), argv.data(), &request);
    } catch (const ProcessEnded&) {
        // A handler refused its arguments.
    }
    return 0;
}
