// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_get_stor() {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_preferred_storage(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_log_parent_path(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_log_parent_path(std::shared_ptr<Options>) {
    return nullptr;
}

}  // namespace tarn
