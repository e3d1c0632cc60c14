package vendor.kest.hardware.vexil_svc;

/** Log settings of the connectivity chip (Wi-Fi, Bluetooth) and of GNSS. */
@VintfStability
parcelable ConnectivityLogSettings {
    /** A LogDestination value for the wcn log. */
    int dest;
    /** 1 lz4, any other value none. */
    int comp;
    int wcn;
    int bt;
    int armLog;
    int gnss;
    int gnssMode;
}
