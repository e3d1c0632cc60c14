// The daemon's command socket: one request line in, one response line out, per connection.
#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <string>

#include "Journal.h"

namespace tarnmodem {

// What the state file may put in place of the normal answer to one request line.
struct ReplyOverride {
    enum class Kind { kBytes, kSilent, kClose };
    Kind kind = Kind::kBytes;
    std::string bytes;  // kBytes: sent as they are, instead of the normal answer
};

struct VexilServerConfig {
    bool up = true;
    std::map<std::string, ReplyOverride> replies;  // keyed by the request line with its "\n"
};

class VexilServer {
  public:
    // Gives the normal answer (with its "\n") to a request, the line without its "\n".
    using Answerer = std::function<std::string(const std::string& request)>;

    VexilServer(const VexilServerConfig& config, Journal& journal, Answerer answerer)
        : config_(config), journal_(journal), answerer_(std::move(answerer)) {}

    // Listens on the abstract stream socket and serves every client on its own thread.
    // False with errno set when the socket cannot be bound.
    bool start(const std::string& name);

  private:
    void accept_loop(int listener);
    void serve(int client);
    // Answers one received request; false when the connection is to be closed.
    bool respond(int client, const std::string& line, bool& silent);

    const VexilServerConfig& config_;
    Journal& journal_;
    Answerer answerer_;
    std::atomic<int> connections_{0};
};

}  // namespace tarnmodem
