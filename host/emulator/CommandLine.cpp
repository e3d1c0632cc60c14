#include "host/emulator/CommandLine.h"

#include <getopt.h>

#include <vector>

namespace tarnmodem {
namespace {

const option kOptions[] = {
    {"state", required_argument, nullptr, 's'}, {"journal", required_argument, nullptr, 'j'},
    {"log", required_argument, nullptr, 'l'},   {"logd", required_argument, nullptr, 'd'},
    {"help", no_argument, nullptr, 'h'},        {nullptr, 0, nullptr, 0},
};
// The field each option with a file name fills, in the order of kOptions.
std::string CommandLine::*const kPaths[] = {&CommandLine::state_path, &CommandLine::journal_path,
                                            &CommandLine::log_path, &CommandLine::logd_path};

}  // namespace

bool parse_command_line(int argc, const char* const* argv, CommandLine& out, std::string& error) {
    // getopt_long may reorder what it is given: it reads a copy, from its start (optind 0).
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) args.push_back(const_cast<char*>(argv[i]));
    optind = 0;
    opterr = 0;
    int c;
    // "+": the first word that is no option ends the options; ":": a missing value is reported.
    while ((c = getopt_long(argc, args.data(), "+:h", kOptions, nullptr)) != -1) {
        if (c == 'h') {
            out.help = true;
            continue;
        }
        if (c == '?') {
            error = "unknown argument: " + std::string(args[optind - 1]);
            return false;
        }
        size_t i = 0;
        while (kOptions[i].val != (c == ':' ? optopt : c)) ++i;
        if (c == ':' || *optarg == '\0') {
            error = std::string("--") + kOptions[i].name + " needs a file name";
            return false;
        }
        out.*kPaths[i] = optarg;
    }
    if (optind < argc) {
        error = "unknown argument: " + std::string(args[optind]);
        return false;
    }
    return true;
}

}  // namespace tarnmodem
