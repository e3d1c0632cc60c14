package vendor.kest.hardware.vexil_svc;

/** Where a co-processor's log goes. */
@VintfStability
@Backing(type="int")
enum LogDestination {
    OFF = 0,
    STOR = 1,
    USB = 2,
    WIFI = 3,
}
