// AServiceManager_*: the host has no service manager. A service is found at the abstract
// stream socket named after its instance; a lookup answers at once.
#include <android/binder_manager.h>
#include <time.h>
#include <unistd.h>

#include "binder_impl.h"
#include "local_socket.h"
#include "service_host.h"

binder_exception_t AServiceManager_addService(AIBinder* binder, const char* instance) {
    return host::binder::ServiceHost::get().publish(binder, instance);
}

AIBinder* AServiceManager_checkService(const char* instance) {
    return host::binder::connect_remote(instance);
}

AIBinder* AServiceManager_getService(const char* instance) {
    return host::binder::connect_remote(instance);
}

AIBinder* AServiceManager_waitForService(const char* instance) {
    for (;;) {
        AIBinder* binder = host::binder::connect_remote(instance);
        if (binder != nullptr || instance == nullptr) return binder;
        timespec pause_time{0, 50 * 1000 * 1000};
        nanosleep(&pause_time, nullptr);
    }
}

bool AServiceManager_isDeclared(const char* instance) {
    sockaddr_un addr;
    socklen_t len;
    if (!host::abstract_address(instance, &addr, &len)) return false;
    int fd = host::connect_stream(addr, len);
    if (fd < 0) return false;
    close(fd);
    return true;
}
