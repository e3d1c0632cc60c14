package vendor.kest.hardware.vexil_svc;

/** Log settings of the cellular modem. */
@VintfStability
parcelable CellularLogSettings {
    /** 0 off, 1 on, 2 event log only. */
    int mode;
    /** A LogDestination value. */
    int dest;
    /** 1 lz4, any other value none. */
    int comp;
    int logSwitch1;
    String logPath;
    String logConfig;
    int logSwitch2;
    int logSwitch3;
    int saveMinidump;
    int logSwitch4;
    int logSwitch5;
    int logSwitch6;
    /** 1 keeps log files from deletion. */
    int fnodel;
}
