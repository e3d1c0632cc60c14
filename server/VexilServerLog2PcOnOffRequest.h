#pragma once

#include <string>

#include "server/VexilserverRequest.h"
#include "service/Request.h"

namespace tarn {

// "setvexiltopc": switches the forwarding of co-processor logs to a PC. Only the word "enable"
// turns it on; every other word turns it off.
class VexilServerLog2PcOnOffRequest : public Request, public VexilserverRequest {
  public:
    explicit VexilServerLog2PcOnOffRequest(const std::string& cmd);

    int do_request() override;

  private:
    std::string cmd_;
};

}  // namespace tarn
