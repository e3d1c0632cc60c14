// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_cp_reset(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_cp_reset(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_cp_run_state(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_md(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_md() {
    return nullptr;
}

}  // namespace tarn
