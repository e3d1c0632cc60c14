// Faults the state file injects into service operations.
#pragma once

#include <android/binder_auto_utils.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tarnmodem {

// The status an operation answers with.
struct FaultStatus {
    enum class Kind { OK, EXCEPTION, STATUS_CODE };
    Kind kind = Kind::OK;
    int32_t code = 0;  // the exception code or the binder status code

    ndk::ScopedAStatus make() const;
};

struct Fault {
    std::optional<FaultStatus> status;  // answer with this status instead of doing anything
    std::optional<int32_t> result;      // return this instead, without changing the state
    bool die = false;                   // end the process without answering
};

using FaultTable = std::map<std::string, Fault>;

// The exception code of a name such as "EX_ILLEGAL_STATE"; nothing for an unknown name.
std::optional<int32_t> exception_code(const std::string& name);
// The name of an exception code that exception_code knows.
std::string exception_name(int32_t code);

// An operation of the service: its name and whether it returns an int32 (an int result or an
// int-backed enum), which a "result" fault can replace.
struct Operation {
    const char* name;
    bool returns_int;
};

// Every operation of the interface, by name.
const std::map<std::string, Operation>& service_operations();

}  // namespace tarnmodem
