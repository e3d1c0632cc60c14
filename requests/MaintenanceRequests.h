#pragma once

#include <memory>
#include <string>
#include <vector>

#include "service/Request.h"

namespace tarn {

// "clear [skipboot]": deletes the stored logs, sparing the boot logs when asked.
class ClearRequest : public Request {
  public:
    explicit ClearRequest(bool skipboot);
    int do_request() override;

  private:
    bool skipboot;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "collect <subsys>...": asks for the logs of each named co-processor to be collected.
class CollectRequest : public Request {
  public:
    explicit CollectRequest(std::vector<std::string> subsystems);
    int do_request() override;

  private:
    std::vector<std::string> subsystems_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "flush": writes out buffered logs.
class FlushRequest : public Request {
  public:
    FlushRequest() = default;
    int do_request() override;

  private:
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "crash <subsys>": makes the modem or the wcn co-processor assert on purpose.
class CrashRequest : public Request {
  public:
    explicit CrashRequest(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
