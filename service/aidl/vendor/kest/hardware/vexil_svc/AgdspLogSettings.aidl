package vendor.kest.hardware.vexil_svc;

/** Log settings of the audio DSP. */
@VintfStability
parcelable AgdspLogSettings {
    int enable;
    int enableAux;
    /** A LogDestination value. */
    int dest;
    int pcmDump;
    int outputMode;
}
