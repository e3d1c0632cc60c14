#pragma once

#include <stddef.h>

#include "server/VexilserverRequest.h"

namespace tarn {

// Connects to the server and writes one request line. Every failure is reported here.
int connect_and_send(VexilserverRequest& conn, const char* line, size_t len);

// A state word a query may answer with, and the text printed for it.
struct StateWord {
    const char* reply;
    const char* printed;
};

// Waits for the answer to a state query, "OK <WORD>", and prints the printed text of the word
// when it is one of the count accepted words.
int parse_state_query_result(VexilserverRequest& conn, const StateWord* accepted, size_t count);

}  // namespace tarn
