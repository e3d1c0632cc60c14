// Not built yet: these commands build no request for now.
#include "front/RequestManager.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_tarn_debug(std::shared_ptr<Options>) {
    return nullptr;
}

}  // namespace tarn
