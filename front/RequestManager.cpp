#include "front/RequestManager.h"

#include <cstdio>
#include <cstdlib>

#include "front/ArgumentClassifier.h"
#include "front/ArgumentWords.h"
#include "service/TarnLog.h"

namespace tarn {
namespace {

using HandlerWithOptions = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);
using HandlerWithoutOptions = std::shared_ptr<Request> (RequestManager::*)();

RequestManager::Handler bind_handler(RequestManager* manager, HandlerWithOptions handler) {
    return std::bind(handler, manager, std::placeholders::_1);
}

// The bound call drops the Options it is given.
RequestManager::Handler bind_handler(RequestManager* manager, HandlerWithoutOptions handler) {
    return std::bind(handler, manager);
}

}  // namespace

RequestManager::RequestManager()
    : commands{
          {"man", bind_handler(this, &RequestManager::proc_manual)},
          {"clear", bind_handler(this, &RequestManager::proc_clear)},
          {"collect", bind_handler(this, &RequestManager::proc_collect)},
          {"flush", bind_handler(this, &RequestManager::proc_flush)},
          {"crash", bind_handler(this, &RequestManager::proc_crash)},
          {"state", bind_handler(this, &RequestManager::proc_query_state)},
          {"setlog", bind_handler(this, &RequestManager::proc_set_log)},
          {"setcomp", bind_handler(this, &RequestManager::proc_set_comp)},
          {"getcomp", bind_handler(this, &RequestManager::proc_get_comp_state)},
          {"getcpcapacity", bind_handler(this, &RequestManager::proc_get_cp_max_size)},
          {"setcpcapacity", bind_handler(this, &RequestManager::proc_set_cp_max_size)},
          {"getfilesize", bind_handler(this, &RequestManager::proc_get_log_file_size)},
          {"setfilesize", bind_handler(this, &RequestManager::proc_set_file_size)},
          {"getstor", bind_handler(this, &RequestManager::proc_get_stor)},
          {"setstor", bind_handler(this, &RequestManager::proc_set_preferred_storage)},
          {"setlogpath", bind_handler(this, &RequestManager::proc_set_log_parent_path)},
          {"getlogpath", bind_handler(this, &RequestManager::proc_get_log_parent_path)},
          {"setoverwrite", bind_handler(this, &RequestManager::proc_overwrite)},
          {"getoverwrite", bind_handler(this, &RequestManager::proc_get_overwrite_state)},
          {"setfilenodel", bind_handler(this, &RequestManager::proc_set_file_nodel)},
          {"getfilenodel", bind_handler(this, &RequestManager::proc_get_file_nodel)},
          {"setcpreset", bind_handler(this, &RequestManager::proc_set_cp_reset)},
          {"getcpreset", bind_handler(this, &RequestManager::proc_get_cp_reset)},
          {"getcprunstate", bind_handler(this, &RequestManager::proc_get_cp_run_state)},
          {"setminidump", bind_handler(this, &RequestManager::proc_set_md)},
          {"getminidump", bind_handler(this, &RequestManager::proc_get_md)},
          {"setiolimit", bind_handler(this, &RequestManager::proc_set_io_limit)},
          {"getiolimit", bind_handler(this, &RequestManager::proc_get_io_limit)},
          {"setmipilog", bind_handler(this, &RequestManager::proc_set_mipilog)},
          {"getmipilog", bind_handler(this, &RequestManager::proc_get_mipilog)},
          {"setlogpscfg", bind_handler(this, &RequestManager::proc_set_log_pscfg)},
          {"setvexil", bind_handler(this, &RequestManager::proc_set_vexil_state)},
          {"getallvexilstate", bind_handler(this, &RequestManager::proc_get_all_vexil_state)},
          {"setvexiltopc", bind_handler(this, &RequestManager::proc_set_vexil_to_pc)},
          {"getvexiltopcstate", bind_handler(this, &RequestManager::proc_get_vexil_to_pc_state)},
          {"dbg", bind_handler(this, &RequestManager::proc_tarn_debug)},
      },
      subsys_words(word_list(kSubsysWords)),
      storage_words(word_list(kStorageWords)),
      arg_words(word_list(kArgWords)),
      logdest_words(word_list(kLogdestWords)) {}

RequestManager::~RequestManager() = default;

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
    auto command = commands.find(argv[1]);
    if (command == commands.end()) {
        usage();
        return 1;
    }

    auto opts = std::make_shared<Options>();
    const ArgumentWords words{subsys_words, storage_words, arg_words, logdest_words};
    if (classify_arguments(argc, argv, words, *opts) != 0) return 1;

    *request = command->second(opts);
    return 0;
}

bool is_number(const std::string& word) {
    return word.find_first_not_of("0123456789") == std::string::npos;
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
