#include "front/RequestManager.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "front/ArgumentChecks.h"
#include "front/ArgumentClassifier.h"
#include "front/ArgumentWords.h"
#include "front/TarnLog.h"

namespace tarn {
namespace {

constexpr RequestManager::Handler bind_handler(RequestManager::HandlerWithOptions handler) {
    return {handler, nullptr};
}

// The call drops the Options it is given.
constexpr RequestManager::Handler bind_handler(RequestManager::HandlerWithoutOptions handler) {
    return {nullptr, handler};
}

}  // namespace

// Constant data: laid out by the compiler, nothing runs at start-up to build it.
const RequestManager::Command RequestManager::commands[36] = {
    {"man", bind_handler(&RequestManager::proc_manual)},
    {"clear", bind_handler(&RequestManager::proc_clear)},
    {"collect", bind_handler(&RequestManager::proc_collect)},
    {"flush", bind_handler(&RequestManager::proc_flush)},
    {"crash", bind_handler(&RequestManager::proc_crash)},
    {"state", bind_handler(&RequestManager::proc_query_state)},
    {"setlog", bind_handler(&RequestManager::proc_set_log)},
    {"setcomp", bind_handler(&RequestManager::proc_set_comp)},
    {"getcomp", bind_handler(&RequestManager::proc_get_comp_state)},
    {"getcpcapacity", bind_handler(&RequestManager::proc_get_cp_max_size)},
    {"setcpcapacity", bind_handler(&RequestManager::proc_set_cp_max_size)},
    {"getfilesize", bind_handler(&RequestManager::proc_get_log_file_size)},
    {"setfilesize", bind_handler(&RequestManager::proc_set_file_size)},
    {"getstor", bind_handler(&RequestManager::proc_get_stor)},
    {"setstor", bind_handler(&RequestManager::proc_set_preferred_storage)},
    {"setlogpath", bind_handler(&RequestManager::proc_set_log_parent_path)},
    {"getlogpath", bind_handler(&RequestManager::proc_get_log_parent_path)},
    {"setoverwrite", bind_handler(&RequestManager::proc_overwrite)},
    {"getoverwrite", bind_handler(&RequestManager::proc_get_overwrite_state)},
    {"setfilenodel", bind_handler(&RequestManager::proc_set_file_nodel)},
    {"getfilenodel", bind_handler(&RequestManager::proc_get_file_nodel)},
    {"setcpreset", bind_handler(&RequestManager::proc_set_cp_reset)},
    {"getcpreset", bind_handler(&RequestManager::proc_get_cp_reset)},
    {"getcprunstate", bind_handler(&RequestManager::proc_get_cp_run_state)},
    {"setminidump", bind_handler(&RequestManager::proc_set_md)},
    {"getminidump", bind_handler(&RequestManager::proc_get_md)},
    {"setiolimit", bind_handler(&RequestManager::proc_set_io_limit)},
    {"getiolimit", bind_handler(&RequestManager::proc_get_io_limit)},
    {"setmipilog", bind_handler(&RequestManager::proc_set_mipilog)},
    {"getmipilog", bind_handler(&RequestManager::proc_get_mipilog)},
    {"setlogpscfg", bind_handler(&RequestManager::proc_set_log_pscfg)},
    {"setvexil", bind_handler(&RequestManager::proc_set_vexil_state)},
    {"getallvexilstate", bind_handler(&RequestManager::proc_get_all_vexil_state)},
    {"setvexiltopc", bind_handler(&RequestManager::proc_set_vexil_to_pc)},
    {"getvexiltopcstate", bind_handler(&RequestManager::proc_get_vexil_to_pc_state)},
    {"dbg", bind_handler(&RequestManager::proc_tarn_debug)},
};

const WordList RequestManager::subsys_words(kSubsysWords);
const WordList RequestManager::storage_words(kStorageWords);
const WordList RequestManager::arg_words(kArgWords);
const WordList RequestManager::logdest_words(kLogdestWords);

const RequestManager::Command* RequestManager::find_command(const char* word) {
    for (const Command& command : commands) {
        if (strcmp(command.word, word) == 0) return &command;
    }
    return nullptr;
}

int RequestManager::process_command(int argc, char** argv) {
    std::shared_ptr<Request> request;
    if (prepare_request(argc, argv, &request) != 0) return 1;
    if (request) {
        request->do_request();  // the outcome is already reported; the exit status stays 0
    } else {
        TARN_LOG_ERRNO("%s: request is null!", "process_command");
    }
    return 0;
}

int RequestManager::prepare_request(int argc, char** argv, std::shared_ptr<Request>* request) {
    if (argc < 2) {
        report_missing_argument();
        return 1;
    }
    const Command* command = find_command(argv[1]);
    if (command == nullptr) {
        usage();
        return 1;
    }

    auto opts = std::make_shared<Options>();
    const ArgumentWords words{subsys_words, storage_words, arg_words, logdest_words};
    if (classify_arguments(argc, argv, words, *opts) != 0) return 1;

    const Handler& handler = command->handler;
    *request = handler.with_options != nullptr ? (this->*handler.with_options)(std::move(opts))
                                               : (this->*handler.without_options)();
    return 0;
}

namespace {

ProcessEndHook process_end_hook = nullptr;

}  // namespace

void set_process_end_hook(ProcessEndHook hook) {
    process_end_hook = hook;
}

void end_process(int status) {
    fflush(nullptr);
    if (process_end_hook != nullptr) process_end_hook(status);
    exit(status);
}

}  // namespace tarn
