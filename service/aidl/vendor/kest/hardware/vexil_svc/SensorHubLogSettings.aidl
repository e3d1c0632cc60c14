package vendor.kest.hardware.vexil_svc;

/** Log settings of the sensor hub. */
@VintfStability
parcelable SensorHubLogSettings {
    int enable;
    int level;
}
