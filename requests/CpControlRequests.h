#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// Printed form of a reset policy: "OFF", "ON", "RSTDMP", or "UNKNOWN" for any other value.
const char* reset_state_name(int32_t state);

// Printed form of a run state: only 1 is "WORKING"; 0 and 2 to 6 are "NOT WORKING"; anything
// else, negative values included, is "UNKNOW STATE".
const char* run_state_name(int32_t state);

// Base of the requests that address a processor by its CP index (0 modem, 1 wcn) rather than by
// its subsystem type.
class CpIndexRequest : public Request {
  protected:
    // Connects to the service into `service` and returns the CP index of `subsys`. Returns -1
    // when there is no service (start() has said so) or when the word is neither "modem" nor
    // "wcn" (reported as unsupported; no service call is made).
    int connect_cp(const std::string& subsys, std::shared_ptr<ISysLogControl>& service);
};

// "setcpreset <subsys> <state>": the processor's automatic reset policy after a crash.
class SetCpResetRequest : public CpIndexRequest {
  public:
    SetCpResetRequest(const std::string& subsys, int32_t state);
    int do_request() override;

  private:
    std::string subsys;
    int32_t state;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getcpreset <subsys>".
class GetCpResetRequest : public CpIndexRequest {
  public:
    explicit GetCpResetRequest(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getcprunstate <subsys>": whether the processor is working.
class GetCpRunStateRequest : public CpIndexRequest {
  public:
    explicit GetCpRunStateRequest(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setminidump on|off": the modem's minidump switch in its log settings.
class SetMinidumpRequest : public Request {
  public:
    explicit SetMinidumpRequest(bool enable);
    int do_request() override;

  private:
    bool enable;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getminidump".
class GetMinidumpRequest : public Request {
  public:
    GetMinidumpRequest() = default;
    int do_request() override;

  private:
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
