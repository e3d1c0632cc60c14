// The service package's generated types, under one short namespace name.
#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/AgdspLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularModemIoSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ConnectivityLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/LogDestination.h>
#include <aidl/vendor/kest/hardware/vexil_svc/MipiLogConfig.h>
#include <aidl/vendor/kest/hardware/vexil_svc/PmSensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/StorageMedia.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemPresence.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemStorageParam.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemType.h>

namespace tarnmodem {
namespace svc = ::aidl::vendor::kest::hardware::vexil_svc;
}  // namespace tarnmodem
