#include "requests/OverwriteRequests.h"

#include <cstdio>
#include <string>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"
#include "requests/StorageReport.h"

namespace tarn {

namespace {

// "enable" or "disable"; false for any other word, the empty one too.
bool switch_of(const std::string& word, bool& on) {
    if (word == "enable") {
        on = true;
    } else if (word == "disable") {
        on = false;
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::shared_ptr<Request> RequestManager::proc_overwrite(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_overwrite\n", "proc_overwrite");
    const std::string& subsys = require_subsystem(*opts);
    bool on = false;
    if (!switch_of(opts->cmd, on)) {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<OverwriteRequest>(
        subsys, on ? OverwriteRequest::ENABLE : OverwriteRequest::DISABLE);
}

std::shared_ptr<Request> RequestManager::proc_get_overwrite_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_overwrite_state\n", "proc_get_overwrite_state");
    return std::make_shared<OverwriteRequest>(require_subsystem(*opts), OverwriteRequest::QUERY);
}

std::shared_ptr<Request> RequestManager::proc_set_file_nodel(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_file_nodel\n", "proc_set_file_nodel");
    const std::string& subsys = require_one_subsystem(*opts);
    bool nodel = false;
    if (!switch_of(opts->cmd, nodel)) {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<SetFileNodelRequest>(subsys, nodel);
}

std::shared_ptr<Request> RequestManager::proc_get_file_nodel(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_file_nodle\n", "proc_get_file_nodel");
    return std::make_shared<GetFileNodelRequest>(require_one_subsystem(*opts));
}

OverwriteRequest::OverwriteRequest(const std::string& subsys, OverwriteCmdType cmd_type)
    : subsys(subsys), cmd_type_(cmd_type) {}

int OverwriteRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;
    const char* word = subsys.c_str();
    const SubsystemType type = get_subsys_type(word);

    if (static_cast<uint32_t>(cmd_type_) > QUERY) {
        report_invalid_response(std::to_string(cmd_type_).c_str());
        return 0;
    }
    return cmd_type_ == QUERY ? query(type, word) : change(type, word);
}

int OverwriteRequest::query(SubsystemType type, const char* word) {
    if (type == SubsystemType{0}) {
        fprintf(stderr, "Invalid SubsystemType:%s", word);
        TARN_LOG_ERRNO("%s: invalid SubsystemType:%s", "do_request", word);
        return 0;
    }
    auto param = subsystem_storage_param(*mISysLogControl, type);
    if (!read_or_report(param, "getSubsystemStorageParam", word)) return 0;
    const int32_t overwrite = param.record.overwrite;
    printf("%s,overwrite:%s.\n", "OK", overwrite != 0 ? "enabled" : "disabled");
    TARN_LOG("%s: do_request %s succ state=%d, result = %d.\n", "do_request", word, overwrite,
             param.result);
    return 0;
}

int OverwriteRequest::change(SubsystemType type, const char* word) {
    // The word is not checked here: an unknown one goes to the service as subsystem 0.
    auto param = subsystem_storage_param(*mISysLogControl, type);
    if (!read_or_report(param, "getSubsystemStorageParam", word)) return 0;
    param.record.overwrite = cmd_type_ == ENABLE ? 1 : 0;
    TARN_LOG("%s: do_request %s succ cmd_type_=%d, overwrite = %d.\n", "do_request", word,
             static_cast<int32_t>(cmd_type_), param.record.overwrite);
    // Only the result decides; the status of the write is not looked at.
    const int32_t result = param.write();
    TARN_LOG("%s: result=%d\n\n", "do_request", result);
    print_result(result);
    return 0;
}

namespace {

// The front both no-delete requests share, in its order: the subsystem word is looked up before
// the service is reached. Only the modem has the switch. `connect` reaches the service (null when
// it cannot); `on_modem` runs with it when the word names the modem. Returns -1 without a service
// or for an unknown word, 0 for another subsystem, otherwise what `on_modem` returns.
template <typename Connect, typename OnModem>
int with_modem_nodel(const std::string& subsys, Connect connect, OnModem on_modem) {
    const char* word = subsys.c_str();
    const SubsystemType type = Request::get_subsys_type(word);
    ISysLogControl* service = connect();
    if (service == nullptr) return -1;
    if (type == SubsystemType{0}) {
        report_invalid_response(word);
        return -1;
    }
    if (type != SubsystemType::MODEM) {
        fprintf(stderr, "Invalid SubsystemType:");
        TARN_LOG_ERRNO("%s: invalid SubsystemType:", "do_request");
        return 0;
    }
    return on_modem(*service, word);
}

}  // namespace

SetFileNodelRequest::SetFileNodelRequest(const std::string& subsys, bool nodel)
    : nodel(nodel), subsys(subsys) {}

int SetFileNodelRequest::do_request() {
    return with_modem_nodel(
        subsys, [this] { return (mISysLogControl = start()).get(); },
        [this](ISysLogControl& service, const char* word) {
            auto settings = cellular_log_settings(service);
            if (!read_or_report(settings, "getCellularLogSettings", word)) return 0;
            TARN_LOG("%s: do_request result=%d, fnodel=%d.\n", "do_request", settings.result,
                     settings.record.fnodel);
            settings.record.fnodel = nodel ? 1 : 0;
            // Only the result decides; the status of the write is not looked at.
            const int32_t result = settings.write();
            TARN_LOG("%s: setCellularLogSettings %s:%d, result = %d.\n", "do_request", word,
                     settings.record.fnodel, result);
            print_result(result);
            return 0;
        });
}

GetFileNodelRequest::GetFileNodelRequest(const std::string& subsys) : subsys(subsys) {}

int GetFileNodelRequest::do_request() {
    return with_modem_nodel(
        subsys, [this] { return (mISysLogControl = start()).get(); },
        [](ISysLogControl& service, const char*) {
            auto settings = cellular_log_settings(service);
            if (!settings.read()) {
                // Unlike the setter: ERROR for any refusal, -3 and a zero result included.
                TARN_LOG_ERRNO("%s: getCellularLogSettings error", "do_request");
                printf("ERROR\n");
                return 0;
            }
            TARN_LOG("%s: do_request result=%d, fnodel=%d.\n", "do_request", settings.result,
                     settings.record.fnodel);
            // A blank before the line end and no "OK," prefix.
            printf("%s \n", settings.record.fnodel != 0 ? "ON" : "OFF");
            return 0;
        });
}

}  // namespace tarn
