#include "requests/SetLogDestRequest.h"

#include <cstdio>
#include <initializer_list>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_set_log(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_log\n", "proc_set_log");
    return std::make_shared<SetLogDestRequest>(require_one_subsystem(*opts), opts->logdest);
}

SetLogDestRequest::SetLogDestRequest(const std::string& subsys, const std::string& logdest)
    : subsys_(subsys), logdest_(logdest) {}

int SetLogDestRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    const char* word = subsys_.c_str();
    const SubsystemType type = get_subsys_type(word);
    LogDestination dest = LogDestination::OFF;
    if (get_logdest_type(logdest_.c_str(), dest) != 0) {
        fprintf(stderr, "logdest argument error.\n");
        return -1;
    }

    const SubsystemPresence presence = query_presence(*mISysLogControl);
    switch (type) {
        case SubsystemType::MODEM:
            if (is_present(presence.modem, word)) process_modem_logdest(dest);
            break;
        case SubsystemType::WCN:
            if (is_present(presence.wcn, word)) process_wifibt_logdest(dest);
            break;
        case SubsystemType::PMSH:
            process_pmsh_logdest(dest);
            break;
        case SubsystemType::SENSOR:
            process_sensorhub_logdest(dest);
            break;
        case SubsystemType::AGDSP:
            if (is_present(presence.agdsp, word)) process_agdsp_logdest(dest);
            break;
        case SubsystemType::GNSS:
            process_gnss_logdest(dest);
            break;
        default:
            fprintf(stderr, "Invalid cptype: %s\n", word);
            TARN_LOG_ERRNO("%s: invalid cptype: %s", "do_request", word);
            break;
    }
    return 0;
}

namespace {

bool is_one_of(LogDestination dest, std::initializer_list<LogDestination> allowed) {
    for (LogDestination candidate : allowed) {
        if (candidate == dest) return true;
    }
    return false;
}

int as_int(LogDestination dest) {
    return static_cast<int>(dest);
}

// The steps every worker takes, in order. What differs between the co-processors (the record,
// the allowed destinations, the fields written, the result preset of the write and every log
// line) comes in as arguments; a refused get is silent, a refused destination writes nothing.
template <typename Record, typename LogCurrent, typename Refuse, typename Apply, typename LogOutcome>
void run_logdest_worker(RecordEdit<Record> settings, LogDestination dest,
                        std::initializer_list<LogDestination> allowed, int32_t write_preset,
                        LogCurrent log_current, Refuse refuse, Apply apply, LogOutcome log_outcome) {
    if (!settings.read()) return;
    log_current(settings.record);
    if (!is_one_of(dest, allowed)) {
        refuse();
        return;
    }
    apply(settings.record, dest);
    const int32_t result = settings.write(write_preset);
    log_outcome(result == 0);
    print_result(result);
}

constexpr std::initializer_list<LogDestination> kAnyDest = {
    LogDestination::OFF, LogDestination::STOR, LogDestination::USB, LogDestination::WIFI};
constexpr std::initializer_list<LogDestination> kOffOrStor = {LogDestination::OFF,
                                                              LogDestination::STOR};

void no_refusal() {}

}  // namespace

void SetLogDestRequest::process_modem_logdest(LogDestination dest) {
    // The modem's write is judged with the result preset to 0: a transport failure that leaves it
    // untouched counts as success. The other co-processors preset -1.
    run_logdest_worker(
        cellular_log_settings(*mISysLogControl), dest, kAnyDest, 0,
        [](const CellularLogSettings& r) {
            TARN_LOG(
                "%s: SetLogDestRequest result=%d, current "
                "mCellularModemLogSettings.mode=%d mCellularModemLogSettings.dest=%d.\n",
                "process_modem_logdest", 0, r.mode, r.dest);
        },
        no_refusal,
        [](CellularLogSettings& r, LogDestination d) {
            const int32_t on = d != LogDestination::OFF ? 1 : 0;
            r.mode = on;
            r.logSwitch1 = r.logSwitch2 = r.logSwitch3 = on;
            r.logSwitch4 = r.logSwitch5 = r.logSwitch6 = on;
            if (on) r.dest = as_int(d);
        },
        [dest](bool ok) {
            TARN_LOG("%s: set modem log dest=%d %s.\n", "process_modem_logdest", as_int(dest),
                     ok ? "success" : "fail");
        });
}

