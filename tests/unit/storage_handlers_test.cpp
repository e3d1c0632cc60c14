// The storage, overwrite and no-delete handlers given words that the command line's classifier
// never lets through (other letter cases, words of other lists): the handlers' own comparisons
// must be exact. Reachable refusals are covered end to end.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "front/RequestManager.h"
#include "front_test_support.h"
#include "requests/OverwriteRequests.h"
#include "requests/StorageMediaRequests.h"
#include "requests/StorageSizeRequests.h"

namespace tarn {
namespace {

using Handler = std::shared_ptr<Request> (RequestManager::*)(std::shared_ptr<Options>);
using IsExpected = std::function<bool(const Request*)>;

template <typename T>
IsExpected builds() {
    return [](const Request* r) { return dynamic_cast<const T*>(r) != nullptr; };
}

const IsExpected kRefused = [](const Request* r) { return r == nullptr; };

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
        IsExpected expected;
    } cases[] = {
        {"capacity internal", &RequestManager::proc_get_cp_max_size, with("modem", "internal", ""),
         builds<GetCpMaxSize>()},
        {"capacity Internal", &RequestManager::proc_get_cp_max_size, with("modem", "Internal", ""),
         kRefused},
        {"capacity internal+blank", &RequestManager::proc_get_cp_max_size,
         with("modem", "internal ", ""), kRefused},
        {"set capacity external", &RequestManager::proc_set_cp_max_size,
         with("modem", "external", ""), builds<SetCpMaxSize>()},
        {"set capacity EXTERNAL", &RequestManager::proc_set_cp_max_size,
         with("modem", "EXTERNAL", ""), kRefused},
        {"setstor data", &RequestManager::proc_set_preferred_storage, with(nullptr, "data", ""),
         builds<SetPreferredStorage>()},
        {"setstor Data", &RequestManager::proc_set_preferred_storage, with(nullptr, "Data", ""),
         kRefused},
        {"setstor stor", &RequestManager::proc_set_preferred_storage, with(nullptr, "stor", ""),
         kRefused},
        {"setoverwrite enable", &RequestManager::proc_overwrite, with("modem", "", "enable"),
         builds<OverwriteRequest>()},
        {"setoverwrite Enable", &RequestManager::proc_overwrite, with("modem", "", "Enable"),
         kRefused},
        {"setoverwrite on", &RequestManager::proc_overwrite, with("modem", "", "on"), kRefused},
        {"setfilenodel disable", &RequestManager::proc_set_file_nodel, with("modem", "", "disable"),
         builds<SetFileNodelRequest>()},
        {"setfilenodel disabled", &RequestManager::proc_set_file_nodel,
         with("modem", "", "disabled"), kRefused},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        RequestManager manager;
        testing::internal::CaptureStderr();
        std::shared_ptr<Request> request = (manager.*c.handler)(std::make_shared<Options>(c.opts));
        const std::string err = testing::internal::GetCapturedStderr();

        EXPECT_TRUE(c.expected(request.get()));
        EXPECT_EQ(err, request ? "" : "Missing argument.\n" + test::error_usage_text());
    }
}

}  // namespace
}  // namespace tarn
