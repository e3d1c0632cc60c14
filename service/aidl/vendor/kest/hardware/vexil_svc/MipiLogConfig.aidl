package vendor.kest.hardware.vexil_svc;

/** MIPI log capture configuration, passed through as three words. */
@VintfStability
parcelable MipiLogConfig {
    String type;
    String channel;
    String frequency;
}
