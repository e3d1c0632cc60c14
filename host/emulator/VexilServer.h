// The daemon's command socket: one request line in, one response line out, per connection.
#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "host/emulator/Journal.h"

namespace tarnmodem {

// Bytes sent after a pause, one write each.
struct ReplyPiece {
    int delay_ms = 0;
    std::string bytes;

    bool operator==(const ReplyPiece& other) const {
        return delay_ms == other.delay_ms && bytes == other.bytes;
    }
};

// What the state file may put in place of the normal answer to one request line.
struct ReplyOverride {
    enum class Kind { BYTES, SILENT, CLOSE };
    Kind kind = Kind::BYTES;
    std::vector<ReplyPiece> pieces;  // BYTES: sent in this order, instead of the normal answer
};

using ReplyTable = std::map<std::string, ReplyOverride>;  // keyed by the request line with its "\n"

struct VexilServerConfig {
    bool up = true;
    ReplyTable replies;
};

class VexilServer {
  public:
    // Gives the normal answer (with its "\n") to a request, the line without its "\n".
    using Answerer = std::function<std::string(const std::string& request)>;

    VexilServer(ReplyTable replies, Journal& journal, Answerer answerer)
        : replies_(std::make_shared<const ReplyTable>(std::move(replies))),
          journal_(journal),
          answerer_(std::move(answerer)) {}

    // Listens on the abstract stream socket and serves every client on its own thread.
    // False with errno set when the socket cannot be bound.
    bool start(const std::string& name);

    // Puts new replies in place of the old ones; a reply being sent goes on to its end.
    void replace_replies(ReplyTable replies);

  private:
    void accept_loop(int listener);
    void serve(int client);
    // Answers one received request; false when the connection is to be closed.
    bool respond(int client, const std::string& line, bool& silent);

    // The override for a line, if any.
    std::optional<ReplyOverride> find_reply(const std::string& line);

    std::mutex replies_mutex_;
    std::shared_ptr<const ReplyTable> replies_;
    Journal& journal_;
    Answerer answerer_;
    std::atomic<int> connections_{0};
};

}  // namespace tarnmodem
