#include "requests/QueryStateRequest.h"

#include <cstdio>
#include <cstring>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_query_state(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_query_state\n", "proc_query_state");
    return std::make_shared<QueryStateRequest>(require_subsystem(*opts));
}

QueryStateRequest::QueryStateRequest(const std::string& subsys) : subsys_(subsys) {}

namespace {

const char* on_off(int32_t value) {
    return value != 0 ? "ON" : "OFF";
}

}  // namespace

int QueryStateRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    const SubsystemPresence presence = query_presence(*mISysLogControl);
    const char* word = subsys_.c_str();

    if (strcmp(word, "modem") == 0) {
        if (is_present(presence.modem, word)) query_modem(word);
    } else if (strcmp(word, "wcn") == 0) {
        if (is_present(presence.wcn, word)) query_wcn(word);
    } else if (strcmp(word, "pmsh") == 0 || strcmp(word, "pm") == 0) {
        auto settings = pm_sensor_hub_log_settings(*mISysLogControl);
        if (settings.read()) parse_result(word, settings.record.enable != 0);
    } else if (strcmp(word, "sensor") == 0) {
        auto settings = sensor_hub_log_settings(*mISysLogControl);
        if (settings.read()) parse_result(word, settings.record.enable != 0);
    } else if (strcmp(word, "agdsp") == 0) {
        if (is_present(presence.agdsp, word)) query_agdsp(word);
    } else if (strcmp(word, "gnss") == 0) {
        auto settings = connectivity_log_settings(*mISysLogControl);
        if (settings.read()) parse_result(word, settings.record.gnss != 0);
    } else {
        fprintf(stderr, "Invalid SubsystemType: %s\n", word);
        TARN_LOG_ERRNO("%s: Invalid SubsystemType: %s", "do_request", word);
    }
    // A refused get operation prints and logs nothing.
    return 0;
}

void QueryStateRequest::query_modem(const char* word) {
    auto settings = cellular_log_settings(*mISysLogControl);
    if (!settings.read()) return;
    const int32_t mode = settings.record.mode;
    static const char* const kModeNames[] = {"OFF", "ON", "EVENT"};
    if (mode >= 0 && mode <= 2) {
        printf("OK,%s: mode:%s,dest:%s\n", word, kModeNames[mode],
               logdest_type_to_name(static_cast<LogDestination>(settings.record.dest)));
    } else {
        fprintf(stderr, "state query return: %d error\n", mode);
        TARN_LOG_ERRNO("%s: state query return: %d error", "do_request", mode);
    }
    TARN_LOG("%s: do_request %s succ state=%d.\n", "do_request", word, mode);
}

void QueryStateRequest::query_wcn(const char* word) {
    auto settings = connectivity_log_settings(*mISysLogControl);
    if (!settings.read()) return;
    printf("OK,%s:%s,dest:%s\n", word, on_off(settings.record.wcn),
           logdest_type_to_name(static_cast<LogDestination>(settings.record.dest)));
    TARN_LOG("%s: do_request %s succ state=%d.\n", "do_request", word, settings.record.wcn);
}

void QueryStateRequest::query_agdsp(const char* word) {
    auto settings = agdsp_log_settings(*mISysLogControl);
    if (!settings.read()) return;
    printf("OK,%s:%s dest:%s\n", word, on_off(settings.record.enable),
           logdest_type_to_name(static_cast<LogDestination>(settings.record.dest)));
}

void QueryStateRequest::parse_result(const char* subsys, bool on) {
    printf("%s,%s:%s.\n", "OK", subsys, on ? "ON" : "OFF");
    TARN_LOG("%s: do_request %s succ state=%d.\n", "parse_result", subsys, on ? 1 : 0);
}

}  // namespace tarn
