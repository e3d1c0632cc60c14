#pragma once

#include "aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h"

#include <android/binder_ibinder.h>

namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
class BpSysLogControl : public ::ndk::BpCInterface<ISysLogControl> {
public:
  explicit BpSysLogControl(const ::ndk::SpAIBinder& binder);
  virtual ~BpSysLogControl();

  ::ndk::ScopedAStatus crashSubsystem(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus clearLogs(int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus flushLogs() override;
  ::ndk::ScopedAStatus reserved04() override;
  ::ndk::ScopedAStatus getAgdspLogSettings(::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getCellularLogSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getConnectivityLogSettings(::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getPmSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getSubsystemAutoReboot(int32_t in_cpIndex, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getSubsystemRunState(int32_t in_cpIndex, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getSubsystemPresence(::aidl::vendor::kest::hardware::vexil_svc::SubsystemPresence* out_presence, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getCurrentParentLogPath(std::string* _aidl_return) override;
  ::ndk::ScopedAStatus reserved14() override;
  ::ndk::ScopedAStatus getPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia* _aidl_return) override;
  ::ndk::ScopedAStatus getSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam* out_param, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus reserved17() override;
  ::ndk::ScopedAStatus reserved18() override;
  ::ndk::ScopedAStatus reserved19() override;
  ::ndk::ScopedAStatus setAgdspLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setCellularLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus reserved22() override;
  ::ndk::ScopedAStatus setConnectivityLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setCurrentParentLogPath(const std::string& in_path, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus reserved25() override;
  ::ndk::ScopedAStatus reserved26() override;
  ::ndk::ScopedAStatus reserved27() override;
  ::ndk::ScopedAStatus setPmSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia in_media, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, const ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam& in_param, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus collectLogs(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus reserved34() override;
  ::ndk::ScopedAStatus reserved35() override;
  ::ndk::ScopedAStatus setMipiLogConfig(const ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig& in_config, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getMipiLogConfig(const std::string& in_selector, ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig* out_config, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setPsLogModuleConfig(int32_t in_opType, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus setCellularModemIoSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings& in_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getCellularModemIoSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings* out_settings, int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus reserved41() override;
  ::ndk::ScopedAStatus reserved42() override;
  ::ndk::ScopedAStatus clearLogsSkipBoot(int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getInterfaceVersion(int32_t* _aidl_return) override;
  ::ndk::ScopedAStatus getInterfaceHash(std::string* _aidl_return) override;
  int32_t _aidl_cached_version = -1;
  std::string _aidl_cached_hash = "-1";
  std::mutex _aidl_cached_hash_mutex;
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
