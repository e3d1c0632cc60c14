// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_get_cp_max_size(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_cp_max_size(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_log_file_size(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_set_file_size(std::shared_ptr<Options>) {
    return nullptr;
}

}  // namespace tarn
