// Handlers of the commands that talk to the daemon's server socket.
#include <stdio.h>

#include <memory>
#include <string>
#include <utility>

#include "front/RequestManager.h"
#include "server/VexilServerLog2PcOnOffRequest.h"
#include "server/VexilServerOnOffRequest.h"
#include "server/VexilServerQueryStateRequests.h"
#include "service/TarnLog.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_vexil_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_vexil_state.\n", "proc_set_vexil_state");
    // The front end lets this command through only with one known subsystem word.
    std::string subsys = opts->subsystems.empty() ? std::string() : opts->subsystems.front();
    if (opts->cmd != "on" && opts->cmd != "off") {
        fprintf(stderr, "Missing argument.\n");
        usage();
        return nullptr;
    }
    return std::make_shared<VexilServerOnOffRequest>(std::move(subsys), opts->cmd == "on");
}

std::shared_ptr<Request> RequestManager::proc_get_all_vexil_state() {
    TARN_LOG("%s: proc_get_all_vexil_state.\n", "proc_get_all_vexil_state");
    return std::make_shared<VexilServerQueryStateRequest>();
}

std::shared_ptr<Request> RequestManager::proc_set_vexil_to_pc(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_vexil_to_pc.\n", "proc_set_vexil_to_pc");
    return std::make_shared<VexilServerLog2PcOnOffRequest>(opts->cmd);
}

std::shared_ptr<Request> RequestManager::proc_get_vexil_to_pc_state() {
    TARN_LOG("%s: proc_get_vexil_to_pc_state.\n", "proc_get_vexil_to_pc_state");
    return std::make_shared<VexilServerLog2PcQueryStateRequest>();
}

}  // namespace tarn
