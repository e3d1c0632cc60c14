#pragma once

#include <stddef.h>

#include "server/VexilserverRequest.h"
#include "service/Request.h"

namespace tarn {

// A state word a query may answer with, and the text printed for it.
struct StateWord {
    const char* reply;
    const char* printed;
};

// Waits for the answer to a state query, "OK <WORD>", and prints the printed text of the word
// when it is one of the count accepted words.
int parse_state_query_result(VexilserverRequest& conn, const StateWord* accepted, size_t count);

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
