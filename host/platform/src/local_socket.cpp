#include "host/platform/src/local_socket.h"

#include <errno.h>
#include <stddef.h>
#include <string.h>
#include <unistd.h>

namespace host {

namespace {

bool fill_address(const char* name, bool abstract, sockaddr_un* addr, socklen_t* len) {
    if (name == nullptr) {
        errno = EINVAL;
        return false;
    }
    size_t name_len = strlen(name);
    size_t offset = abstract ? 1 : 0;
    // A filesystem path also needs its terminating NUL.
    size_t needed = offset + name_len + (abstract ? 0 : 1);
    if (needed > sizeof(addr->sun_path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    memset(addr, 0, sizeof(*addr));
    addr->sun_family = AF_UNIX;
    memcpy(addr->sun_path + offset, name, name_len);
    *len = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + needed);
    return true;
}

}  // namespace

bool abstract_address(const char* name, sockaddr_un* addr, socklen_t* len) {
    return fill_address(name, true, addr, len);
}

bool filesystem_address(const char* path, sockaddr_un* addr, socklen_t* len) {
    return fill_address(path, false, addr, len);
}

int connect_local(const sockaddr_un& addr, socklen_t len, int type) {
    int fd = socket(AF_UNIX, type, 0);
    if (fd < 0) return -1;
    if (connect(fd, reinterpret_cast<const sockaddr*>(&addr), len) < 0) {
        int saved = errno;
        close(fd);
        errno = saved;
        return -1;
    }
    return fd;
}

int connect_stream(const sockaddr_un& addr, socklen_t len) {
    return connect_local(addr, len, SOCK_STREAM | SOCK_CLOEXEC);
}

}  // namespace host
