package vendor.kest.hardware.vexil_svc;

import vendor.kest.hardware.vexil_svc.AgdspLogSettings;
import vendor.kest.hardware.vexil_svc.CellularLogSettings;
import vendor.kest.hardware.vexil_svc.CellularModemIoSettings;
import vendor.kest.hardware.vexil_svc.ConnectivityLogSettings;
import vendor.kest.hardware.vexil_svc.MipiLogConfig;
import vendor.kest.hardware.vexil_svc.PmSensorHubLogSettings;
import vendor.kest.hardware.vexil_svc.SensorHubLogSettings;
import vendor.kest.hardware.vexil_svc.StorageMedia;
import vendor.kest.hardware.vexil_svc.SubsystemPresence;
import vendor.kest.hardware.vexil_svc.SubsystemStorageParam;
import vendor.kest.hardware.vexil_svc.SubsystemType;

/**
 * Log-control service of the co-processor log daemon.
 *
 * Operations keep their declaration order: it fixes the transaction codes. Slots named
 * reservedNN belong to operations this package does not describe; they hold their codes.
 * Every int result is 0 on success, -3 when the subsystem is not supported, other values
 * on failure. Subsystem indexes of the auto-reboot and run-state calls are 0 modem, 1 wcn.
 */
@VintfStability
interface ISysLogControl {
    int crashSubsystem(in SubsystemType type);
    int clearLogs();
    void flushLogs();
    void reserved04();
    int getAgdspLogSettings(out AgdspLogSettings settings);
    int getCellularLogSettings(out CellularLogSettings settings);
    int getConnectivityLogSettings(out ConnectivityLogSettings settings);
    int getPmSensorHubLogSettings(out PmSensorHubLogSettings settings);
    int getSensorHubLogSettings(out SensorHubLogSettings settings);
    int getSubsystemAutoReboot(int cpIndex);
    int getSubsystemRunState(int cpIndex);
    int getSubsystemPresence(out SubsystemPresence presence);
    String getCurrentParentLogPath();
    void reserved14();
    StorageMedia getPreferredStorageMedia();
    int getSubsystemStorageParam(in SubsystemType type, out SubsystemStorageParam param);
    void reserved17();
    void reserved18();
    void reserved19();
    int setAgdspLogSettings(in AgdspLogSettings settings);
    int setCellularLogSettings(in CellularLogSettings settings);
    void reserved22();
    int setConnectivityLogSettings(in ConnectivityLogSettings settings);
    int setCurrentParentLogPath(in String path);
    void reserved25();
    void reserved26();
    void reserved27();
    int setPmSensorHubLogSettings(in PmSensorHubLogSettings settings);
    int setPreferredStorageMedia(in StorageMedia media);
    int setSensorHubLogSettings(in SensorHubLogSettings settings);
    int setSubsystemAutoReboot(int cpIndex, int state);
    int setSubsystemStorageParam(in SubsystemType type, in SubsystemStorageParam param);
    int collectLogs(in SubsystemType type);
    void reserved34();
    void reserved35();
    int setMipiLogConfig(in MipiLogConfig config);
    int getMipiLogConfig(in String selector, out MipiLogConfig config);
    int setPsLogModuleConfig(int opType);
    int setCellularModemIoSettings(in CellularModemIoSettings settings);
    int getCellularModemIoSettings(out CellularModemIoSettings settings);
    void reserved41();
    void reserved42();
    int clearLogsSkipBoot();
}
