// prepare_request and the process-end hook: what an in-process driver (the front-end fuzzer)
// relies on. A refused command line returns 1 without a request; a handler's refusal reaches the
// hook with status 0 instead of ending the process; an accepted one leaves its request.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "front/RequestManager.h"
#include "front_test_support.h"

namespace tarn {
namespace {

struct Ended {
    int status;
};

[[noreturn]] void throw_ended(int status) {
    throw Ended{status};
}

class ProcessEndHookTest : public testing::Test {
  protected:
    void SetUp() override { set_process_end_hook(throw_ended); }
    void TearDown() override { set_process_end_hook(nullptr); }

    // -1: the hook ran; otherwise what prepare_request returned.
    int prepare(const std::vector<std::string>& words, std::shared_ptr<Request>* request) {
        test::CommandLine line(words);
        try {
            return manager_.prepare_request(line.argc(), line.argv(), request);
        } catch (const Ended& ended) {
            ended_status_ = ended.status;
            return -1;
        }
    }

    RequestManager manager_;
    int ended_status_ = -1;
};

TEST_F(ProcessEndHookTest, OutcomesOfEachStage) {
    struct Case {
        std::vector<std::string> words;
        int returned;
        bool has_request;
    };
    const Case cases[] = {
        {{}, 1, false},          // no command word
        {{"nosuch"}, 1, false},  // unknown command word
        {{"state"}, -1, false},  // handler refuses: hook instead of exit
        {{"setlogpscfg", "enable"}, -1, false},
        {{"setcpcapacity", "modem"}, 0, false},  // refused with an empty request
        {{"state", "modem"}, 0, true},           // accepted: the request, not run
        {{"getallvexilstate"}, 0, true},
    };
    testing::internal::CaptureStderr();
    for (const Case& c : cases) {
        std::shared_ptr<Request> request;
        ended_status_ = -1;
        EXPECT_EQ(prepare(c.words, &request), c.returned) << testing::PrintToString(c.words);
        EXPECT_EQ(request != nullptr, c.has_request) << testing::PrintToString(c.words);
        if (c.returned == -1) {
            EXPECT_EQ(ended_status_, 0);
        }
    }
    testing::internal::GetCapturedStderr();
}

}  // namespace
}  // namespace tarn
