#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// Base of the two modem I/O throttling requests, which share their checks before the settings.
class ModemIoRequest : public Request {
  protected:
    // Before the settings are read: the word must name the modem, the service must answer, and
    // the modem must be fitted. Returns true when the settings may be read, with `result` still
    // holding the presence query's result (the read reuses it as its preset). Otherwise returns
    // false with `outcome` set to what do_request returns: -1 after a failure, 0 when the modem
    // is silently absent.
    bool modem_io_ready(const std::string& subsys, std::shared_ptr<ISysLogControl>& service,
                        int32_t& result, int& outcome);
};

// "getiolimit <subsys>": prints the six I/O limits of the modem's log path.
class GetIoLimit : public ModemIoRequest {
  public:
    explicit GetIoLimit(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setiolimit <subsys> <command> <size>": changes one of the six I/O limits.
class SetIoLimit : public ModemIoRequest {
  public:
    // Which limit is changed; the values follow the field order of the settings record.
    enum IoLimitType {
        AVG_RATIO = 0,
        LOG_RATE = 1,
        BUF_SIZE = 2,
        BUF_NUM = 3,
        LOG_COMMIT_THRESHOLD = 4,
        BUF_COMMIT_THRESHOLD = 5,
    };

    SetIoLimit(const std::string& subsys, IoLimitType type, int32_t value);
    int do_request() override;

  private:
    std::string subsys_;
    IoLimitType type_;
    int32_t value_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
