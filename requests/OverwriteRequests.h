#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "setoverwrite <subsys> <command>" and "getoverwrite <subsys>": whether a subsystem's old log
// files may be overwritten once its space is used up.
class OverwriteRequest : public Request {
  public:
    enum OverwriteCmdType : int32_t { DISABLE = 0, ENABLE = 1, QUERY = 2 };

    OverwriteRequest(const std::string& subsys, OverwriteCmdType cmd_type);
    int do_request() override;

  private:
    int query(SubsystemType type, const char* word);
    int change(SubsystemType type, const char* word);

    std::string subsys;
    OverwriteCmdType cmd_type_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "setfilenodel modem <command>": keeps the modem's log files from deletion, or lets them go.
class SetFileNodelRequest : public Request {
  public:
    SetFileNodelRequest(const std::string& subsys, bool nodel);
    int do_request() override;

  private:
    bool nodel;
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

// "getfilenodel modem": whether the modem's log files are kept from deletion.
class GetFileNodelRequest : public Request {
  public:
    explicit GetFileNodelRequest(const std::string& subsys);
    int do_request() override;

  private:
    std::string subsys;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
