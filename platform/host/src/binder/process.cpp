// ABinderProcess_*: the threads that serve published services (see service_host.h).
#include <android/binder_process.h>

#include "service_host.h"

void ABinderProcess_startThreadPool() {
    host::binder::ServiceHost::get().start();
}

bool ABinderProcess_setThreadPoolMaxThreadCount(uint32_t /*numThreads*/) {
    // Every connection has its own thread; there is no pool size to set.
    return true;
}

void ABinderProcess_joinThreadPool() {
    host::binder::ServiceHost::get().join();
}
