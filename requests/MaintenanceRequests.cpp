#include "requests/MaintenanceRequests.h"

#include <cstdio>
#include <cstring>
#include <utility>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_clear(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_clear\n", "proc_clear");
    return std::make_shared<ClearRequest>(strcmp(opts->cmd.c_str(), "skipboot") == 0);
}

std::shared_ptr<Request> RequestManager::proc_collect(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_collect\n", "proc_collect");
    return std::make_shared<CollectRequest>(opts->subsystems);
}

std::shared_ptr<Request> RequestManager::proc_flush() {
    TARN_LOG("%s: proc_flush\n", "proc_flush");
    return std::make_shared<FlushRequest>();
}

std::shared_ptr<Request> RequestManager::proc_crash(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_crash\n", "proc_crash");
    return std::make_shared<CrashRequest>(require_subsystem(*opts));
}

ClearRequest::ClearRequest(bool skipboot) : skipboot(skipboot) {}

int ClearRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    TARN_LOG("%s: clear log request is skipboot = %d.\n", "do_request", skipboot ? 1 : 0);
    int32_t result = -1;
    // Only the result decides; the status is not looked at.
    ndk::ScopedAStatus status = skipboot ? mISysLogControl->clearLogsSkipBoot(&result)
                                         : mISysLogControl->clearLogs(&result);
    print_result(result);
    return result;
}

CollectRequest::CollectRequest(std::vector<std::string> subsystems)
    : subsystems_(std::move(subsystems)) {}

int CollectRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    // No word collects nothing: "all" has to be named.
    for (const std::string& word : subsystems_) {
        int32_t result = -1;
        ndk::ScopedAStatus status =
            mISysLogControl->collectLogs(get_subsys_type(word.c_str()), &result);
    }
    return 0;
}

int FlushRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    // "OK" whatever the service answered.
    ndk::ScopedAStatus status = mISysLogControl->flushLogs();
    printf("OK\n");
    return 0;
}

CrashRequest::CrashRequest(const std::string& subsys) : subsys_(subsys) {}

int CrashRequest::do_request() {
    TARN_LOG("%s: crash do_request\n", "do_request");
    const SubsystemType type = get_subsys_type(subsys_.c_str());
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    if (type != SubsystemType::MODEM && type != SubsystemType::WCN) {
        fprintf(stderr, "Invalid SubsystemType:");
        TARN_LOG_ERRNO("%s: invalid SubsystemType:", "do_request");
        return 0;
    }
    int32_t result = -1;
    ndk::ScopedAStatus status = mISysLogControl->crashSubsystem(type, &result);
    print_result(result);
    return 0;
}

}  // namespace tarn
