// The usage texts byte for byte: on a device these unit tests are the only check of them.
#include <gtest/gtest.h>

#include "front/RequestManager.h"
#include "tests/unit/front_test_support.h"

namespace tarn {
namespace {

TEST(UsageTextTest, ErrorTextMatchesGolden) {
    testing::internal::CaptureStderr();
    RequestManager::usage();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), test::error_usage_text());
}

TEST(UsageTextTest, ManualTextMatchesGoldenAndBuildsNoRequest) {
    RequestManager manager;
    testing::internal::CaptureStderr();
    EXPECT_EQ(manager.proc_manual(), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), test::manual_text());
}

}  // namespace
}  // namespace tarn
