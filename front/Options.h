#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarn {

// The classified arguments of one command. Filled by RequestManager::process_command only.
struct Options {
    std::vector<std::string> subsystems;
    std::string storage;
    std::string cmd;
    std::string logdest;
    int64_t number = 0;
    std::string param1;
    std::string param2;
};

}  // namespace tarn
