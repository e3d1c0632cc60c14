// The storage, overwrite and no-delete handlers given words that the command line's classifier
// never lets through (other letter cases, words of other lists): the handlers' own comparisons
// must be exact. Reachable refusals are covered end to end.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "front/RequestManager.h"
#include "front_test_support.h"

namespace tarn {
namespace {

using Handler = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);

TEST(StorageHandlersTest, WordsAreMatchedExactly) {
    const struct {
        Handler handler;
        const char* subsys;  // null: no subsystem word
        std::string Options::*field;
        std::string accepted;
        std::vector<std::string> refused;
    } cases[] = {
        {&RequestManager::proc_get_cp_max_size,
         "modem",
         &Options::storage,
         "internal",
         {"Internal", "internal "}},
        {&RequestManager::proc_set_cp_max_size, "modem", &Options::storage, "external", {"EXTERNAL"}},
        {&RequestManager::proc_set_preferred_storage,
         nullptr,
         &Options::storage,
         "data",
         {"Data", "stor"}},
        {&RequestManager::proc_overwrite, "modem", &Options::cmd, "enable", {"Enable", "on"}},
        {&RequestManager::proc_set_file_nodel, "modem", &Options::cmd, "disable", {"disabled"}},
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
