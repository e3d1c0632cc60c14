#pragma once

#include <cstdint>

#include "requests/RecordEdit.h"

namespace tarn {

// Reports shared by the storage, overwrite and no-delete requests.

// A word the request cannot use: "Invalid response: <text>\n" on stderr and a failure log line.
void report_invalid_response(const char* text);

// A refused read of a record: the failure log line naming the get operation and its result,
// then print_read_failure() for the word (the unsupported line for -3, else OK or ERROR).
void report_read_failure(const char* operation, const char* word, int32_t result);

// Reads the whole record; a refused read is reported as above and gives false.
template <typename Record, typename... Key>
bool read_or_report(RecordEdit<Record, Key...>& edit, const char* operation, const char* word) {
    if (edit.read()) return true;
    report_read_failure(operation, word, edit.result);
    return false;
}

}  // namespace tarn
