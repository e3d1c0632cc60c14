// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_comp(std::shared_ptr<Options>) {
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_comp_state(std::shared_ptr<Options>) {
    return nullptr;
}

}  // namespace tarn
