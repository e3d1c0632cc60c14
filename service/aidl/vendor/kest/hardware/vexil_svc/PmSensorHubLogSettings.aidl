package vendor.kest.hardware.vexil_svc;

/** Log settings of the PM and sensor hub. */
@VintfStability
parcelable PmSensorHubLogSettings {
    int enable;
    int level;
}
