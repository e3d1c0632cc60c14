#include "server/VexilServerLog2PcOnOffRequest.h"

#include <string_view>

#include "front/RequestManager.h"
#include "front/TarnLog.h"

namespace tarn {

namespace {

constexpr std::string_view kEnableLine = "ENABLE_LOG_TO_PC\n";
constexpr std::string_view kDisableLine = "DISABLE_LOG_TO_PC\n";

}  // namespace

std::shared_ptr<Request> RequestManager::proc_set_vexil_to_pc(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_vexil_to_pc.\n", "proc_set_vexil_to_pc");
    return std::make_shared<VexilServerLog2PcOnOffRequest>(opts->cmd);
}

VexilServerLog2PcOnOffRequest::VexilServerLog2PcOnOffRequest(const std::string& cmd)
    : VexilserverRequest(-1), cmd_(cmd) {}

int VexilServerLog2PcOnOffRequest::do_request() {
    const bool enable = cmd_ == "enable";
    const std::string_view line = enable ? kEnableLine : kDisableLine;
    if (connect_and_send(line.data(), line.size()) != 0) {
        return -1;
    }
    return wait_simple_response(kSetResponseTimeoutMs);
}

}  // namespace tarn
