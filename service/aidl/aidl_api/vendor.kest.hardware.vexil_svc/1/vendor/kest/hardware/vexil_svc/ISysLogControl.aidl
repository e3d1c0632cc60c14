///////////////////////////////////////////////////////////////////////////////
// THIS FILE IS IMMUTABLE. DO NOT EDIT IN ANY CASE.                          //
///////////////////////////////////////////////////////////////////////////////

// This file is a snapshot of an AIDL file. Do not edit it manually. There are
// two cases:
// 1). this is a frozen version file - do not edit this in any case.
// 2). this is a 'current' file. If you make a backwards compatible change to
//     the interface (from the latest frozen version), the build system will
//     prompt you to update this file with `m <name>-update-api`.
//
// You must not make a backward incompatible change to any AIDL file built
// with the aidl_interface module type with versions property set. The module
// type is used to build AIDL files in a way that they can be used across
// independently updatable components of the system. If a device is shipped
// with such a backward incompatible change, it has a high risk of breaking
// later when a module using the interface is updated, e.g., Mainline modules.

package vendor.kest.hardware.vexil_svc;
@VintfStability
interface ISysLogControl {
  int crashSubsystem(in vendor.kest.hardware.vexil_svc.SubsystemType type);
  int clearLogs();
  void flushLogs();
  void reserved04();
  int getAgdspLogSettings(out vendor.kest.hardware.vexil_svc.AgdspLogSettings settings);
  int getCellularLogSettings(out vendor.kest.hardware.vexil_svc.CellularLogSettings settings);
  int getConnectivityLogSettings(out vendor.kest.hardware.vexil_svc.ConnectivityLogSettings settings);
  int getPmSensorHubLogSettings(out vendor.kest.hardware.vexil_svc.PmSensorHubLogSettings settings);
  int getSensorHubLogSettings(out vendor.kest.hardware.vexil_svc.SensorHubLogSettings settings);
  int getSubsystemAutoReboot(int cpIndex);
  int getSubsystemRunState(int cpIndex);
  int getSubsystemPresence(out vendor.kest.hardware.vexil_svc.SubsystemPresence presence);
  String getCurrentParentLogPath();
  void reserved14();
  vendor.kest.hardware.vexil_svc.StorageMedia getPreferredStorageMedia();
  int getSubsystemStorageParam(in vendor.kest.hardware.vexil_svc.SubsystemType type, out vendor.kest.hardware.vexil_svc.SubsystemStorageParam param);
  void reserved17();
  void reserved18();
  void reserved19();
  int setAgdspLogSettings(in vendor.kest.hardware.vexil_svc.AgdspLogSettings settings);
  int setCellularLogSettings(in vendor.kest.hardware.vexil_svc.CellularLogSettings settings);
  void reserved22();
  int setConnectivityLogSettings(in vendor.kest.hardware.vexil_svc.ConnectivityLogSettings settings);
  int setCurrentParentLogPath(in String path);
  void reserved25();
  void reserved26();
  void reserved27();
  int setPmSensorHubLogSettings(in vendor.kest.hardware.vexil_svc.PmSensorHubLogSettings settings);
  int setPreferredStorageMedia(in vendor.kest.hardware.vexil_svc.StorageMedia media);
  int setSensorHubLogSettings(in vendor.kest.hardware.vexil_svc.SensorHubLogSettings settings);
  int setSubsystemAutoReboot(int cpIndex, int state);
  int setSubsystemStorageParam(in vendor.kest.hardware.vexil_svc.SubsystemType type, in vendor.kest.hardware.vexil_svc.SubsystemStorageParam param);
  int collectLogs(in vendor.kest.hardware.vexil_svc.SubsystemType type);
  void reserved34();
  void reserved35();
  int setMipiLogConfig(in vendor.kest.hardware.vexil_svc.MipiLogConfig config);
  int getMipiLogConfig(in String selector, out vendor.kest.hardware.vexil_svc.MipiLogConfig config);
  int setPsLogModuleConfig(int opType);
  int setCellularModemIoSettings(in vendor.kest.hardware.vexil_svc.CellularModemIoSettings settings);
  int getCellularModemIoSettings(out vendor.kest.hardware.vexil_svc.CellularModemIoSettings settings);
  void reserved41();
  void reserved42();
  int clearLogsSkipBoot();
}
