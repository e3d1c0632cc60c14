#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "requests/CpControlRequests.h"

namespace tarn {
namespace {

struct StateName {
    int32_t state;
    const char* name;
};

TEST(ControlStateNames, ResetPolicy) {
    const StateName cases[] = {
        {0, "OFF"},
        {1, "ON"},
        {2, "RSTDMP"},
        {3, "UNKNOWN"},
        {-1, "UNKNOWN"},
        {-3, "UNKNOWN"},
        {std::numeric_limits<int32_t>::min(), "UNKNOWN"},
    };
    for (const StateName& c : cases) {
        EXPECT_STREQ(reset_state_name(c.state), c.name) << "state " << c.state;
    }
}

// Only 1 is working; the table ends at 6 and everything past it, read unsigned, is unknown.
TEST(ControlStateNames, RunState) {
    const StateName cases[] = {
        {0, "NOT WORKING"},
        {1, "WORKING"},
        {2, "NOT WORKING"},
        {6, "NOT WORKING"},
        {7, "UNKNOW STATE"},
        {std::numeric_limits<int32_t>::max(), "UNKNOW STATE"},
        {-1, "UNKNOW STATE"},
        {-3, "UNKNOW STATE"},
        {std::numeric_limits<int32_t>::min(), "UNKNOW STATE"},
    };
    for (const StateName& c : cases) {
        EXPECT_STREQ(run_state_name(c.state), c.name) << "state " << c.state;
    }
}

}  // namespace
}  // namespace tarn
