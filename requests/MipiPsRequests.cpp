#include "requests/MipiPsRequests.h"

#include <aidl/vendor/kest/hardware/vexil_svc/MipiLogConfig.h>

#include <cstdio>
#include <cstring>
#include <utility>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/Report.h"

namespace tarn {

using ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig;

std::shared_ptr<Request> RequestManager::proc_set_mipilog(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_mipilog\n", "proc_set_mipilog");
    return std::make_shared<SetMipiLog>(opts->cmd, opts->param1, opts->param2);
}

std::shared_ptr<Request> RequestManager::proc_get_mipilog(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_mipilog\n", "proc_get_mipilog");
    return std::make_shared<GetMipiLog>(opts->cmd);
}

std::shared_ptr<Request> RequestManager::proc_set_log_pscfg(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_log_pscfg\n", "proc_set_log_pscfg");
    const char* word = opts->cmd.c_str();
    if (strcmp(word, "debug") == 0) return std::make_shared<SetLogPsCfg>(SetLogPsCfg::PS_CFG_DEBUG);
    if (strcmp(word, "user") == 0) return std::make_shared<SetLogPsCfg>(SetLogPsCfg::PS_CFG_USER);
    end_error_argument();
}

namespace {

// What both MIPI requests report: a failed call only in the log, otherwise the three values in
// the log under `name` and "OK" or "ERROR" on stdout.
void report_mipi_call(const ndk::ScopedAStatus& status, const char* name,
                      const MipiLogConfig& config, int32_t result) {
    if (!status.isOk()) {
        TARN_LOG("%s: status is not ok\n", "do_request");
        return;
    }
    TARN_LOG("%s: %s: %s,%s,%s, result=%d\n", "do_request", name, config.type.c_str(),
             config.channel.c_str(), config.frequency.c_str(), result);
    print_result(result);
}

}  // namespace

SetMipiLog::SetMipiLog(std::string type, std::string channel, std::string frequency)
    : type_(std::move(type)), channel_(std::move(channel)), frequency_(std::move(frequency)) {}

int SetMipiLog::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    MipiLogConfig config{};
    config.type = type_;
    config.channel = channel_;
    config.frequency = frequency_;
    int32_t result = -1;
    ndk::ScopedAStatus status = mISysLogControl->setMipiLogConfig(config, &result);
    report_mipi_call(status, "SetMipiLog", config, result);
    return 0;
}

GetMipiLog::GetMipiLog(std::string selector) : selector_(std::move(selector)) {}

int GetMipiLog::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    MipiLogConfig config{};
    int32_t result = -1;
    ndk::ScopedAStatus status = mISysLogControl->getMipiLogConfig(selector_, &config, &result);
    report_mipi_call(status, "GetMipiLog", config, result);
    return 0;
}

SetLogPsCfg::SetLogPsCfg(PsCfgOpertType type) : type_(type) {}

int SetLogPsCfg::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) {
        TARN_LOG_ERRNO("%s: get logctlservice Error", "do_request");
        fputs("get logctlservice Error\n", stdout);
        return -1;
    }
    if (static_cast<unsigned>(type_) > PS_CFG_DEBUG) {
        TARN_LOG_ERRNO("%s: setPsLogModuleConfig PsCfgOpertType Error", "do_request");
        fputs("setPsLogModuleConfig PsCfgOpertType Error\n", stdout);
        return 0;
    }
    int32_t result = -1;
    ndk::ScopedAStatus status = mISysLogControl->setPsLogModuleConfig(type_, &result);
    if (status.isOk() && result == 0) {
        TARN_LOG("%s: setPsLogModuleConfig success\n", "do_request");
        fputs("set log pscfg success\n", stdout);
    } else {
        // A refused profile does not fail the command.
        TARN_LOG_ERRNO("%s: setPsLogModuleConfig failed ", "do_request");
        fputs("set log pscfg failed\n", stdout);
    }
    return 0;
}

}  // namespace tarn
