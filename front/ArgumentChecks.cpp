#include "front/ArgumentChecks.h"

#include <cstdio>

#include "front/RequestManager.h"

namespace tarn {

void complain_missing_argument() {
    fputs("Missing argument.\n", stderr);
}

void report_missing_argument() {
    complain_missing_argument();
    RequestManager::usage();
}

void end_missing_argument() {
    report_missing_argument();
    end_process(0);
}

void end_error_argument() {
    fputs("Error argument.\n", stderr);
    RequestManager::usage();
    end_process(0);
}

const std::string& require_subsystem(const Options& opts) {
    if (opts.subsystems.empty()) end_missing_argument();
    return opts.subsystems.front();
}

const std::string& require_one_subsystem(const Options& opts) {
    if (opts.subsystems.size() != 1) end_error_argument();
    return opts.subsystems.front();
}

bool has_subsystem(const Options& opts) {
    if (!opts.subsystems.empty()) return true;
    report_missing_argument();
    return false;
}

}  // namespace tarn
