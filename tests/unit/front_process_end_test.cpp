// prepare_request and the process-end hook: what an in-process driver (the tool fuzzer)
// relies on. A refused command line returns 1 without a request; a handler's refusal reaches the
// hook with status 0 instead of ending the process; an accepted one leaves its request. The
// device build has no exceptions, so the hook here ends a forked child with a status of its own.
#include <gtest/gtest.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "front/RequestManager.h"
#include "tests/unit/front_test_support.h"

namespace tarn {
namespace {

constexpr int kHookExit = 40;  // the hook's exit status is this plus the status it was given

[[noreturn]] void exit_from_hook(int status) {
    _exit(kHookExit + status);
}

int prepare(const std::vector<std::string>& words, std::shared_ptr<Request>* request) {
    RequestManager manager;
    test::CommandLine line(words);
    return manager.prepare_request(line.argc(), line.argv(), request);
}

TEST(ProcessEndHookTest, OutcomesOfEachStage) {
    struct Case {
        std::vector<std::string> words;
        int returned;  // -1: the hook ran with status 0
        bool has_request;
    };
    const Case cases[] = {
        {{}, 1, false},          // no command word
        {{"nosuch"}, 1, false},  // unknown command word
        {{"state"}, -1, false},  // handler refuses: hook instead of exit
        {{"setlogpscfg", "enable"}, -1, false},
        {{"setcpcapacity", "modem"}, 0, false},  // refused with an empty request
        {{"state", "modem"}, 0, true},           // accepted: the request, not run
    };
    for (const Case& c : cases) {
        std::shared_ptr<Request> request;
        if (c.returned == -1) {
            EXPECT_EXIT(
                {
                    set_process_end_hook(exit_from_hook);
                    prepare(c.words, &request);
                    _exit(1);
                },
                testing::ExitedWithCode(kHookExit), "")
                << testing::PrintToString(c.words);
            continue;
        }
        testing::internal::CaptureStderr();
        EXPECT_EQ(prepare(c.words, &request), c.returned) << testing::PrintToString(c.words);
        testing::internal::GetCapturedStderr();
        EXPECT_EQ(request != nullptr, c.has_request) << testing::PrintToString(c.words);
    }
}

}  // namespace
}  // namespace tarn
