#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "front/RequestManager.h"
#include "front_test_support.h"

namespace tarn {
namespace {

using test::CommandLine;

TEST(UsageTextTest, ErrorTextMatchesGolden) {
    testing::internal::CaptureStderr();
    RequestManager::usage();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), test::error_usage_text());
}

TEST(UsageTextTest, ManualTextMatchesGoldenAndBuildsNoRequest) {
    RequestManager manager;
    testing::internal::CaptureStderr();
    std::shared_ptr<Request> request = manager.proc_manual();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), test::manual_text());
    EXPECT_EQ(request, nullptr);
}

// Command lines that end in the front end: no handler runs but the manual one.
TEST(ProcessCommandTest, FrontEndOutcomes) {
    const std::string missing = "Missing argument.\n";
    const struct {
        std::vector<std::string> words;
        int status;
        std::string stderr_text;
    } cases[] = {
        {{}, 1, missing + test::error_usage_text()},
        {{"foo"}, 1, test::error_usage_text()},
        {{"MAN"}, 1, test::error_usage_text()},
        {{""}, 1, test::error_usage_text()},
        {{"enevt"}, 1, test::error_usage_text()},
        {{"man"}, 0, test::manual_text()},
        {{"man", "extra"}, 1, missing + test::error_usage_text()},
        {{"man", "modem", "12"}, 0, test::manual_text()},
        {{"flush", "x"}, 1, missing + test::error_usage_text()},
        {{"setmipilog", "a", "b"}, 1, missing},
        {{"setvexil", "on", "all"}, 1, missing + test::error_usage_text()},
        {{"setcpreset", "modem"}, 1, missing + test::error_usage_text()},
        {{"setlog", "modem", "-1", "off"}, 1, missing + test::error_usage_text()},
    };
    for (const auto& c : cases) {
        std::string shown;
        for (const std::string& word : c.words) shown += " '" + word + "'";
        SCOPED_TRACE("vexilctl" + shown);

        RequestManager manager;
        CommandLine line(c.words);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = manager.process_command(line.argc(), line.argv());
        const std::string err = testing::internal::GetCapturedStderr();
        const std::string out = testing::internal::GetCapturedStdout();

        EXPECT_EQ(status, c.status);
        EXPECT_EQ(err, c.stderr_text);
        EXPECT_EQ(out, "");
    }
}

}  // namespace
}  // namespace tarn
