#include "host/emulator/LogSink.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "host/emulator/AbstractSocket.h"

namespace tarnmodem {
namespace {

// The largest datagram a local socket carries by default is well below this.
constexpr size_t kMaxDatagram = 256 * 1024;
constexpr size_t kBatchBytes = 64 * 1024;

// The bytes from pos up to the next NUL or the end; pos moves past the NUL.
std::string take_field(const unsigned char* data, size_t len, size_t& pos) {
    size_t start = pos;
    while (pos < len && data[pos] != '\0') ++pos;
    std::string field(reinterpret_cast<const char*>(data) + start, pos - start);
    if (pos < len) ++pos;
    return field;
}

}  // namespace

Json decode_log_datagram(const unsigned char* data, size_t len) {
    if (len == 0) return nullptr;
    size_t pos = 1;
    std::string tag = take_field(data, len, pos);
    std::string msg = take_field(data, len, pos);
    return Json{{"prio", data[0]}, {"tag", std::move(tag)}, {"msg", std::move(msg)}};
}

Json decode_logd_datagram(const unsigned char* data, size_t len) {
    // android_log_header_t: uint8_t id, uint16_t tid, uint32_t tv_sec, uint32_t tv_nsec, packed.
    constexpr size_t kHeader = 11;
    if (len <= kHeader) return nullptr;
    Json line = decode_log_datagram(data + kHeader, len - kHeader);
    line["buffer"] = data[0];
    return line;
}

LogSink::~LogSink() {
    stop();
}

bool LogSink::start(const std::string& name) {
    return start_with(bind_abstract_socket(name, SOCK_DGRAM));
}

bool LogSink::start_at(const std::string& path) {
    return start_with(bind_socket_at(path, SOCK_DGRAM));
}

bool LogSink::start_with(int socket) {
    socket_ = socket;
    if (socket_ < 0) return false;
    buffer_.resize(kMaxDatagram);
    wake_ = eventfd(0, EFD_CLOEXEC);
    if (wake_ < 0) return false;
    thread_ = std::thread(&LogSink::receive_loop, this);
    return true;
}

void LogSink::stop() {
    if (thread_.joinable()) {
        uint64_t one = 1;
        if (write(wake_, &one, sizeof(one)) < 0) {
            // The loop still ends at its next datagram or error; nothing better to do here.
        }
        thread_.join();
    }
    if (socket_ >= 0) close(socket_);
    if (wake_ >= 0) close(wake_);
    socket_ = wake_ = -1;
}

void LogSink::receive_loop() {
    for (;;) {
        pollfd fds[2] = {{socket_, POLLIN, 0}, {wake_, POLLIN, 0}};
        if (poll(fds, 2, -1) < 0) {
            if (errno == EINTR) continue;
            return;
        }
        if (!drain()) return;
        if (fds[1].revents != 0) return;
    }
}

bool LogSink::drain() {
    // Lines are written in batches: one write per queue-full keeps the receiver ahead of bursts.
    std::string lines;
    for (;;) {
        ssize_t n = recv(socket_, buffer_.data(), buffer_.size(), MSG_DONTWAIT);
        if (n < 0) {
            out_.write_text(lines);
            return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
        }
        Json line = decode_(buffer_.data(), static_cast<size_t>(n));
        if (!line.is_null()) lines += to_json_line(line) + '\n';
        if (lines.size() >= kBatchBytes) {
            out_.write_text(lines);
            lines.clear();
        }
    }
}

}  // namespace tarnmodem
