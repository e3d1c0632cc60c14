// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_vexil_state(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_all_vexil_state() {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_vexil_to_pc(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_vexil_to_pc_state() {
    return nullptr;
}

}  // namespace tarn
