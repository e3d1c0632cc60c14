// tarnmodem [--state FILE] [--journal FILE] [--log FILE]
#pragma once

#include <string>

namespace tarnmodem {

struct CommandLine {
    std::string state_path;    // empty: the defaults
    std::string journal_path;  // empty: no journal
    std::string log_path;      // empty: log lines are received and dropped
};

inline constexpr char kUsage[] = "usage: tarnmodem [--state FILE] [--journal FILE] [--log FILE]\n";

// False with a message when the arguments are not of the form above.
bool parse_command_line(int argc, const char* const* argv, CommandLine& out, std::string& error);

}  // namespace tarnmodem
