"""The linker configuration Android 13's linkerconfig writes to /linkerconfig/ld.config.txt at
boot, for the programs of the vendor section (/vendor/bin, the vendor tests under
/data/nativetest64/vendor): system/linkerconfig's rules for it, in the order and format its
ConfigWriter uses. linkerconfig itself cannot be built from the tree (it needs libapexutil,
libprotobuf and libxml2); the device is a release one with VNDK version 33, no product VNDK, not
debuggable, with the runtime and VNDK APEXes only and no sanitizer libraries.

    contents/configuration/baseconfig.cc   the directories of the vendor section
    contents/section/vendor.cc              its namespaces: default, vndk, system, rs
    contents/namespace/vendordefault.cc, vndk.cc, system.cc (SetupSystemPermittedPaths in
    systemdefault.cc), rs.cc
    contents/common/system_links.cc          the bionic libraries every namespace links
    modules/namespace.cc, link.cc, section.cc, configwriter.cc   the format
"""

VNDK_VERSION = "33"
PRODUCT, SYSTEM_EXT = "/product", "/system_ext"
BIONIC_LIBS = ["libc.so", "libdl.so", "libdl_android.so", "libm.so"]
VENDOR_DIRS = ["/odm/bin/", "/vendor/bin/", "/data/nativetest/odm", "/data/nativetest64/odm",
               "/data/benchmarktest/odm", "/data/benchmarktest64/odm", "/data/nativetest/vendor",
               "/data/nativetest64/vendor", "/data/benchmarktest/vendor",
               "/data/benchmarktest64/vendor", "/data/local/tests/vendor"]


class Namespace:
    def __init__(self, name: str, isolated: bool, visible: bool):
        self.name, self.isolated, self.visible = name, isolated, visible
        self.search, self.permitted, self.asan_search, self.asan_permitted = [], [], [], []
        self.links = {}  # target namespace -> shared libraries, in the order made

    def add_search_path(self, path: str) -> None:
        self.search.append(path)
        self.asan_search += ([] if path.startswith("/apex") else ["/data/asan" + path]) + [path]

    def add_permitted_path(self, path: str) -> None:
        self.permitted.append(path)
        self.asan_permitted += ([] if path.startswith("/apex") else ["/data/asan" + path]) + [path]

    def link(self, target: str, libs: list) -> None:
        self.links.setdefault(target, []).extend(libs)

    def lines(self) -> list:
        prefix = f"namespace.{self.name}."
        out = [prefix + "isolated = " + ("true" if self.isolated else "false")]
        if self.visible:
            out.append(prefix + "visible = true")
        for key, values in (("search.paths", self.search), ("permitted.paths", self.permitted),
                            ("asan.search.paths", self.asan_search),
                            ("asan.permitted.paths", self.asan_permitted)):
            out += variable(prefix + key, values)
        links = [target for target, libs in self.links.items() if libs]
        if links:
            out.append(prefix + "links = " + ",".join(links))
            for target in links:
                out += variable(f"{prefix}link.{target}.shared_libs", self.links[target])
        return out


def variable(name: str, values: list) -> list:
    return [name + (" = " if i == 0 else " += ") + value for i, value in enumerate(values)]


def public(libs: list, private: list) -> str:
    return ":".join(lib for lib in libs if lib not in private)


def system_permitted_paths(ns: Namespace) -> None:
    for path in ["/system/${LIB}/drm", "/system/${LIB}/extractors", "/system/${LIB}/hw",
                 SYSTEM_EXT + "/${LIB}", "/system/framework", "/system/app", "/system/priv-app",
                 SYSTEM_EXT + "/framework", SYSTEM_EXT + "/app", SYSTEM_EXT + "/priv-app",
                 "/vendor/framework", "/vendor/app", "/vendor/priv-app",
                 "/system/vendor/framework", "/system/vendor/app", "/system/vendor/priv-app",
                 "/odm/framework", "/odm/app", "/odm/priv-app", "/oem/app",
                 PRODUCT + "/framework", PRODUCT + "/app", PRODUCT + "/priv-app", "/data",
                 "/mnt/expand", "/apex/com.android.runtime/${LIB}/bionic",
                 "/system/${LIB}/bootstrap", PRODUCT + "/${LIB}"]:
        ns.add_permitted_path(path)


def vendor_section(lists: dict) -> list:
    """lists: Soong's llndk, vndksp, vndkcore and vndkprivate library lists."""
    private = lists["vndkprivate"]
    llndk = public(lists["llndk"], private)
    vndk_apex = f"/apex/com.android.vndk.v{VNDK_VERSION}/${{LIB}}"

    default = Namespace("default", isolated=True, visible=True)
    for path in ["/odm/${LIB}", "/vendor/${LIB}", "/vendor/${LIB}/hw", "/vendor/${LIB}/egl"]:
        default.add_search_path(path)
    for path in ["/odm", "/vendor", "/system/vendor"]:
        default.add_permitted_path(path)
    default.link("rs", ["libRS_internal.so"])
    default.link("system", [llndk, ""])  # LLNDK_LIBRARIES_VENDOR, SANITIZER_DEFAULT_VENDOR
    default.link("vndk", [public(lists["vndksp"], private), public(lists["vndkcore"], private)])

    vndk = Namespace("vndk", isolated=True, visible=False)
    for lib_path in ["/odm/${LIB}", "/vendor/${LIB}"]:
        vndk.add_search_path(lib_path + "/vndk-sp")
        vndk.add_search_path(lib_path + "/vndk")
    vndk.add_search_path(vndk_apex)
    for path in ["/odm/${LIB}/hw", "/odm/${LIB}/egl", "/vendor/${LIB}/hw", "/vendor/${LIB}/egl",
                 "/system/vendor/${LIB}/hw", "/system/vendor/${LIB}/egl", vndk_apex + "/hw"]:
        vndk.add_permitted_path(path)
    for lib_path in ["/odm/${LIB}", "/vendor/${LIB}"]:
        vndk.add_search_path(lib_path)
    vndk.link("system", [llndk])

    system = Namespace("system", isolated=False, visible=False)
    for path in ["/system/${LIB}", SYSTEM_EXT + "/${LIB}", PRODUCT + "/${LIB}"]:
        system.add_search_path(path)
    system_permitted_paths(system)

    rs = Namespace("rs", isolated=True, visible=True)
    for path in ["/odm/${LIB}/vndk-sp", "/vendor/${LIB}/vndk-sp", vndk_apex, "/odm/${LIB}",
                 "/vendor/${LIB}"]:
        rs.add_search_path(path)
    for path in ["/odm/${LIB}", "/vendor/${LIB}", "/system/vendor/${LIB}", "/data"]:
        rs.add_permitted_path(path)
    rs.link("system", [llndk, ":".join(lib for lib in lists["llndk"] if lib in private)])

    namespaces = [default, rs, system, vndk]  # "default" first, then by name
    for ns in namespaces:  # AddStandardSystemLinks
        if ns.name != "system":
            ns.link("system", BIONIC_LIBS)
            if ns.name != "default":
                ns.link("system", [""])  # SANITIZER_RUNTIME_LIBRARIES
    lines = ["[vendor]", "additional.namespaces = " + ",".join(ns.name for ns in namespaces[1:])]
    for ns in namespaces:
        lines += ns.lines()
    return lines


def config(lists: dict) -> str:
    lines = [f"dir.vendor = {d}" for d in VENDOR_DIRS] + vendor_section(lists)
    return "\n".join(lines) + "\n"
