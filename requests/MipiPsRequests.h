#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "setmipilog <a> <b> <c>": hands three words configuring the MIPI log capture to the service,
// unchanged and uninterpreted.
class SetMipiLog : public Request {
  public:
    SetMipiLog(std::string type, std::string channel, std::string frequency);
    int do_request() override;

  private:
    std::string type_;
    std::string channel_;
    std::string frequency_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getmipilog <word>": asks for the MIPI configuration of one word. The three values it gets
// back go to the log only; the user sees just whether the call succeeded.
class GetMipiLog : public Request {
  public:
    explicit GetMipiLog(std::string selector);
    int do_request() override;

  private:
    std::string selector_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setlogpscfg user|debug": the protocol-stack log module's profile.
class SetLogPsCfg : public Request {
  public:
    // Sent to the service as an int32; a value outside the two is refused before the call.
    enum PsCfgOpertType : int32_t {
        PS_CFG_USER = 0,
        PS_CFG_DEBUG = 1,
    };

    explicit SetLogPsCfg(PsCfgOpertType type);
    int do_request() override;

  private:
    PsCfgOpertType type_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
