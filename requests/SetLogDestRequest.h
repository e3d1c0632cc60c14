#pragma once

#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "setlog <subsys> <logdest>": switches one co-processor's log on or off and chooses where it
// goes, by read-modify-write of that co-processor's settings record.
class SetLogDestRequest : public Request {
  public:
    SetLogDestRequest(const std::string& subsys, const std::string& logdest);
    int do_request() override;

  private:
    void process_modem_logdest(LogDestination dest);
    void process_wifibt_logdest(LogDestination dest);
    void process_gnss_logdest(LogDestination dest);
    void process_pmsh_logdest(LogDestination dest);
    void process_sensorhub_logdest(LogDestination dest);
    void process_agdsp_logdest(LogDestination dest);

    std::string subsys_;
    std::string logdest_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
