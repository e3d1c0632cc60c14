// Receiver of the tool's Android log lines: one datagram per line on the host log sink.
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

class LogSink {
  public:
    explicit LogSink(JsonLineFile& out) : out_(out) {}
    ~LogSink();
    LogSink(const LogSink&) = delete;
    LogSink& operator=(const LogSink&) = delete;

    // Binds the datagram socket and starts receiving; false with errno set on failure.
    bool start(const std::string& name);
    // Records every datagram already queued, then stops receiving.
    void stop();

  private:
    void receive_loop();
    // Records queued datagrams until none is left; false once the socket failed.
    bool drain();

    JsonLineFile& out_;
    std::vector<unsigned char> buffer_;
    int socket_ = -1;
    int wake_ = -1;
    std::thread thread_;
};

}  // namespace tarnmodem
