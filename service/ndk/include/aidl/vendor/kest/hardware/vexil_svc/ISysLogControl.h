#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <android/binder_interface_utils.h>
#include <aidl/vendor/kest/hardware/vexil_svc/AgdspLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularModemIoSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ConnectivityLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/MipiLogConfig.h>
#include <aidl/vendor/kest/hardware/vexil_svc/PmSensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/StorageMedia.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemPresence.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemStorageParam.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemType.h>
#ifdef BINDER_STABILITY_SUPPORT
#include <android/binder_stability.h>
#endif  // BINDER_STABILITY_SUPPORT

namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
class ISysLogControl : public ::ndk::ICInterface {
public:
  static const char* descriptor;
  ISysLogControl();
  virtual ~ISysLogControl();

  static const int32_t version = 1;
  static inline const std::string hash = "cdadb567d17ae2465f6c0e1f28faf6c7391d1126";
  static constexpr uint32_t TRANSACTION_crashSubsystem = FIRST_CALL_TRANSACTION + 0;
  static constexpr uint32_t TRANSACTION_clearLogs = FIRST_CALL_TRANSACTION + 1;
  static constexpr uint32_t TRANSACTION_flushLogs = FIRST_CALL_TRANSACTION + 2;
  static constexpr uint32_t TRANSACTION_reserved04 = FIRST_CALL_TRANSACTION + 3;
  static constexpr uint32_t TRANSACTION_getAgdspLogSettings = FIRST_CALL_TRANSACTION + 4;
  static constexpr uint32_t TRANSACTION_getCellularLogSettings = FIRST_CALL_TRANSACTION + 5;
  static constexpr uint32_t TRANSACTION_getConnectivityLogSettings = FIRST_CALL_TRANSACTION + 6;
  static constexpr uint32_t TRANSACTION_getPmSensorHubLogSettings = FIRST_CALL_TRANSACTION + 7;
  static constexpr uint32_t TRANSACTION_getSensorHubLogSettings = FIRST_CALL_TRANSACTION + 8;
  static constexpr uint32_t TRANSACTION_getSubsystemAutoReboot = FIRST_CALL_TRANSACTION + 9;
  static constexpr uint32_t TRANSACTION_getSubsystemRunState = FIRST_CALL_TRANSACTION + 10;
  static constexpr uint32_t TRANSACTION_getSubsystemPresence = FIRST_CALL_TRANSACTION + 11;
  static constexpr uint32_t TRANSACTION_getCurrentParentLogPath = FIRST_CALL_TRANSACTION + 12;
  static constexpr uint32_t TRANSACTION_reserved14 = FIRST_CALL_TRANSACTION + 13;
  static constexpr uint32_t TRANSACTION_getPreferredStorageMedia = FIRST_CALL_TRANSACTION + 14;
  static constexpr uint32_t TRANSACTION_getSubsystemStorageParam = FIRST_CALL_TRANSACTION + 15;
  static constexpr uint32_t TRANSACTION_reserved17 = FIRST_CALL_TRANSACTION + 16;
  static constexpr uint32_t TRANSACTION_reserved18 = FIRST_CALL_TRANSACTION + 17;
  static constexpr uint32_t TRANSACTION_reserved19 = FIRST_CALL_TRANSACTION + 18;
  static constexpr uint32_t TRANSACTION_setAgdspLogSettings = FIRST_CALL_TRANSACTION + 19;
  static constexpr uint32_t TRANSACTION_setCellularLogSettings = FIRST_CALL_TRANSACTION + 20;
  static constexpr uint32_t TRANSACTION_reserved22 = FIRST_CALL_TRANSACTION + 21;
  static constexpr uint32_t TRANSACTION_setConnectivityLogSettings = FIRST_CALL_TRANSACTION + 22;
  static constexpr uint32_t TRANSACTION_setCurrentParentLogPath = FIRST_CALL_TRANSACTION + 23;
  static constexpr uint32_t TRANSACTION_reserved25 = FIRST_CALL_TRANSACTION + 24;
  static constexpr uint32_t TRANSACTION_reserved26 = FIRST_CALL_TRANSACTION + 25;
  static constexpr uint32_t TRANSACTION_reserved27 = FIRST_CALL_TRANSACTION + 26;
  static constexpr uint32_t TRANSACTION_setPmSensorHubLogSettings = FIRST_CALL_TRANSACTION + 27;
  static constexpr uint32_t TRANSACTION_setPreferredStorageMedia = FIRST_CALL_TRANSACTION + 28;
  static constexpr uint32_t TRANSACTION_setSensorHubLogSettings = FIRST_CALL_TRANSACTION + 29;
  static constexpr uint32_t TRANSACTION_setSubsystemAutoReboot = FIRST_CALL_TRANSACTION + 30;
  static constexpr uint32_t TRANSACTION_setSubsystemStorageParam = FIRST_CALL_TRANSACTION + 31;
  static constexpr uint32_t TRANSACTION_collectLogs = FIRST_CALL_TRANSACTION + 32;
  static constexpr uint32_t TRANSACTION_reserved34 = FIRST_CALL_TRANSACTION + 33;
  static constexpr uint32_t TRANSACTION_reserved35 = FIRST_CALL_TRANSACTION + 34;
  static constexpr uint32_t TRANSACTION_setMipiLogConfig = FIRST_CALL_TRANSACTION + 35;
  static constexpr uint32_t TRANSACTION_getMipiLogConfig = FIRST_CALL_TRANSACTION + 36;
  static constexpr uint32_t TRANSACTION_setPsLogModuleConfig = FIRST_CALL_TRANSACTION + 37;
  static constexpr uint32_t TRANSACTION_setCellularModemIoSettings = FIRST_CALL_TRANSACTION + 38;
  static constexpr uint32_t TRANSACTION_getCellularModemIoSettings = FIRST_CALL_TRANSACTION + 39;
  static constexpr uint32_t TRANSACTION_reserved41 = FIRST_CALL_TRANSACTION + 40;
  static constexpr uint32_t TRANSACTION_reserved42 = FIRST_CALL_TRANSACTION + 41;
  static constexpr uint32_t TRANSACTION_clearLogsSkipBoot = FIRST_CALL_TRANSACTION + 42;

