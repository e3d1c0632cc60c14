package vendor.kest.hardware.vexil_svc;

/** Storage limits of one subsystem's logs; sizes in MB. */
@VintfStability
parcelable SubsystemStorageParam {
    int externalMaxSize;
    int internalMaxSize;
    int logFileSize;
    int overwrite;
    int fileCount;
}
