// __android_log_* on the host: each line goes as one datagram to the host log sink. Nothing is
// ever written to stdout or stderr; lines are dropped silently when nobody listens.
#include <android/log.h>
#include <errno.h>
#include <host/log_datagram.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

#include "host/platform/src/local_socket.h"

namespace {

// Formatted text is cut at this size, as the device's logging library does.
constexpr size_t kLogBufferSize = 1024;

// The sink's address and one socket for the whole process, both set up on the first line.
struct Sink {
    sockaddr_un addr;
    socklen_t len = 0;
    int fd = -1;
};

const Sink& sink() {
    static const Sink s = [] {
        Sink made;
        if (host::abstract_address(kHostLogSinkName, &made.addr, &made.len)) {
            made.fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        }
        return made;
    }();
    return s;
}

}  // namespace

namespace {

int write_line(int prio, const char* tag, const char* text) {
    if (tag == nullptr) tag = "";
    if (text == nullptr) text = "";
    const Sink& s = sink();
    if (s.fd < 0) return -EBADF;

    char payload[kHostLogMaxPayload];
    size_t tag_len = strnlen(tag, kHostLogMaxPayload - 3);
    size_t text_len = strnlen(text, kHostLogMaxPayload - 3 - tag_len);
    payload[0] = static_cast<char>(prio);
    memcpy(payload + 1, tag, tag_len);
    payload[1 + tag_len] = '\0';
    memcpy(payload + 2 + tag_len, text, text_len);
    payload[2 + tag_len + text_len] = '\0';
    size_t size = 3 + tag_len + text_len;

    ssize_t sent = sendto(s.fd, payload, size, MSG_DONTWAIT | MSG_NOSIGNAL,
                          reinterpret_cast<const sockaddr*>(&s.addr), s.len);
    return sent < 0 ? -errno : static_cast<int>(sent);
}

}  // namespace

// Logging never changes errno: callers often log a failure and then report errno themselves.
extern "C" int __android_log_print(int prio, const char* tag, const char* fmt, ...) {
    int saved_errno = errno;
    char buf[kLogBufferSize];
    if (fmt == nullptr) fmt = "";
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(buf, sizeof(buf), fmt, ap);
    va_end(ap);
    int rc = write_line(prio, tag, buf);
    errno = saved_errno;
    return rc;
}