  static std::shared_ptr<ISysLogControl> fromBinder(const ::ndk::SpAIBinder& binder);
  static binder_status_t writeToParcel(AParcel* parcel, const std::shared_ptr<ISysLogControl>& instance);
  static binder_status_t readFromParcel(const AParcel* parcel, std::shared_ptr<ISysLogControl>* instance);
  static bool setDefaultImpl(const std::shared_ptr<ISysLogControl>& impl);
  static const std::shared_ptr<ISysLogControl>& getDefaultImpl();
  virtual ::ndk::ScopedAStatus crashSubsystem(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus clearLogs(int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus flushLogs() = 0;
  virtual ::ndk::ScopedAStatus reserved04() = 0;
  virtual ::ndk::ScopedAStatus getAgdspLogSettings(::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getCellularLogSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getConnectivityLogSettings(::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getPmSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getSubsystemAutoReboot(int32_t in_cpIndex, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getSubsystemRunState(int32_t in_cpIndex, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getSubsystemPresence(::aidl::vendor::kest::hardware::vexil_svc::SubsystemPresence* out_presence, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getCurrentParentLogPath(std::string* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved14() = 0;
  virtual ::ndk::ScopedAStatus getPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam* out_param, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved17() = 0;
  virtual ::ndk::ScopedAStatus reserved18() = 0;
  virtual ::ndk::ScopedAStatus reserved19() = 0;
  virtual ::ndk::ScopedAStatus setAgdspLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setCellularLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved22() = 0;
  virtual ::ndk::ScopedAStatus setConnectivityLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setCurrentParentLogPath(const std::string& in_path, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved25() = 0;
  virtual ::ndk::ScopedAStatus reserved26() = 0;
  virtual ::ndk::ScopedAStatus reserved27() = 0;
  virtual ::ndk::ScopedAStatus setPmSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia in_media, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, const ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam& in_param, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus collectLogs(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved34() = 0;
  virtual ::ndk::ScopedAStatus reserved35() = 0;
  virtual ::ndk::ScopedAStatus setMipiLogConfig(const ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig& in_config, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getMipiLogConfig(const std::string& in_selector, ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig* out_config, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setPsLogModuleConfig(int32_t in_opType, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus setCellularModemIoSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings& in_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getCellularModemIoSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings* out_settings, int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus reserved41() = 0;
  virtual ::ndk::ScopedAStatus reserved42() = 0;
  virtual ::ndk::ScopedAStatus clearLogsSkipBoot(int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getInterfaceVersion(int32_t* _aidl_return) = 0;
  virtual ::ndk::ScopedAStatus getInterfaceHash(std::string* _aidl_return) = 0;
private:
  static std::shared_ptr<ISysLogControl> default_impl;
};
class ISysLogControlDefault : public ISysLogControl {
public:
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
  ::ndk::SpAIBinder asBinder() override;
  bool isRemote() override;
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
