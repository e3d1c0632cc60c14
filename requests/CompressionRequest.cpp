#include "requests/CompressionRequest.h"

#include <cstdio>
#include <cstring>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_comp(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_comp\n", "proc_set_comp");
    const std::string& subsys = require_subsystem(*opts);
    CompressionRequest::CompressionCmdType cmd_type;
    if (strcmp(opts->cmd.c_str(), "none") == 0) {
        cmd_type = CompressionRequest::CMD_SET_NONE;
    } else if (strcmp(opts->cmd.c_str(), "lz4") == 0) {
        cmd_type = CompressionRequest::CMD_SET_LZ4;
    } else {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<CompressionRequest>(subsys, cmd_type);
}

std::shared_ptr<Request> RequestManager::proc_get_comp_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_comp_state\n", "proc_get_comp_state");
    return std::make_shared<CompressionRequest>(require_subsystem(*opts),
                                                CompressionRequest::CMD_QUERY);
}

CompressionRequest::CompressionRequest(const std::string& subsys, CompressionCmdType cmd_type)
    : subsys_(subsys), cmd_type_(cmd_type) {}

int CompressionRequest::do_request() {
    const SubsystemType type = get_subsys_type(subsys_.c_str());
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    if (cmd_type_ < CMD_QUERY) {
        set_compress(type, cmd_type_);
    } else if (cmd_type_ == CMD_QUERY) {
        query_compress(type);
    } else {
        fputs("Invalid cmd_type_", stderr);
        TARN_LOG_ERRNO("%s: invalid cmd_type_", "do_request");
    }
    return 0;
}

namespace {

// One co-processor's compression switch: its settings record and the names it is reported
// under. The two co-processors also differ on purpose in the result presets of their reads.
template <typename Record>
struct CompressionTarget {
    RecordEdit<Record> settings;
    const char* label;          // in the query answer: "Modem" or "Connectivity"
    const char* get_operation;  // named when the read is refused
    const char* set_line;       // what the write is logged as, before "=<comp>."
    int32_t query_read_preset;
    int32_t set_read_preset;
};

// Hands the modem's or the wcn's target to `visit`; any other subsystem is reported as invalid
// on behalf of `caller`.
template <typename Visit>
void visit_compression_target(ISysLogControl& service, SubsystemType type, const char* caller,
                              Visit visit) {
    if (type == SubsystemType::MODEM) {
        CompressionTarget<CellularLogSettings> modem{cellular_log_settings(service),
                                                     "Modem",
                                                     "getCellularLogSettings",
                                                     "setCellularLogSettings log_settings.comp",
                                                     -1,
                                                     0};
        visit(modem);
    } else if (type == SubsystemType::WCN) {
        CompressionTarget<ConnectivityLogSettings> wcn{
            connectivity_log_settings(service),
            "Connectivity",
            "getConnectivityLogSettings",
            "setConnectivityLogSettings connectivityLogSettings.comp",
            0,
            -1};
        visit(wcn);
    } else {
        fputs("Invalid SubsystemType:", stderr);
        TARN_LOG_ERRNO("%s: invalid SubsystemType:", caller);
    }
}

template <typename Record>
void report_refused_read(CompressionTarget<Record>& target, const char* caller) {
    TARN_LOG_ERRNO("%s: %s error:%d", caller, target.get_operation, target.settings.result);
    fputs("ERROR\n", stdout);
}

}  // namespace

void CompressionRequest::query_compress(SubsystemType type) {
    visit_compression_target(*mISysLogControl, type, "query_compress", [](auto& target) {
        if (!target.settings.read(target.query_read_preset)) {
            report_refused_read(target, "query_compress");
            return;
        }
        printf("%s,%s Log Compression: %s\n", "OK", target.label,
               target.settings.record.comp == 1 ? "lz4" : "none");
    });
}

void CompressionRequest::set_compress(SubsystemType type, CompressionCmdType cmd) {
    visit_compression_target(*mISysLogControl, type, "set_compress", [cmd](auto& target) {
        if (!target.settings.read(target.set_read_preset)) {
            report_refused_read(target, "set_compress");
            return;
        }
        target.settings.record.comp = cmd == CMD_SET_LZ4 ? 1 : 0;
        TARN_LOG("%s: %s=%d.\n", "set_compress", target.set_line, target.settings.record.comp);
        // Only the result of the write counts; its status is not looked at.
        print_result(target.settings.write(-1));
    });
}

}  // namespace tarn
