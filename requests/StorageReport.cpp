#include "requests/StorageReport.h"

#include <cstdio>

#include "front/TarnLog.h"
#include "requests/Report.h"

namespace tarn {

void report_invalid_response(const char* text) {
    fprintf(stderr, "Invalid response: %s\n", text);
    TARN_LOG_ERRNO("%s: invalid response: %s", "do_request", text);
}

void report_read_failure(const char* operation, const char* word, int32_t result) {
    TARN_LOG_ERRNO("%s: %s error:%d", "do_request", operation, result);
    print_read_failure(word, result);
}

}  // namespace tarn
