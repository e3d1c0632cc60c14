// AServiceManager_*: the host has no service manager. A service is found at the abstract
// stream socket named after its instance; a lookup answers at once.
#include <android/binder_manager.h>
#include <time.h>
#include <unistd.h>

#include "host/platform/src/binder/binder_impl.h"
#include "host/platform/src/binder/service_host.h"
#include "host/platform/src/local_socket.h"

binder_exception_t AServiceManager_addService(AIBinder* binder, const char* instance) {
    return host::binder::ServiceHost::get().publish(binder, instance);
}

AIBinder* AServiceManager_getService(const char* instance) {
    return host::binder::connect_remote(instance);
}
