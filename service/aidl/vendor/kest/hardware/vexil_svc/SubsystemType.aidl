package vendor.kest.hardware.vexil_svc;

/** A co-processor whose log the daemon manages. */
@VintfStability
@Backing(type="int")
enum SubsystemType {
    MODEM = 1,
    WCN = 2,
    PMSH = 3,
    SENSOR = 4,
    AGDSP = 5,
    GNSS = 6,
}