void SetLogDestRequest::process_wifibt_logdest(LogDestination dest) {
    run_logdest_worker(
        connectivity_log_settings(*mISysLogControl), dest, kAnyDest, -1,
        [](const ConnectivityLogSettings& r) {
            TARN_LOG("%s: SetLogDestRequest result=%d, current connectivityLogSettings.dest=%d.\n",
                     "process_wifibt_logdest", 0, r.dest);
        },
        no_refusal,
        [](ConnectivityLogSettings& r, LogDestination d) {
            const int32_t on = d != LogDestination::OFF ? 1 : 0;
            r.wcn = on;
            if (on) r.dest = as_int(d);
        },
        [dest](bool ok) {
            TARN_LOG("%s: set Connectivity log dest=%d %s.\n", "process_wifibt_logdest",
                     as_int(dest), ok ? "success" : "fail");
        });
}

void SetLogDestRequest::process_gnss_logdest(LogDestination dest) {
    run_logdest_worker(
        connectivity_log_settings(*mISysLogControl), dest, kOffOrStor, -1,
        [](const ConnectivityLogSettings& r) {
            TARN_LOG("%s: SetLogDestRequest result=%d, current connectivityLogSettings.gnss=%d.\n",
                     "process_gnss_logdest", 0, r.gnss);
        },
        [] {
            fprintf(stderr, "gnss only support logdest:off or stor argument.\n");
            TARN_LOG_ERRNO("%s: gnss only support logdest:off or stor argument",
                           "process_gnss_logdest");
        },
        [](ConnectivityLogSettings& r, LogDestination d) {
            r.gnss = d == LogDestination::STOR ? 1 : 0;
        },
        [dest](bool ok) {
            TARN_LOG("%s: set gnss log enable=%d %s.\n", "process_gnss_logdest", as_int(dest),
                     ok ? "success" : "fail");
        });
}

void SetLogDestRequest::process_pmsh_logdest(LogDestination dest) {
    run_logdest_worker(
        pm_sensor_hub_log_settings(*mISysLogControl), dest, kOffOrStor, -1,
        [](const PmSensorHubLogSettings& r) {
            TARN_LOG("%s: SetLogDestRequest result=%d, current pmSensorHubLogSettings.enable=%d.\n",
                     "process_pmsh_logdest", 0, r.enable);
        },
        [] {
            fprintf(stderr, "pmsh only support logdest:off or stor argument.\n");
            TARN_LOG_ERRNO("%s: pmsh only support logdest:off or stor argument",
                           "process_pmsh_logdest");
        },
        [](PmSensorHubLogSettings& r, LogDestination d) {
            r.enable = d == LogDestination::STOR ? 1 : 0;
        },
        [dest](bool ok) {
            TARN_LOG("%s: set pmsh log enable= %d %s.\n", "process_pmsh_logdest", as_int(dest),
                     ok ? "sucess" : "fail");
        });
}

void SetLogDestRequest::process_sensorhub_logdest(LogDestination dest) {
    run_logdest_worker(
        sensor_hub_log_settings(*mISysLogControl), dest, kOffOrStor, -1,
        [](const SensorHubLogSettings& r) {
            TARN_LOG("%s: SetLogDestRequest result=%d, current sensorHubLogSettings.enable=%d.\n",
                     "process_sensorhub_logdest", 0, r.enable);
        },
        [] {
            fprintf(stderr, "sensor only support logdest:off or stor argument.\n");
            TARN_LOG_ERRNO("%s: sensor only support logdest:off or stor argument",
                           "process_sensorhub_logdest");
        },
        [](SensorHubLogSettings& r, LogDestination d) {
            r.enable = d == LogDestination::STOR ? 1 : 0;
        },
        [dest](bool ok) {
            TARN_LOG("%s: set sensor log enable= %d %s.\n", "process_sensorhub_logdest",
                     as_int(dest), ok ? "sucess" : "fail");
        });
}

void SetLogDestRequest::process_agdsp_logdest(LogDestination dest) {
    run_logdest_worker(
        agdsp_log_settings(*mISysLogControl), dest,
        {LogDestination::OFF, LogDestination::STOR, LogDestination::USB}, -1,
        [](const AgdspLogSettings& r) {
            TARN_LOG("%s: do_request current result=%d, enable=%d, dest = %d.\n",
                     "process_agdsp_logdest", 0, r.enable, r.dest);
        },
        [] {
            fprintf(stderr, "agdsp use error dest argument.\n");
            TARN_LOG_ERRNO("%s: agdsp only support logdest:off stor usb argument",
                           "process_agdsp_logdest");
        },
        [](AgdspLogSettings& r, LogDestination d) {
            const int32_t on = d != LogDestination::OFF ? 1 : 0;
            r.enable = r.enableAux = on;
            if (on) r.dest = as_int(d);
        },
        [dest](bool ok) {
            TARN_LOG("%s: set agdsp log dest=%d %s.\n", "process_agdsp_logdest", as_int(dest),
                     ok ? "success" : "fail");
        });
}

}  // namespace tarn
