// The storage, overwrite and no-delete handlers given words that the command line's classifier
// never lets through (other letter cases, words of other lists): the handlers' own comparisons
// must be exact. Reachable refusals are covered end to end.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "front/RequestManager.h"
#include "front_test_support.h"

namespace tarn {
namespace {

using Handler = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);
Options with(const char* subsys, const std::string& storage, const std::string& cmd) {
    Options opts;
    if (subsys != nullptr) opts.subsystems = {subsys};
    opts.storage = storage;
    opts.cmd = cmd;
    return opts;
}

TEST(StorageHandlersTest, WordsAreMatchedExactly) {
    const struct {
        const char* name;
        Handler handler;
        Options opts;
        bool accepted;
    } cases[] = {
        {"capacity internal", &RequestManager::proc_get_cp_max_size, with("modem", "internal", ""),
         true},
        {"capacity Internal", &RequestManager::proc_get_cp_max_size, with("modem", "Internal", ""),
         false},
        {"capacity internal+blank", &RequestManager::proc_get_cp_max_size,
         with("modem", "internal ", ""), false},
        {"set capacity external", &RequestManager::proc_set_cp_max_size,
         with("modem", "external", ""), true},
        {"set capacity EXTERNAL", &RequestManager::proc_set_cp_max_size,
         with("modem", "EXTERNAL", ""), false},
        {"setstor data", &RequestManager::proc_set_preferred_storage, with(nullptr, "data", ""),
         true},
        {"setstor Data", &RequestManager::proc_set_preferred_storage, with(nullptr, "Data", ""),
         false},
        {"setstor stor", &RequestManager::proc_set_preferred_storage, with(nullptr, "stor", ""),
         false},
        {"setoverwrite enable", &RequestManager::proc_overwrite, with("modem", "", "enable"), true},
        {"setoverwrite Enable", &RequestManager::proc_overwrite, with("modem", "", "Enable"), false},
        {"setoverwrite on", &RequestManager::proc_overwrite, with("modem", "", "on"), false},
        {"setfilenodel disable", &RequestManager::proc_set_file_nodel, with("modem", "", "disable"),
         true},
        {"setfilenodel disabled", &RequestManager::proc_set_file_nodel,
         with("modem", "", "disabled"), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        RequestManager manager;
        testing::internal::CaptureStderr();
        std::shared_ptr<Request> request = (manager.*c.handler)(std::make_shared<Options>(c.opts));
        const std::string err = testing::internal::GetCapturedStderr();

        EXPECT_EQ(request != nullptr, c.accepted);
        EXPECT_EQ(err, request ? "" : "Missing argument.\n" + test::error_usage_text());
    }
}

}  // namespace
}  // namespace tarn
