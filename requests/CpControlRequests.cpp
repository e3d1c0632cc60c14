#include "requests/CpControlRequests.h"

#include <cstdio>
#include <cstring>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"

namespace tarn {

namespace {

// The reset policy a command-line word asks for; -1 for a word that names none.
int32_t reset_state_of(const std::string& word) {
    if (word == "on") return 1;
    if (word == "off") return 0;
    if (word == "rstdmp") return 2;
    return -1;
}

}  // namespace

std::shared_ptr<Request> RequestManager::proc_set_cp_reset(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_cp_reset.\n", "proc_set_cp_reset");
    const int32_t state = reset_state_of(opts->cmd);
    if (state < 0) {
        report_missing_argument();
        return nullptr;
    }
    if (!has_subsystem(*opts)) return nullptr;
    return std::make_shared<SetCpResetRequest>(opts->subsystems.front(), state);
}

std::shared_ptr<Request> RequestManager::proc_get_cp_reset(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_cp_reset.\n", "proc_get_cp_reset");
    if (!has_subsystem(*opts)) return nullptr;
    return std::make_shared<GetCpResetRequest>(opts->subsystems.front());
}

std::shared_ptr<Request> RequestManager::proc_get_cp_run_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_cp_run_state\n", "proc_get_cp_run_state");
    if (!has_subsystem(*opts)) return nullptr;
    return std::make_shared<GetCpRunStateRequest>(opts->subsystems.front());
}

std::shared_ptr<Request> RequestManager::proc_set_md(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_md\n", "proc_set_md");
    const bool on = strcmp(opts->cmd.c_str(), "on") == 0;
    if (!on && strcmp(opts->cmd.c_str(), "off") != 0) {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<SetMinidumpRequest>(on);
}

std::shared_ptr<Request> RequestManager::proc_get_md() {
    TARN_LOG("%s: proc_get_md\n", "proc_get_md");
    return std::make_shared<GetMinidumpRequest>();
}

const char* reset_state_name(int32_t state) {
    switch (state) {
        case 0:
            return "OFF";
        case 1:
            return "ON";
        case 2:
            return "RSTDMP";
        default:
            return "UNKNOWN";
    }
}

const char* run_state_name(int32_t state) {
    static const char* const kRunStates[] = {"NOT WORKING", "WORKING",     "NOT WORKING",
                                             "NOT WORKING", "NOT WORKING", "NOT WORKING",
                                             "NOT WORKING"};
    const uint32_t index = static_cast<uint32_t>(state);
    return index < sizeof(kRunStates) / sizeof(kRunStates[0]) ? kRunStates[index] : "UNKNOW STATE";
}

int CpIndexRequest::connect_cp(const std::string& subsys, std::shared_ptr<ISysLogControl>& service) {
    service = start();
    if (!service) return -1;
    if (subsys == "modem") return 0;
    if (subsys == "wcn") return 1;
    print_unsupported(subsys.c_str());
    return -1;
}

SetCpResetRequest::SetCpResetRequest(const std::string& subsys, int32_t state)
    : subsys(subsys), state(state) {}

int SetCpResetRequest::do_request() {
    const int index = connect_cp(subsys, mISysLogControl);
    if (index < 0) return -1;
    const char* word = subsys.c_str();

    int32_t current = -1;
    ndk::ScopedAStatus status = mISysLogControl->getSubsystemAutoReboot(index, &current);
    if (status.isOk()) {
        if (current == kResultUnsupported) {
            print_unsupported(word);
            return -1;
        }
        TARN_LOG("%s: get cp reset: %s,%d.\n", "do_request", word, current);
        if (current == state) {
            fputs("OK\n", stdout);
            return 0;
        }
    }
    // A refused read does not stop the write.
    int32_t result = -1;
    status = mISysLogControl->setSubsystemAutoReboot(index, state, &result);
    if (status.isOk()) {
        TARN_LOG("%s: set cp reset: %s,%d.\n", "do_request", word, state);
        print_result(result);
    } else {
        TARN_LOG("%s: status is not ok\n", "do_request");
        fputs("ERROR\n", stdout);
    }
    return 0;
}

GetCpResetRequest::GetCpResetRequest(const std::string& subsys) : subsys(subsys) {}

int GetCpResetRequest::do_request() {
    const int index = connect_cp(subsys, mISysLogControl);
    if (index < 0) return -1;
    const char* word = subsys.c_str();

    int32_t state = -1;
    ndk::ScopedAStatus status = mISysLogControl->getSubsystemAutoReboot(index, &state);
    if (!status.isOk()) {
        TARN_LOG_ERRNO("%s: getSubsystemAutoReboot error", "do_request");
        fputs("ERROR\n", stdout);
        return 0;
    }
    if (state == kResultUnsupported) {
        print_unsupported(word);
        return -1;
    }
    TARN_LOG("%s: get cp reset: %s,%d.\n", "do_request", word, state);
    printf("%s:%s\n", word, reset_state_name(state));
    return 0;
}

GetCpRunStateRequest::GetCpRunStateRequest(const std::string& subsys) : subsys(subsys) {}

int GetCpRunStateRequest::do_request() {
    const int index = connect_cp(subsys, mISysLogControl);
    if (index < 0) return -1;
    const char* word = subsys.c_str();

    // No unsupported answer here: -3 is just another unknown state.
    int32_t state = -1;
    ndk::ScopedAStatus status = mISysLogControl->getSubsystemRunState(index, &state);
    if (!status.isOk()) {
        TARN_LOG_ERRNO("%s: getSubsystemRunState error", "do_request");
        fputs("ERROR\n", stdout);
        return 0;
    }
    TARN_LOG("%s: get cp run status:subsys:%s,status:%d\n", "do_request", word, state);
    printf("%s:%s\n", word, run_state_name(state));
    return 0;
}

SetMinidumpRequest::SetMinidumpRequest(bool enable) : enable(enable) {}

int SetMinidumpRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    auto settings = cellular_log_settings(*mISysLogControl);
    if (settings.read()) {
        TARN_LOG("%s: do_request result=%d, saveMinidump=%d.\n", "do_request", 0,
                 settings.record.saveMinidump);
        settings.record.saveMinidump = enable ? 1 : 0;
        // Only the result of the write counts; its status is not looked at.
        settings.write(-1);
        TARN_LOG("%s: setCellularLogSettings saveMinidump:%d, result = %d.\n", "do_request",
                 settings.record.saveMinidump, settings.result);
    } else {
        TARN_LOG_ERRNO("%s: getCellularLogSettings error:%d", "do_request", settings.result);
    }
    print_result(settings.result);
    return 0;
}

int GetMinidumpRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    auto settings = cellular_log_settings(*mISysLogControl);
    if (settings.read()) {
        TARN_LOG("%s: do_request result=%d, saveMinidump=%d.\n", "do_request", 0,
                 settings.record.saveMinidump);
        printf("OK:%s\n", settings.record.saveMinidump != 0 ? "on" : "off");
    } else {
        // A refused status with a result of 0 still reads as "OK".
        TARN_LOG_ERRNO("%s: getCellularLogSettings error:%d", "do_request", settings.result);
        print_result(settings.result);
    }
    return 0;
}

}  // namespace tarn
