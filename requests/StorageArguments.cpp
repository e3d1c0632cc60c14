#include "requests/StorageArguments.h"

#include <cstdio>

#include "front/RequestManager.h"

namespace tarn {

namespace {

[[noreturn]] void refuse_and_end(const char* complaint) {
    fputs(complaint, stderr);
    RequestManager::usage();
    end_process(0);
}

}  // namespace

const std::string& require_subsystem(const Options& opts) {
    if (opts.subsystems.empty()) refuse_and_end("Missing argument.\n");
    return opts.subsystems.front();
}

const std::string& require_one_subsystem(const Options& opts) {
    if (opts.subsystems.size() != 1) refuse_and_end("Error argument.\n");
    return opts.subsystems.front();
}

void refuse_arguments() {
    fputs("Missing argument.\n", stderr);
    RequestManager::usage();
}

}  // namespace tarn
