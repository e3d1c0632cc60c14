// socket_local_client: connect to a local socket by name, as Android's cutils does.
#include <cutils/sockets.h>
#include <errno.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>

#include "host/platform/src/local_socket.h"

namespace {

// Where Android's init creates reserved sockets.
constexpr char kReservedSocketDir[] = "/dev/socket/";

bool address_of(const char* name, int namespaceId, sockaddr_un* addr, socklen_t* len) {
    switch (namespaceId) {
        case ANDROID_SOCKET_NAMESPACE_ABSTRACT:
            return host::abstract_address(name, addr, len);
        case ANDROID_SOCKET_NAMESPACE_RESERVED:
            if (name == nullptr) break;
            return host::filesystem_address((std::string(kReservedSocketDir) + name).c_str(), addr,
                                            len);
        case ANDROID_SOCKET_NAMESPACE_FILESYSTEM:
            return host::filesystem_address(name, addr, len);
        default:
            break;
    }
    errno = EINVAL;
    return false;
}

}  // namespace

int socket_local_client(const char* name, int namespaceId, int type) {
    sockaddr_un addr;
    socklen_t len;
    if (!address_of(name, namespaceId, &addr, &len)) return -1;
    return host::connect_local(addr, len, type);
}
