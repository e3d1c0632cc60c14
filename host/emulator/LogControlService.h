// The log-control service as the daemon publishes it, working on the shared device state.
#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/BnSysLogControl.h>

#include <functional>
#include <optional>
#include <string>

#include "host/emulator/DeviceState.h"
#include "host/emulator/Faults.h"
#include "host/emulator/Journal.h"
#include "host/emulator/ServiceTypes.h"
#include "host/emulator/SharedState.h"

namespace tarnmodem {

class LogControlService : public svc::BnSysLogControl {
  public:
    LogControlService(SharedState& state, Journal& journal) : state_(state), journal_(journal) {}

    ndk::ScopedAStatus crashSubsystem(svc::SubsystemType in_type, int32_t* _aidl_return) override;
    ndk::ScopedAStatus clearLogs(int32_t* _aidl_return) override;
    ndk::ScopedAStatus flushLogs() override;
    ndk::ScopedAStatus reserved04() override;
    ndk::ScopedAStatus getAgdspLogSettings(svc::AgdspLogSettings* out_settings,
                                           int32_t* _aidl_return) override;
    ndk::ScopedAStatus getCellularLogSettings(svc::CellularLogSettings* out_settings,
                                              int32_t* _aidl_return) override;
    ndk::ScopedAStatus getConnectivityLogSettings(svc::ConnectivityLogSettings* out_settings,
                                                  int32_t* _aidl_return) override;
    ndk::ScopedAStatus getPmSensorHubLogSettings(svc::PmSensorHubLogSettings* out_settings,
                                                 int32_t* _aidl_return) override;
    ndk::ScopedAStatus getSensorHubLogSettings(svc::SensorHubLogSettings* out_settings,
                                               int32_t* _aidl_return) override;
    ndk::ScopedAStatus getSubsystemAutoReboot(int32_t in_cpIndex, int32_t* _aidl_return) override;
    ndk::ScopedAStatus getSubsystemRunState(int32_t in_cpIndex, int32_t* _aidl_return) override;
    ndk::ScopedAStatus getSubsystemPresence(svc::SubsystemPresence* out_presence,
                                            int32_t* _aidl_return) override;
    ndk::ScopedAStatus getCurrentParentLogPath(std::string* _aidl_return) override;
    ndk::ScopedAStatus reserved14() override;
    ndk::ScopedAStatus getPreferredStorageMedia(svc::StorageMedia* _aidl_return) override;
    ndk::ScopedAStatus getSubsystemStorageParam(svc::SubsystemType in_type,
                                                svc::SubsystemStorageParam* out_param,
                                                int32_t* _aidl_return) override;
    ndk::ScopedAStatus reserved17() override;
    ndk::ScopedAStatus reserved18() override;
    ndk::ScopedAStatus reserved19() override;
    ndk::ScopedAStatus setAgdspLogSettings(const svc::AgdspLogSettings& in_settings,
                                           int32_t* _aidl_return) override;
    ndk::ScopedAStatus setCellularLogSettings(const svc::CellularLogSettings& in_settings,
                                              int32_t* _aidl_return) override;
    ndk::ScopedAStatus reserved22() override;
    ndk::ScopedAStatus setConnectivityLogSettings(const svc::ConnectivityLogSettings& in_settings,
                                                  int32_t* _aidl_return) override;
    ndk::ScopedAStatus setCurrentParentLogPath(const std::string& in_path,
                                               int32_t* _aidl_return) override;
    ndk::ScopedAStatus reserved25() override;
    ndk::ScopedAStatus reserved26() override;
    ndk::ScopedAStatus reserved27() override;
    ndk::ScopedAStatus setPmSensorHubLogSettings(const svc::PmSensorHubLogSettings& in_settings,
                                                 int32_t* _aidl_return) override;
    ndk::ScopedAStatus setPreferredStorageMedia(svc::StorageMedia in_media,
                                                int32_t* _aidl_return) override;
    ndk::ScopedAStatus setSensorHubLogSettings(const svc::SensorHubLogSettings& in_settings,
                                               int32_t* _aidl_return) override;
    ndk::ScopedAStatus setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state,
                                              int32_t* _aidl_return) override;
    ndk::ScopedAStatus setSubsystemStorageParam(svc::SubsystemType in_type,
                                                const svc::SubsystemStorageParam& in_param,
                                                int32_t* _aidl_return) override;
    ndk::ScopedAStatus collectLogs(svc::SubsystemType in_type, int32_t* _aidl_return) override;
    ndk::ScopedAStatus reserved34() override;
    ndk::ScopedAStatus reserved35() override;
    ndk::ScopedAStatus setMipiLogConfig(const svc::MipiLogConfig& in_config,
                                        int32_t* _aidl_return) override;
    ndk::ScopedAStatus getMipiLogConfig(const std::string& in_selector,
                                        svc::MipiLogConfig* out_config,
                                        int32_t* _aidl_return) override;
    ndk::ScopedAStatus setPsLogModuleConfig(int32_t in_opType, int32_t* _aidl_return) override;
    ndk::ScopedAStatus setCellularModemIoSettings(const svc::CellularModemIoSettings& in_settings,
                                                  int32_t* _aidl_return) override;
    ndk::ScopedAStatus getCellularModemIoSettings(svc::CellularModemIoSettings* out_settings,
                                                  int32_t* _aidl_return) override;
    ndk::ScopedAStatus reserved41() override;
    ndk::ScopedAStatus reserved42() override;
    ndk::ScopedAStatus clearLogsSkipBoot(int32_t* _aidl_return) override;

  private:
    using Body = std::function<int32_t(DeviceState&)>;

    // Records the call and applies its "die" and "status" faults: a status to answer with at
    // once, or nothing when the call is to be carried out (fault then holds its fault, if any).
    std::optional<ndk::ScopedAStatus> arrive(const char* op, Json args, std::optional<Fault>& fault);
    // Carries out a call: body works on the state and returns the int result, which goes to
    // *result when the operation has one. A "result" fault runs body on a copy of the state
    // (so out values are filled but nothing changes) and returns its own value.
    ndk::ScopedAStatus serve(const char* op, Json args, int32_t* result, const Body& body);
    // An operation this daemon does not implement.
    ndk::ScopedAStatus unimplemented(const char* op);

    template <typename Record>
    ndk::ScopedAStatus get_record(const char* op, Record DeviceState::*field, Record* out,
                                  int32_t* result);
    template <typename Record>
    ndk::ScopedAStatus set_record(const char* op, Record DeviceState::*field, const Record& in,
                                  int32_t* result);

    SharedState& state_;
    Journal& journal_;
};

}  // namespace tarnmodem
