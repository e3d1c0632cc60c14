#pragma once

#include <memory>

#include "front/ArgumentWords.h"
#include "front/Options.h"
#include "service/Request.h"

namespace tarn {

// Holds the command table and the recognised argument words, classifies the command line into
// Options and runs the one request that the command's handler builds. The table and the word lists
// are constant data, shared by every instance: a run builds nothing before it looks up its command.
class RequestManager {
  public:
    using HandlerWithOptions = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);
    using HandlerWithoutOptions = std::shared_ptr<Request> (RequestManager::*)();

    // A handler, bound with the Options or without them (exactly one of the two is set).
    struct Handler {
        HandlerWithOptions with_options;
        HandlerWithoutOptions without_options;
    };

    // One entry of the command table.
    struct Command {
        const char* word;
        Handler handler;
    };

    RequestManager() = default;
    ~RequestManager() = default;

    // Returns 1 when the command line is refused here, 0 once a handler ran.
    int process_command(int argc, char** argv);

    // The part of process_command before the request runs: checks the command word, classifies
    // the arguments and calls the handler, which leaves its request (or nothing) in *request.
    // Returns 1 when the command line is refused here, else 0.
    int prepare_request(int argc, char** argv, std::shared_ptr<Request>* request);

    // Writes the error usage text to stderr.
    static void usage();

    // Handlers. Each checks its own arguments and returns the request to run, or nothing.
    std::shared_ptr<Request> proc_manual();
    std::shared_ptr<Request> proc_clear(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_collect(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_flush();
    std::shared_ptr<Request> proc_crash(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_query_state(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_log(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_comp(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_comp_state(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_cp_max_size(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_cp_max_size(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_log_file_size(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_file_size(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_stor();
    std::shared_ptr<Request> proc_set_preferred_storage(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_log_parent_path(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_log_parent_path(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_overwrite(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_overwrite_state(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_file_nodel(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_file_nodel(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_cp_reset(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_cp_reset(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_cp_run_state(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_md(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_md();
    std::shared_ptr<Request> proc_set_io_limit(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_io_limit(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_mipilog(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_mipilog(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_log_pscfg(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_set_vexil_state(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_all_vexil_state();
    std::shared_ptr<Request> proc_set_vexil_to_pc(std::shared_ptr<Options> opts);
    std::shared_ptr<Request> proc_get_vexil_to_pc_state();
    std::shared_ptr<Request> proc_tarn_debug(std::shared_ptr<Options> opts);

  private:
    RequestManager(const RequestManager&) = delete;
    RequestManager& operator=(const RequestManager&) = delete;

    // The entry for the command word, or nullptr. Words match exactly.
    static const Command* find_command(const char* word);

    // The 36 commands, each word with its handler.
    static const Command commands[36];
    static const WordList subsys_words;
    static const WordList storage_words;
    static const WordList arg_words;
    static const WordList logdest_words;
};

// Ends the process with the given status after a handler has refused its arguments.
[[noreturn]] void end_process(int status);

// What end_process calls, after flushing the streams, instead of exit(). It must not return.
// Only a harness that drives the handlers in-process (a fuzzer) sets one; nullptr restores exit().
using ProcessEndHook = void (*)(int status);
void set_process_end_hook(ProcessEndHook hook);

}  // namespace tarn
