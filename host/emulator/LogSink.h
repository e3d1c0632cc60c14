// Receiver of the tool's Android log lines: one datagram per line, on the host log sink (the host
// build's liblog) or on a socket where a device's liblog writes (logd's /dev/socket/logdw).
#pragma once

#include <cstddef>
#include <string>
#include <thread>
#include <vector>

#include "host/emulator/JsonLines.h"

namespace tarnmodem {

// {"prio": n, "tag": "...", "msg": "..."} for one datagram: 1 byte priority, the tag and the
// text, each ended by a NUL. A missing NUL ends the field at the end of the datagram; an empty
// datagram gives null.
Json decode_log_datagram(const unsigned char* data, size_t len);

// The same for one datagram of logd's wire format, as a device's liblog writes it: a header of
// 11 bytes (the log buffer's id, the thread id, seconds and nanoseconds), then the payload above.
// {"buffer": id, "prio": n, "tag": "...", "msg": "..."}; null when the datagram holds no more
// than the header (logd drops those).
Json decode_logd_datagram(const unsigned char* data, size_t len);

class LogSink {
  public:
    using Decoder = Json (*)(const unsigned char* data, size_t len);
    explicit LogSink(JsonLineFile& out, Decoder decode = decode_log_datagram)
        : out_(out), decode_(decode) {}
    ~LogSink();
    LogSink(const LogSink&) = delete;
    LogSink& operator=(const LogSink&) = delete;

    // Binds the datagram socket of the abstract name, or at the filesystem path (replacing what
    // is there), and starts receiving; false with errno set on failure.
    bool start(const std::string& name);
    bool start_at(const std::string& path);
    // Records every datagram already queued, then stops receiving.
    void stop();

  private:
    bool start_with(int socket);
    void receive_loop();
    // Records queued datagrams until none is left; false once the socket failed.
    bool drain();

    JsonLineFile& out_;
    Decoder decode_;
    std::vector<unsigned char> buffer_;
    int socket_ = -1;
    int wake_ = -1;
    std::thread thread_;
};

}  // namespace tarnmodem
