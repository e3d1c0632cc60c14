#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/LogDestination.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemType.h>
#include <android/binder_ibinder.h>

#include <memory>

namespace tarn {

using ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl;
using ::aidl::vendor::kest::hardware::vexil_svc::LogDestination;
using ::aidl::vendor::kest::hardware::vexil_svc::SubsystemType;

// Base of every request. Service-backed requests reach ISysLogControl through start().
class Request {
  public:
    Request() = default;
    virtual ~Request() = default;
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;

    // Carries out the request once; 0 on success.
    virtual int do_request() = 0;

    // SubsystemType of a subsystem word; 0 for any word it does not know ("all" included).
    static SubsystemType get_subsys_type(const char* word);
    // Sets dest and returns 0 for "off", "stor", "usb", "wifi"; otherwise logs and returns -1.
    static int get_logdest_type(const char* word, LogDestination& dest);
    // "off", "stor", "usb"; "wifi" for every other value.
    static const char* logdest_type_to_name(LogDestination value);

  protected:
    // Finds the service and watches it; an empty handle after reporting the failure.
    std::shared_ptr<ISysLogControl> start();

  private:
    static void onBinderDied(void* cookie);

    AIBinder_DeathRecipient* death_recipient_ = nullptr;
};

}  // namespace tarn
