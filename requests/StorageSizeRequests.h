#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "getcpcapacity <subsys> <storage>": the most log space, in MB, a subsystem may take on internal
// or external storage.
class GetCpMaxSize : public Request {
  public:
    enum MediaType : int32_t { INTERNAL = 0, EXTERNAL = 1 };

    GetCpMaxSize(const std::string& subsys, MediaType media);
    int do_request() override;

  private:
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
    MediaType media;
};

// "setcpcapacity <subsys> <storage> <size>": changes that limit; 0 leaves it to the daemon.
class SetCpMaxSize : public Request {
  public:
    enum MediaType : int32_t { INTERNAL = 0, EXTERNAL = 1 };

    SetCpMaxSize(const std::string& subsys, MediaType media, uint32_t size);
    int do_request() override;

  private:
    std::string subsys;
    MediaType media;
    uint32_t size;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getfilesize <subsys>": the largest size, in MB, of one of the subsystem's log files.
class GetLogFileSize : public Request {
  public:
    explicit GetLogFileSize(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setfilesize <subsys> <size>": changes that size.
class SetLogFileSize : public Request {
  public:
    SetLogFileSize(const std::string& subsys, uint32_t size);
    int do_request() override;

  private:
    std::string subsys;
    uint32_t size;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
