// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_clear(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_collect(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_flush() {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_crash(std::shared_ptr<Options>) {
    return nullptr;
}

}  // namespace tarn
