// Host stand-in for the Android 13 service manager API. On the host a service is reached at the
// abstract local stream socket named after its instance.
#pragma once

#include <android/binder_ibinder.h>
#include <android/binder_status.h>
#include <sys/cdefs.h>

__BEGIN_DECLS

__attribute__((warn_unused_result)) binder_exception_t AServiceManager_addService(
    AIBinder* binder, const char* instance) __INTRODUCED_IN(29);
__attribute__((warn_unused_result)) AIBinder* AServiceManager_getService(const char* instance)
    __INTRODUCED_IN(29);

__END_DECLS
