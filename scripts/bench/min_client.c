/* The least a process can do to ask the daemon for its log state: connect to the "vexilserver"
 * socket, send "GET_LOG_STATE\n", read one reply and print it. The benchmark's lower bound for
 * `vexilctl getallvexilstate`.
 *
 * With --log-line it first sends the one log datagram that vexilctl sends for this command, to
 * the host log sink, so that the benchmark can tell the cost of that line from the tool's own. */
#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

static socklen_t abstract_address(const char* name, size_t len, struct sockaddr_un* addr) {
    memset(addr, 0, sizeof(*addr));
    addr->sun_family = AF_UNIX;
    memcpy(addr->sun_path + 1, name, len); /* abstract: leading NUL */
    return (socklen_t)(offsetof(struct sockaddr_un, sun_path) + 1 + len);
}

static void send_log_line(void) {
    static const char kSink[] = "vexil.hostlog";
    /* priority 6 (error), tag, NUL, text, NUL */
    static const char kLine[] = "\6VEXILCTL\0proc_get_all_vexil_state: proc_get_all_vexil_state.\n";
    struct sockaddr_un addr;
    socklen_t len = abstract_address(kSink, sizeof(kSink) - 1, &addr);
    int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0) return;
    sendto(fd, kLine, sizeof(kLine), MSG_DONTWAIT | MSG_NOSIGNAL, (const struct sockaddr*)&addr,
           len);
}

int main(int argc, char** argv) {
    static const char kName[] = "vexilserver";
    static const char kRequest[] = "GET_LOG_STATE\n";
    if (argc > 1 && strcmp(argv[1], "--log-line") == 0) send_log_line();

    struct sockaddr_un addr;
    socklen_t len = abstract_address(kName, sizeof(kName) - 1, &addr);
    int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0 || connect(fd, (const struct sockaddr*)&addr, len) != 0) return 1;
    if (write(fd, kRequest, sizeof(kRequest) - 1) != (ssize_t)(sizeof(kRequest) - 1)) return 1;
    char reply[256];
    ssize_t got = read(fd, reply, sizeof(reply));
    close(fd);
    if (got <= 0) return 1;
    return write(STDOUT_FILENO, reply, (size_t)got) == got ? 0 : 1;
}
