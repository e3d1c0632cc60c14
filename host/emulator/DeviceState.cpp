#include "host/emulator/DeviceState.h"

namespace tarnmodem {
namespace {

svc::SubsystemStorageParam storage_param(int32_t external_mb, int32_t internal_mb, int32_t file_mb) {
    svc::SubsystemStorageParam p;
    p.externalMaxSize = external_mb;
    p.internalMaxSize = internal_mb;
    p.logFileSize = file_mb;
    p.overwrite = 1;
    p.fileCount = internal_mb / file_mb;
    return p;
}

}  // namespace

DeviceState default_device_state() {
    DeviceState s;
    // Modem log on, to storage, uncompressed, minidumps kept.
    s.cellular.mode = 1;
    s.cellular.dest = static_cast<int32_t>(svc::LogDestination::STOR);
    s.cellular.comp = 0;
    s.cellular.logSwitch1 = s.cellular.logSwitch2 = s.cellular.logSwitch3 = 1;
    s.cellular.logSwitch4 = s.cellular.logSwitch5 = s.cellular.logSwitch6 = 1;
    s.cellular.logPath = "/data/wyrm/log/modem_log";
    s.cellular.logConfig = "default";
    s.cellular.saveMinidump = 1;
    s.cellular.fnodel = 0;
    // Wi-Fi/BT log on to storage, GNSS log on.
    s.connectivity.dest = static_cast<int32_t>(svc::LogDestination::STOR);
    s.connectivity.comp = 0;
    s.connectivity.wcn = 1;
    s.connectivity.bt = 1;
    s.connectivity.armLog = 1;
    s.connectivity.gnss = 1;
    s.connectivity.gnssMode = 0;
    // PM/sensor hub log on, audio DSP log off (but pointed at storage).
    s.pmSensorHub.enable = 1;
    s.pmSensorHub.level = 3;
    s.sensorHub.enable = 0;
    s.sensorHub.level = 3;
    s.agdsp.enable = 0;
    s.agdsp.enableAux = 0;
    s.agdsp.dest = static_cast<int32_t>(svc::LogDestination::STOR);
    s.agdsp.pcmDump = 0;
    s.agdsp.outputMode = 0;
    s.presence.modem = s.presence.gnss = s.presence.wcn = 1;
    s.presence.agdsp = s.presence.pmsh = s.presence.sensor = 1;
    s.modemIo.avg_ratio = 80;
    s.modemIo.log_rate = 20;
    s.modemIo.buf_size = 256;
    s.modemIo.buf_num = 8;
    s.modemIo.log_commit_threshold = 128;
    s.modemIo.buf_commit_threshold = 64;
    s.mipi.type = "serdes";
    s.mipi.channel = "0";
    s.mipi.frequency = "1500";
    // The sensor hub's log goes with the PM hub's (pmsh) and has no storage of its own.
    s.storage[static_cast<int32_t>(svc::SubsystemType::MODEM)] = storage_param(4096, 2048, 64);
    s.storage[static_cast<int32_t>(svc::SubsystemType::WCN)] = storage_param(1024, 512, 32);
    s.storage[static_cast<int32_t>(svc::SubsystemType::PMSH)] = storage_param(512, 256, 16);
    s.storage[static_cast<int32_t>(svc::SubsystemType::AGDSP)] = storage_param(1024, 512, 32);
    s.storage[static_cast<int32_t>(svc::SubsystemType::GNSS)] = storage_param(512, 256, 16);
    s.storageMedia = svc::StorageMedia::STORAGE;
    s.parentLogPath = "/data/wyrm/log";
    s.autoReboot = {{kModemCpIndex, 1}, {kWcnCpIndex, 1}};
    s.runState = {{kModemCpIndex, 1}, {kWcnCpIndex, 1}};
    return s;
}

bool has_subsystem(const DeviceState& state, int32_t type) {
    const svc::SubsystemPresence& p = state.presence;
    switch (static_cast<svc::SubsystemType>(type)) {
        case svc::SubsystemType::MODEM:
            return p.modem != 0;
        case svc::SubsystemType::WCN:
            return p.wcn != 0;
        case svc::SubsystemType::PMSH:
            return p.pmsh != 0;
        case svc::SubsystemType::SENSOR:
            return p.sensor != 0;
        case svc::SubsystemType::AGDSP:
            return p.agdsp != 0;
        case svc::SubsystemType::GNSS:
            return p.gnss != 0;
    }
    return false;
}

}  // namespace tarnmodem
