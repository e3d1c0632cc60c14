#include "server/VexilServerOnOffRequest.h"

#include <stdio.h>

#include <utility>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"

namespace tarn {

namespace {

// The word the server knows each subsystem by, indexed by ServerSubsysType. The modem is
// "5MODE" and the sensor hub shares "PM_SH" with the PM: the daemon's own vocabulary.
constexpr const char* kServerSubsysWords[] = {" 5MODE", " WCN", " GNSS", " AG-DSP", " PM_SH", ""};

}  // namespace

std::shared_ptr<Request> RequestManager::proc_set_vexil_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_vexil_state.\n", "proc_set_vexil_state");
    // The front end lets this command through only with one known subsystem word.
    std::string subsys = opts->subsystems.empty() ? std::string() : opts->subsystems.front();
    if (opts->cmd != "on" && opts->cmd != "off") {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<VexilServerOnOffRequest>(std::move(subsys), opts->cmd == "on");
}

VexilServerOnOffRequest::VexilServerOnOffRequest(std::string subsys, bool on)
    : VexilserverRequest(-1), subsys_(std::move(subsys)), on_(on) {}

int VexilServerOnOffRequest::do_request() {
    switch (static_cast<int32_t>(get_subsys_type(subsys_.c_str()))) {
        case static_cast<int32_t>(SubsystemType::MODEM):
            server_subsys_ = SERVER_SUBSYS_MODEM;
            break;
        case static_cast<int32_t>(SubsystemType::WCN):
            server_subsys_ = SERVER_SUBSYS_WCN;
            break;
        case static_cast<int32_t>(SubsystemType::GNSS):
            server_subsys_ = SERVER_SUBSYS_GNSS;
            break;
        case static_cast<int32_t>(SubsystemType::AGDSP):
            server_subsys_ = SERVER_SUBSYS_AGDSP;
            break;
        case static_cast<int32_t>(SubsystemType::PMSH):
        case static_cast<int32_t>(SubsystemType::SENSOR):
            server_subsys_ = SERVER_SUBSYS_PMSH;
            break;
        case 0:
            server_subsys_ = SERVER_SUBSYS_ALL;
            break;
        default:
            break;
    }
    char line[kResponseBufferSize];
    int len = snprintf(line, sizeof(line), "%s%s\n", on_ ? "ENABLE_LOG" : "DISABLE_LOG",
                       kServerSubsysWords[server_subsys_]);
    if (connect_and_send(line, static_cast<size_t>(len)) != 0) {
        return -1;
    }
    return wait_simple_response(kSetResponseTimeoutMs);
}

}  // namespace tarn
