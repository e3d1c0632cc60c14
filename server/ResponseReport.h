#pragma once

#include <stddef.h>
#include <stdint.h>

#include "server/VexilserverRequest.h"

// Reports shared by the set and query paths. func names the reporting function in the log line.

// stderr "Error: <code>(<text>)" for a server that answered "ERROR <code>".
void report_response_code(const char* func, VexilserverRequest::ResponseErrorCode code);
// stderr "Invalid response: <response>" for an answer that is neither "OK" nor "ERROR <n>".
void report_invalid_response(const char* func, const uint8_t* data, size_t len);
