#include "requests/IoLimitRequests.h"

#include <cstdio>
#include <cstring>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_get_io_limit(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_io_limit\n", "proc_get_io_limit");
    return std::make_shared<GetIoLimit>(require_one_subsystem(*opts));
}

std::shared_ptr<Request> RequestManager::proc_set_io_limit(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_io_limit\n", "proc_set_io_limit");
    const std::string& subsys = require_one_subsystem(*opts);

    static const struct {
        const char* word;
        SetIoLimit::IoLimitType type;
    } kLimitWords[] = {
        {"lograte", SetIoLimit::LOG_RATE},
        {"avgratio", SetIoLimit::AVG_RATIO},
        {"bufsize", SetIoLimit::BUF_SIZE},
        {"bufnum", SetIoLimit::BUF_NUM},
        {"logcommitthreshold", SetIoLimit::LOG_COMMIT_THRESHOLD},
        {"bufcommitthreshold", SetIoLimit::BUF_COMMIT_THRESHOLD},
    };
    for (const auto& limit : kLimitWords) {
        if (strcmp(opts->cmd.c_str(), limit.word) == 0) {
            // Neither sign nor range is checked: the service judges; only the low 32 bits go.
            return std::make_shared<SetIoLimit>(subsys, limit.type,
                                                static_cast<int32_t>(opts->number));
        }
    }
    report_missing_argument();
    return nullptr;
}

bool ModemIoRequest::modem_io_ready(const std::string& subsys,
                                    std::shared_ptr<ISysLogControl>& service, int32_t& result,
                                    int& outcome) {
    outcome = -1;
    if (get_subsys_type(subsys.c_str()) != SubsystemType::MODEM) {
        fprintf(stderr, "Invalid SubsystemType:%s\n", subsys.c_str());
        return false;
    }
    service = start();
    if (!service) {
        TARN_LOG_ERRNO("%s: get log_ctl_service_ failure", "do_request");
        return false;
    }
    SubsystemPresence presence{};
    result = -1;
    ndk::ScopedAStatus status = service->getSubsystemPresence(&presence, &result);
    if (!status.isOk() || result == -1) {
        TARN_LOG_ERRNO("%s: get getSubsystemPresence failure", "do_request");
        return false;
    }
    if (presence.modem == 0) {
        if (result == kResultUnsupported) {
            print_unsupported("modem");
        } else {
            outcome = 0;  // an absent modem with any other answer succeeds without a word
        }
        return false;
    }
    return true;
}

GetIoLimit::GetIoLimit(const std::string& subsys) : subsys_(subsys) {}

int GetIoLimit::do_request() {
    int32_t result = -1;
    int outcome = -1;
    if (!modem_io_ready(subsys_, mISysLogControl, result, outcome)) return outcome;

    auto io = cellular_modem_io_settings(*mISysLogControl);
    if (!io.read(result)) {
        TARN_LOG_ERRNO("%s: getCellularModemIoSettings failure", "do_request");
        printf("%s\n", "ERROR");
        return -1;
    }
    const CellularModemIoSettings& r = io.record;
    printf(
        "OK, %s: avg_ratio:%d, log_rate:%dM/s, buf_size:%dKB, buf_num:%d, "
        "log_commit_threshold:%dKB, buf_commit_threshold:%dKB\n",
        subsys_.c_str(), r.avg_ratio, r.log_rate, r.buf_size, r.buf_num, r.log_commit_threshold,
        r.buf_commit_threshold);
    return 0;
}

SetIoLimit::SetIoLimit(const std::string& subsys, IoLimitType type, int32_t value)
    : subsys_(subsys), type_(type), value_(value) {}

namespace {

// The record field each limit type changes, in the order of the types.
int32_t CellularModemIoSettings::*const kIoLimitFields[] = {
    &CellularModemIoSettings::avg_ratio,
    &CellularModemIoSettings::log_rate,
    &CellularModemIoSettings::buf_size,
    &CellularModemIoSettings::buf_num,
    &CellularModemIoSettings::log_commit_threshold,
    &CellularModemIoSettings::buf_commit_threshold,
};

}  // namespace

int SetIoLimit::do_request() {
    int32_t result = -1;
    int outcome = -1;
    if (!modem_io_ready(subsys_, mISysLogControl, result, outcome)) return outcome;

    auto io = cellular_modem_io_settings(*mISysLogControl);
    if (!io.read(result)) {
        TARN_LOG_ERRNO("%s: get getCellularModemIoSettings failure", "do_request");
        return -1;
    }
    const CellularModemIoSettings& r = io.record;
    TARN_LOG(
        "%s: SetIoLimit getCellularModemIoSettings result=%d, current avg_ratio=%d, "
        "log_rate=%d,                buf_size=%d, buf_num=%d, log_commit_threshold=%d, "
        "buf_commit_threshold=%d.\n",
        "do_request", 0, r.avg_ratio, r.log_rate, r.buf_size, r.buf_num, r.log_commit_threshold,
        r.buf_commit_threshold);

    io.record.*kIoLimitFields[type_] = value_;
    // Only the result of the write counts; its status is not looked at. A refusal still
    // returns 0.
    const int32_t written = io.write(-1);
    TARN_LOG("%s: set modem log io set_type:%d, param:%d, status:%s.\n", "do_request",
             static_cast<int>(type_), value_, written == 0 ? "success" : "fail");
    print_result(written);
    return 0;
}

}  // namespace tarn
