#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/AgdspLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularModemIoSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ConnectivityLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/PmSensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemStorageParam.h>
#include <android/binder_auto_utils.h>

#include <cstdint>
#include <tuple>

namespace tarn {

using ::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl;
using ::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings;
using ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam;
using ::aidl::vendor::kest::hardware::vexil_svc::SubsystemType;

// One settings record of the service, changed the only way the daemon allows: read the whole
// record, change the fields concerned, write the whole record back.
//
// read() zero-fills `record`, presets `result` and calls the get operation; it is good only when
// the status came back OK and the result is 0. write() presets `result`, sends the whole record
// and returns the result. `status` holds the status of the last call; callers that judge a call
// by its result alone simply do not look at it.
template <typename Record, typename... Key>
class RecordEdit {
  public:
    using Getter = ndk::ScopedAStatus (ISysLogControl::*)(Key..., Record*, int32_t*);
    using Setter = ndk::ScopedAStatus (ISysLogControl::*)(Key..., const Record&, int32_t*);

    RecordEdit(ISysLogControl& service, Getter get, Setter set, Key... key)
        : service_(service), get_(get), set_(set), key_(key...) {}

    bool read(int32_t preset = -1) {
        record = Record{};
        result = preset;
        status = std::apply(
            [this](Key... key) { return (service_.*get_)(key..., &record, &result); }, key_);
        return status.isOk() && result == 0;
    }

    int32_t write(int32_t preset = -1) {
        result = preset;
        status = std::apply(
            [this](Key... key) { return (service_.*set_)(key..., record, &result); }, key_);
        return result;
    }

    Record record{};
    int32_t result = -1;
    ndk::ScopedAStatus status;

  private:
    ISysLogControl& service_;
    Getter get_;
    Setter set_;
    std::tuple<Key...> key_;
};

// The records, each with its own pair of operations.
inline RecordEdit<CellularLogSettings> cellular_log_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getCellularLogSettings,
            &ISysLogControl::setCellularLogSettings};
}

inline RecordEdit<ConnectivityLogSettings> connectivity_log_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getConnectivityLogSettings,
            &ISysLogControl::setConnectivityLogSettings};
}

inline RecordEdit<PmSensorHubLogSettings> pm_sensor_hub_log_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getPmSensorHubLogSettings,
            &ISysLogControl::setPmSensorHubLogSettings};
}

inline RecordEdit<SensorHubLogSettings> sensor_hub_log_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getSensorHubLogSettings,
            &ISysLogControl::setSensorHubLogSettings};
}

inline RecordEdit<AgdspLogSettings> agdsp_log_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getAgdspLogSettings, &ISysLogControl::setAgdspLogSettings};
}

inline RecordEdit<SubsystemStorageParam, SubsystemType> subsystem_storage_param(
    ISysLogControl& service, SubsystemType type) {
    return {service, &ISysLogControl::getSubsystemStorageParam,
            &ISysLogControl::setSubsystemStorageParam, type};
}

inline RecordEdit<CellularModemIoSettings> cellular_modem_io_settings(ISysLogControl& service) {
    return {service, &ISysLogControl::getCellularModemIoSettings,
            &ISysLogControl::setCellularModemIoSettings};
}

}  // namespace tarn
