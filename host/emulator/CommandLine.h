// tarnmodem [--state FILE] [--journal FILE] [--log FILE] [--logd SOCKET] | --help
#pragma once

#include <string>

namespace tarnmodem {

struct CommandLine {
    std::string state_path;    // empty: the defaults
    std::string journal_path;  // empty: no journal
    std::string log_path;      // empty: log lines are received and dropped
    std::string logd_path;     // empty: no socket for a device's liblog
    bool help = false;         // print the usage and leave
};

inline constexpr char kUsage[] =
    "usage: tarnmodem [--state FILE] [--journal FILE] [--log FILE] [--logd SOCKET]\n"
    "Emulates the log daemon for vexilctl until SIGTERM or SIGINT; SIGHUP reads FILE again.\n"
    "--logd: also receives log lines in logd's format at SOCKET (a device's /dev/socket/logdw).\n"
    "Guide: host/emulator/README.md\n";

// False with a message when the arguments are not of the form above.
bool parse_command_line(int argc, const char* const* argv, CommandLine& out, std::string& error);

}  // namespace tarnmodem
