package vendor.kest.hardware.vexil_svc;

/** Modem log I/O throttling. */
@VintfStability
parcelable CellularModemIoSettings {
    /** percent */
    int avg_ratio;
    /** MB/s */
    int log_rate;
    /** KB */
    int buf_size;
    int buf_num;
    /** KB */
    int log_commit_threshold;
    /** KB */
    int buf_commit_threshold;
}
