// The storage, overwrite and no-delete handlers given words that the command line's classifier
// never lets through (other letter cases, words of other lists): the handlers' own comparisons
// must be exact. Reachable refusals are covered end to end.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "front/RequestManager.h"
#include "tests/unit/front_test_support.h"

namespace tarn {
namespace {

using Handler = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);
using RM = RequestManager;
using O = Options;

TEST(StorageHandlersTest, WordsAreMatchedExactly) {
    const struct {
        Handler handler;
        const char* subsys;  // null: no subsystem word
        std::string Options::*field;
        std::string accepted;
        std::vector<std::string> refused;
    } cases[] = {
        // clang-format off
        {&RM::proc_get_cp_max_size, "modem", &O::storage, "internal", {"Internal", "internal "}},
        {&RM::proc_set_cp_max_size, "modem", &O::storage, "external", {"EXTERNAL"}},
        {&RM::proc_set_preferred_storage, nullptr, &O::storage, "data", {"Data", "stor"}},
        {&RM::proc_overwrite, "modem", &O::cmd, "enable", {"Enable", "on"}},
        {&RM::proc_set_file_nodel, "modem", &O::cmd, "disable", {"disabled"}},
        // clang-format on
    };
    for (const auto& c : cases) {
        std::vector<std::string> words = c.refused;
        words.insert(words.begin(), c.accepted);
        for (const std::string& word : words) {
            SCOPED_TRACE(c.accepted + " given " + word);
            auto opts = std::make_shared<Options>();
            if (c.subsys != nullptr) opts->subsystems = {c.subsys};
            (*opts).*c.field = word;
            RequestManager manager;
            testing::internal::CaptureStderr();
            std::shared_ptr<Request> request = (manager.*c.handler)(opts);
            const std::string err = testing::internal::GetCapturedStderr();

            EXPECT_EQ(request != nullptr, word == c.accepted);
            EXPECT_EQ(err, request ? "" : "Missing argument.\n" + test::error_usage_text());
        }
    }
}

}  // namespace
}  // namespace tarn
