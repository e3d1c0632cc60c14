#include "requests/Report.h"

#include <cstdio>

#include "front/TarnLog.h"

namespace tarn {

void print_result(int32_t result) {
    fputs(result == 0 ? "OK\n" : "ERROR\n", stdout);
}

void print_unsupported(const char* word) {
    fprintf(stderr, "Unsupported SubsystemType:%s\n", word);
}

void print_read_failure(const char* word, int32_t result) {
    if (result == kResultUnsupported) {
        print_unsupported(word);
    } else {
        print_result(result);
    }
}

bool is_present(int32_t presence_field, const char* word) {
    if (presence_field != 0) return true;
    TARN_LOG("%s: Unsupported SubsystemType:%s\n", "do_request", word);
    print_unsupported(word);
    return false;
}

SubsystemPresence query_presence(::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl& service) {
    SubsystemPresence presence{};
    int32_t result = -1;
    // The status is deliberately not looked at; a failed call leaves the record zero.
    ndk::ScopedAStatus status = service.getSubsystemPresence(&presence, &result);
    (void)status;
    return presence;
}

}  // namespace tarn
