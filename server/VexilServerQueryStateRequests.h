#pragma once

#include "server/VexilserverRequest.h"
#include "service/Request.h"

namespace tarn {

// "getallvexilstate": asks whether co-processor log output is on, off or in event mode.
class VexilServerQueryStateRequest : public Request, public VexilserverRequest {
  public:
    VexilServerQueryStateRequest();

    int do_request() override;
    // Reads the answer and prints "on", "off" or "event".
    int parse_query_result();
};

// "getvexiltopcstate": asks whether logs are forwarded to a PC.
class VexilServerLog2PcQueryStateRequest : public Request, public VexilserverRequest {
  public:
    VexilServerLog2PcQueryStateRequest();

    int do_request() override;
    // Reads the answer and prints "on" or "off".
    int parse_query_result();
};

}  // namespace tarn
