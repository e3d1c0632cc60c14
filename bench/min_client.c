/* The least a process can do to ask the daemon for its log state: connect to the "vexilserver"
 * socket, send "GET_LOG_STATE\n", read one reply and print it. The benchmark's lower bound for
 * `vexilctl getallvexilstate`. */
#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

int main(void) {
    static const char kName[] = "vexilserver";
    static const char kRequest[] = "GET_LOG_STATE\n";
    struct sockaddr_un addr;
    memset(&addr, 0, sizeof(addr));
    addr.sun_family = AF_UNIX;
    memcpy(addr.sun_path + 1, kName, sizeof(kName) - 1); /* abstract: leading NUL */
    socklen_t len = (socklen_t)(offsetof(struct sockaddr_un, sun_path) + 1 + sizeof(kName) - 1);

    int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0 || connect(fd, (const struct sockaddr*)&addr, len) != 0) return 1;
    if (write(fd, kRequest, sizeof(kRequest) - 1) != (ssize_t)(sizeof(kRequest) - 1)) return 1;
    char reply[256];
    ssize_t got = read(fd, reply, sizeof(reply));
    close(fd);
    if (got <= 0) return 1;
    return write(STDOUT_FILENO, reply, (size_t)got) == got ? 0 : 1;
}
