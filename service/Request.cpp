// Finding the log-control service and watching it for death.
#include "service/Request.h"

#include <android/binder_auto_utils.h>
#include <android/binder_manager.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "service/TarnLog.h"

namespace tarn {
namespace {

// Built once, before main runs.
const std::string kServiceInstance = std::string(ISysLogControl::descriptor) + "/default";

}  // namespace

std::shared_ptr<ISysLogControl> Request::start() {
    ndk::SpAIBinder binder(AServiceManager_getService(kServiceInstance.c_str()));
    if (binder.get() == nullptr) {
        TARN_LOG_ERRNO("%s: getService fail", "start");
        fprintf(stderr, "ERROR,getService error");
        death_recipient_ = nullptr;
        return nullptr;
    }

    std::shared_ptr<ISysLogControl> service = ISysLogControl::fromBinder(binder);
    if (!service) {
        TARN_LOG_ERRNO("%s: get mISysLogControl fail", "start");
        fprintf(stderr, "ERROR,getService error");
        death_recipient_ = nullptr;
        return nullptr;
    }

    // Never unlinked or freed: the process ends soon after, or in onBinderDied.
    death_recipient_ = AIBinder_DeathRecipient_new(onBinderDied);
    AIBinder_linkToDeath(binder.get(), death_recipient_, this);
    return service;
}

void Request::onBinderDied(void* /*cookie*/) {
    TARN_LOG("%s: Enter %s\n", "onBinderDied", "onBinderDied");
    // The notification can arrive in the middle of a call: end at once, without running
    // destructors that could wait on the connection.
    fflush(nullptr);
    _exit(0);
}

}  // namespace tarn
