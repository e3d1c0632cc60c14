#include "host/emulator/RecordFields.h"

#include <limits>

namespace tarnmodem {

int32_t int32_from_json(const Json& value, const std::string& key) {
    if (!value.is_number_integer()) throw StateError(key, "must be an integer");
    if (value.is_number_unsigned()) {
        if (value.get<uint64_t>() > uint64_t{std::numeric_limits<int32_t>::max()}) {
            throw StateError(key, "is out of the int32 range");
        }
        return static_cast<int32_t>(value.get<uint64_t>());
    }
    int64_t n = value.get<int64_t>();
    if (n < std::numeric_limits<int32_t>::min() || n > std::numeric_limits<int32_t>::max()) {
        throw StateError(key, "is out of the int32 range");
    }
    return static_cast<int32_t>(n);
}

#define TARNMODEM_FIELDS(Type, ...)                                          \
    const std::vector<Field<svc::Type>>& RecordFields<svc::Type>::fields() { \
        using R = svc::Type;                                                 \
        static const std::vector<Field<R>> list{__VA_ARGS__};                \
        return list;                                                         \
    }

TARNMODEM_FIELDS(AgdspLogSettings, {"enable", &R::enable}, {"enableAux", &R::enableAux},
                 {"dest", &R::dest}, {"pcmDump", &R::pcmDump}, {"outputMode", &R::outputMode})

TARNMODEM_FIELDS(CellularLogSettings, {"mode", &R::mode}, {"dest", &R::dest}, {"comp", &R::comp},
                 {"logSwitch1", &R::logSwitch1}, {"logPath", &R::logPath},
                 {"logConfig", &R::logConfig}, {"logSwitch2", &R::logSwitch2},
                 {"logSwitch3", &R::logSwitch3}, {"saveMinidump", &R::saveMinidump},
                 {"logSwitch4", &R::logSwitch4}, {"logSwitch5", &R::logSwitch5},
                 {"logSwitch6", &R::logSwitch6}, {"fnodel", &R::fnodel})

TARNMODEM_FIELDS(CellularModemIoSettings, {"avg_ratio", &R::avg_ratio}, {"log_rate", &R::log_rate},
                 {"buf_size", &R::buf_size}, {"buf_num", &R::buf_num},
                 {"log_commit_threshold", &R::log_commit_threshold},
                 {"buf_commit_threshold", &R::buf_commit_threshold})

TARNMODEM_FIELDS(ConnectivityLogSettings, {"dest", &R::dest}, {"comp", &R::comp}, {"wcn", &R::wcn},
                 {"bt", &R::bt}, {"armLog", &R::armLog}, {"gnss", &R::gnss},
                 {"gnssMode", &R::gnssMode})

TARNMODEM_FIELDS(MipiLogConfig, {"type", &R::type}, {"channel", &R::channel},
                 {"frequency", &R::frequency})

TARNMODEM_FIELDS(PmSensorHubLogSettings, {"enable", &R::enable}, {"level", &R::level})

TARNMODEM_FIELDS(SensorHubLogSettings, {"enable", &R::enable}, {"level", &R::level})

TARNMODEM_FIELDS(SubsystemPresence, {"modem", &R::modem}, {"gnss", &R::gnss}, {"wcn", &R::wcn},
                 {"agdsp", &R::agdsp}, {"pmsh", &R::pmsh}, {"sensor", &R::sensor})

TARNMODEM_FIELDS(SubsystemStorageParam, {"externalMaxSize", &R::externalMaxSize},
                 {"internalMaxSize", &R::internalMaxSize}, {"logFileSize", &R::logFileSize},
                 {"overwrite", &R::overwrite}, {"fileCount", &R::fileCount})

#undef TARNMODEM_FIELDS

}  // namespace tarnmodem
