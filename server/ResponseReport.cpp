#include "server/ResponseReport.h"

#include <stdio.h>
#include <utils/String8.h>

#include "service/TarnLog.h"

void report_response_code(const char* func, VexilserverRequest::ResponseErrorCode code) {
    const char* text = VexilserverRequest::resp_code_to_string(code);
    fprintf(stderr, "Error: %d(%s)\n", code, text);
    TARN_LOG_ERRNO("%s: error: %d(%s)", func, code, text);
}

void report_invalid_response(const char* func, const uint8_t* data, size_t len) {
    android::String8 printable(reinterpret_cast<const char*>(data), len);
    fprintf(stderr, "Invalid response: %s\n", printable.string());
    TARN_LOG_ERRNO("%s: invalid response: %s", func, printable.string());
}
