// Debian's arm64 libunwind is built for glibc: its trace messages call glibc's fortified
// __fprintf_chk, and its function-name lookup calls dladdr, which the dynamic linker (a static
// executable without libdl) cannot offer. builtins.sh renames those two references of its
// objects to the functions here: the messages through bionic's vfprintf, and a lookup that finds
// nothing, as Android's own libunwind (which uses neither) reports no name.
#include <dlfcn.h>
#include <stdarg.h>
#include <stdio.h>

__attribute__((visibility("hidden"))) int __libunwind_fprintf_chk(FILE* stream, int flag,
                                                                  const char* format, ...) {
    (void)flag;
    va_list args;
    va_start(args, format);
    int written = vfprintf(stream, format, args);
    va_end(args);
    return written;
}

__attribute__((visibility("hidden"))) int __libunwind_dladdr(const void* address, Dl_info* info) {
    (void)address;
    (void)info;
    return 0;
}
