#include "host/emulator/AbstractSocket.h"

#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>

namespace tarnmodem {

namespace {

// Binds a new socket to addr/len and listens when it is a stream socket.
int bind_local(const sockaddr_un& addr, socklen_t len, int type) {
    int fd = socket(AF_UNIX, type | SOCK_CLOEXEC, 0);
    if (fd < 0) return -1;
    if (bind(fd, reinterpret_cast<const sockaddr*>(&addr), len) != 0 ||
        (type == SOCK_STREAM && listen(fd, 64) != 0)) {
        int saved = errno;
        close(fd);
        errno = saved;
        return -1;
    }
    return fd;
}

}  // namespace

int bind_abstract_socket(const std::string& name, int type) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    // The abstract name follows a leading NUL and is not terminated.
    if (name.size() + 1 > sizeof(addr.sun_path)) {
        errno = ENAMETOOLONG;
        return -1;
    }
    memcpy(addr.sun_path + 1, name.data(), name.size());
    return bind_local(
        addr, static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size()), type);
}

int bind_socket_at(const std::string& path, int type) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    if (path.empty() || path.size() + 1 > sizeof(addr.sun_path)) {
        errno = path.empty() ? ENOENT : ENAMETOOLONG;
        return -1;
    }
    memcpy(addr.sun_path, path.data(), path.size());
    unlink(path.c_str());
    return bind_local(addr, sizeof(addr), type);
}

}  // namespace tarnmodem
