#include "host/emulator/AbstractSocket.h"

#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>

namespace tarnmodem {

int bind_abstract_socket(const std::string& name, int type) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    // The abstract name follows a leading NUL and is not terminated.
    if (name.size() + 1 > sizeof(addr.sun_path)) {
        errno = ENAMETOOLONG;
        return -1;
    }
    memcpy(addr.sun_path + 1, name.data(), name.size());
    socklen_t len = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());

    int fd = socket(AF_UNIX, type | SOCK_CLOEXEC, 0);
    if (fd < 0) return -1;
    if (bind(fd, reinterpret_cast<sockaddr*>(&addr), len) != 0 ||
        (type == SOCK_STREAM && listen(fd, 64) != 0)) {
        int saved = errno;
        close(fd);
        errno = saved;
        return -1;
    }
    return fd;
}

}  // namespace tarnmodem
