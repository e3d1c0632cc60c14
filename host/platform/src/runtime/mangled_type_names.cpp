// Linked into the release host build of vexilctl only. The C++ runtime's terminate handler names
// the type of an uncaught exception through __cxa_demangle, and the demangler alone would be about
// a sixth of the statically linked tool. The tool throws nothing; should the runtime ever report
// an exception, it prints the type's mangled name instead.
#include <stddef.h>

extern "C" char* __cxa_demangle(const char* /*mangled*/, char* /*buffer*/, size_t* /*length*/,
                                int* status) {
    if (status != nullptr) *status = -2;  // "not a mangled name": the caller prints it as it is
    return nullptr;
}
