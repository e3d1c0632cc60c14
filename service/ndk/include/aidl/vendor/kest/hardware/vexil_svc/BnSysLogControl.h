#pragma once

#include "aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h"

#include <android/binder_ibinder.h>
#include <cassert>

#ifndef __BIONIC__
#ifndef __assert2
#define __assert2(a,b,c,d) ((void)0)
#endif
#endif

namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
class BnSysLogControl : public ::ndk::BnCInterface<ISysLogControl> {
public:
  BnSysLogControl();
  virtual ~BnSysLogControl();
  ::ndk::ScopedAStatus getInterfaceVersion(int32_t* _aidl_return) final;
  ::ndk::ScopedAStatus getInterfaceHash(std::string* _aidl_return) final;
protected:
  ::ndk::SpAIBinder createBinder() override;
private:
};
class ISysLogControlDelegator : public BnSysLogControl {
public:
  explicit ISysLogControlDelegator(const std::shared_ptr<ISysLogControl> &impl) : _impl(impl) {
     int32_t _impl_ver = 0;
     if (!impl->getInterfaceVersion(&_impl_ver).isOk()) {;
        __assert2(__FILE__, __LINE__, __PRETTY_FUNCTION__, "Delegator failed to get version of the implementation.");
     }
     if (_impl_ver != ISysLogControl::version) {
        __assert2(__FILE__, __LINE__, __PRETTY_FUNCTION__, "Mismatched versions of delegator and implementation is not allowed.");
     }
  }

  ::ndk::ScopedAStatus crashSubsystem(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) override {
    return _impl->crashSubsystem(in_type, _aidl_return);
  }
  ::ndk::ScopedAStatus clearLogs(int32_t* _aidl_return) override {
    return _impl->clearLogs(_aidl_return);
  }
  ::ndk::ScopedAStatus flushLogs() override {
    return _impl->flushLogs();
  }
  ::ndk::ScopedAStatus reserved04() override {
    return _impl->reserved04();
  }
  ::ndk::ScopedAStatus getAgdspLogSettings(::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getAgdspLogSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getCellularLogSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getCellularLogSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getConnectivityLogSettings(::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getConnectivityLogSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getPmSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getPmSensorHubLogSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getSensorHubLogSettings(::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getSensorHubLogSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getSubsystemAutoReboot(int32_t in_cpIndex, int32_t* _aidl_return) override {
    return _impl->getSubsystemAutoReboot(in_cpIndex, _aidl_return);
  }
  ::ndk::ScopedAStatus getSubsystemRunState(int32_t in_cpIndex, int32_t* _aidl_return) override {
    return _impl->getSubsystemRunState(in_cpIndex, _aidl_return);
  }
  ::ndk::ScopedAStatus getSubsystemPresence(::aidl::vendor::kest::hardware::vexil_svc::SubsystemPresence* out_presence, int32_t* _aidl_return) override {
    return _impl->getSubsystemPresence(out_presence, _aidl_return);
  }
  ::ndk::ScopedAStatus getCurrentParentLogPath(std::string* _aidl_return) override {
    return _impl->getCurrentParentLogPath(_aidl_return);
  }
  ::ndk::ScopedAStatus reserved14() override {
    return _impl->reserved14();
  }
  ::ndk::ScopedAStatus getPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia* _aidl_return) override {
    return _impl->getPreferredStorageMedia(_aidl_return);
  }
  ::ndk::ScopedAStatus getSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam* out_param, int32_t* _aidl_return) override {
    return _impl->getSubsystemStorageParam(in_type, out_param, _aidl_return);
  }
  ::ndk::ScopedAStatus reserved17() override {
    return _impl->reserved17();
  }
  ::ndk::ScopedAStatus reserved18() override {
    return _impl->reserved18();
  }
  ::ndk::ScopedAStatus reserved19() override {
    return _impl->reserved19();
  }
  ::ndk::ScopedAStatus setAgdspLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::AgdspLogSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setAgdspLogSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus setCellularLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularLogSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setCellularLogSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus reserved22() override {
    return _impl->reserved22();
  }
  ::ndk::ScopedAStatus setConnectivityLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::ConnectivityLogSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setConnectivityLogSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus setCurrentParentLogPath(const std::string& in_path, int32_t* _aidl_return) override {
    return _impl->setCurrentParentLogPath(in_path, _aidl_return);
  }
  ::ndk::ScopedAStatus reserved25() override {
    return _impl->reserved25();
  }
  ::ndk::ScopedAStatus reserved26() override {
    return _impl->reserved26();
  }
  ::ndk::ScopedAStatus reserved27() override {
    return _impl->reserved27();
  }
  ::ndk::ScopedAStatus setPmSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::PmSensorHubLogSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setPmSensorHubLogSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus setPreferredStorageMedia(::aidl::vendor::kest::hardware::vexil_svc::StorageMedia in_media, int32_t* _aidl_return) override {
    return _impl->setPreferredStorageMedia(in_media, _aidl_return);
  }
  ::ndk::ScopedAStatus setSensorHubLogSettings(const ::aidl::vendor::kest::hardware::vexil_svc::SensorHubLogSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setSensorHubLogSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state, int32_t* _aidl_return) override {
    return _impl->setSubsystemAutoReboot(in_cpIndex, in_state, _aidl_return);
  }
  ::ndk::ScopedAStatus setSubsystemStorageParam(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, const ::aidl::vendor::kest::hardware::vexil_svc::SubsystemStorageParam& in_param, int32_t* _aidl_return) override {
    return _impl->setSubsystemStorageParam(in_type, in_param, _aidl_return);
  }
  ::ndk::ScopedAStatus collectLogs(::aidl::vendor::kest::hardware::vexil_svc::SubsystemType in_type, int32_t* _aidl_return) override {
    return _impl->collectLogs(in_type, _aidl_return);
  }
  ::ndk::ScopedAStatus reserved34() override {
    return _impl->reserved34();
  }
  ::ndk::ScopedAStatus reserved35() override {
    return _impl->reserved35();
  }
  ::ndk::ScopedAStatus setMipiLogConfig(const ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig& in_config, int32_t* _aidl_return) override {
    return _impl->setMipiLogConfig(in_config, _aidl_return);
  }
  ::ndk::ScopedAStatus getMipiLogConfig(const std::string& in_selector, ::aidl::vendor::kest::hardware::vexil_svc::MipiLogConfig* out_config, int32_t* _aidl_return) override {
    return _impl->getMipiLogConfig(in_selector, out_config, _aidl_return);
  }
  ::ndk::ScopedAStatus setPsLogModuleConfig(int32_t in_opType, int32_t* _aidl_return) override {
    return _impl->setPsLogModuleConfig(in_opType, _aidl_return);
  }
  ::ndk::ScopedAStatus setCellularModemIoSettings(const ::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings& in_settings, int32_t* _aidl_return) override {
    return _impl->setCellularModemIoSettings(in_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus getCellularModemIoSettings(::aidl::vendor::kest::hardware::vexil_svc::CellularModemIoSettings* out_settings, int32_t* _aidl_return) override {
    return _impl->getCellularModemIoSettings(out_settings, _aidl_return);
  }
  ::ndk::ScopedAStatus reserved41() override {
    return _impl->reserved41();
  }
  ::ndk::ScopedAStatus reserved42() override {
    return _impl->reserved42();
  }
  ::ndk::ScopedAStatus clearLogsSkipBoot(int32_t* _aidl_return) override {
    return _impl->clearLogsSkipBoot(_aidl_return);
  }
protected:
private:
  std::shared_ptr<ISysLogControl> _impl;
};

}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
