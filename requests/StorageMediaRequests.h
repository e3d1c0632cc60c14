#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/StorageMedia.h>

#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

using ::aidl::vendor::kest::hardware::vexil_svc::StorageMedia;

// "getstor": the storage medium the daemon prefers for saving logs.
class GetPreferredStorage : public Request {
  public:
    GetPreferredStorage() = default;
    int do_request() override;

  private:
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setstor <storage>": chooses that medium.
class SetPreferredStorage : public Request {
  public:
    explicit SetPreferredStorage(StorageMedia media);
    int do_request() override;

  private:
    std::shared_ptr<ISysLogControl> mISysLogControl;
    StorageMedia media;
};

// "getlogpath": the parent directory of the daemon's log tree.
class GetLogPathRequest : public Request {
  public:
    GetLogPathRequest() = default;
    int do_request() override;

  private:
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setlogpath <path>": changes that directory; the path goes to the service as typed.
class SetLogPathRequest : public Request {
  public:
    explicit SetLogPathRequest(const std::string& path);
    int do_request() override;

  private:
    std::string path;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
