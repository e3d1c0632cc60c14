#pragma once

#include <stdint.h>

#include <string>

#include "server/VexilserverRequest.h"
#include "service/Request.h"

namespace tarn {

// "setvexil": switches a co-processor's log output, or all of them, on or off through the
// server socket.
class VexilServerOnOffRequest : public Request, public VexilserverRequest {
  public:
    // The server's own codes for the subsystems; ALL sends the line without a subsystem word.
    enum ServerSubsysType : int32_t {
        SERVER_SUBSYS_MODEM = 0,
        SERVER_SUBSYS_WCN = 1,
        SERVER_SUBSYS_GNSS = 2,
        SERVER_SUBSYS_AGDSP = 3,
        SERVER_SUBSYS_PMSH = 4,
        SERVER_SUBSYS_ALL = 5,
    };

    VexilServerOnOffRequest(std::string subsys, bool on);

    int do_request() override;

  private:
    std::string subsys_;
    bool on_;
    int32_t server_subsys_ = SERVER_SUBSYS_ALL;
};

}  // namespace tarn
