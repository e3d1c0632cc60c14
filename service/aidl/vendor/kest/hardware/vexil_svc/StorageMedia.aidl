package vendor.kest.hardware.vexil_svc;

/** The storage medium the daemon prefers for saving logs. */
@VintfStability
@Backing(type="int")
enum StorageMedia {
    DATA = 0,
    STORAGE = 1,
    EXTERNAL = 2,
}
