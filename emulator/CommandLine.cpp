#include "CommandLine.h"

#include <cstring>
#include <map>

namespace tarnmodem {

bool parse_command_line(int argc, const char* const* argv, CommandLine& out, std::string& error) {
    const std::map<std::string, std::string CommandLine::*> options{
        {"--state", &CommandLine::state_path},
        {"--journal", &CommandLine::journal_path},
        {"--log", &CommandLine::log_path},
    };
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            out.help = true;
            continue;
        }
        std::string value;
        bool has_value = false;
        size_t eq = arg.find('=');
        if (arg.rfind("--", 0) == 0 && eq != std::string::npos) {
            value = arg.substr(eq + 1);
            arg.resize(eq);
            has_value = true;
        }
        auto option = options.find(arg);
        if (option == options.end()) {
            error = "unknown argument: " + std::string(argv[i]);
            return false;
        }
        if (!has_value) {
            if (i + 1 >= argc) {
                error = arg + " needs a file name";
                return false;
            }
            value = argv[++i];
        }
        if (value.empty()) {
            error = arg + " needs a file name";
            return false;
        }
        out.*(option->second) = value;
    }
    return true;
}

}  // namespace tarnmodem
