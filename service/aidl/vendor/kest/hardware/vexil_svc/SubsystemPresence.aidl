package vendor.kest.hardware.vexil_svc;

/** Which co-processors the device has; non-zero means fitted. */
@VintfStability
parcelable SubsystemPresence {
    int modem;
    int gnss;
    int wcn;
    int agdsp;
    int pmsh;
    int sensor;
}
