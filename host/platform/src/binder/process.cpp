// ABinderProcess_*: the threads that serve published services (see service_host.h).
#include <android/binder_process.h>

#include "host/platform/src/binder/service_host.h"

void ABinderProcess_startThreadPool() {
    host::binder::ServiceHost::get().start();
}
