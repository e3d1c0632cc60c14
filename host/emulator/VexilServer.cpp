#include "host/emulator/VexilServer.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "host/emulator/AbstractSocket.h"

namespace tarnmodem {
namespace {

// A request is a few words; anything longer is refused.
constexpr size_t kMaxLine = 1024;
// Beyond this many open connections new ones are closed at once.
constexpr int kMaxConnections = 256;
// A client that says nothing for this long is dropped, unless it waits for a silent answer.
constexpr int kIdleSeconds = 60;

const char kUnknownRequest[] = "ERROR 1\n";

void send_all(int fd, const std::string& bytes) {
    size_t sent = 0;
    while (sent < bytes.size()) {
        ssize_t n = send(fd, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return;
        sent += static_cast<size_t>(n);
    }
}

void set_receive_timeout(int fd, int seconds) {
    timeval tv{seconds, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof(tv));
}

}  // namespace

bool VexilServer::start(const std::string& name) {
    int listener = bind_abstract_socket(name, SOCK_STREAM);
    if (listener < 0) return false;
    std::thread(&VexilServer::accept_loop, this, listener).detach();
    return true;
}

void VexilServer::replace_replies(ReplyTable replies) {
    auto table = std::make_shared<const ReplyTable>(std::move(replies));
    std::lock_guard<std::mutex> lock(replies_mutex_);
    replies_ = std::move(table);
}

std::optional<ReplyOverride> VexilServer::find_reply(const std::string& line) {
    std::shared_ptr<const ReplyTable> table;
    {
        std::lock_guard<std::mutex> lock(replies_mutex_);
        table = replies_;
    }
    auto it = table->find(line);
    if (it == table->end()) return std::nullopt;
    return it->second;
}

void VexilServer::accept_loop(int listener) {
    for (;;) {
        int client = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) {
            if (errno == EINTR || errno == ECONNABORTED) continue;
            // Out of descriptors or memory: give the system a moment and go on serving.
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            continue;
        }
        if (connections_.fetch_add(1) >= kMaxConnections) {
            connections_.fetch_sub(1);
            close(client);
            continue;
        }
        std::thread([this, client] {
            serve(client);
            close(client);
            connections_.fetch_sub(1);
        }).detach();
    }
}

void VexilServer::serve(int client) {
    set_receive_timeout(client, kIdleSeconds);
    std::string pending;
    bool silent = false;
    char chunk[512];
    for (;;) {
        size_t end = pending.find('\n');
        if (end != std::string::npos) {
            std::string line = pending.substr(0, end + 1);
            pending.erase(0, end + 1);
            if (!respond(client, line, silent)) return;
            continue;
        }
        if (pending.size() >= kMaxLine) {
            journal_.vexilserver_request(pending.substr(0, kMaxLine));
            send_all(client, kUnknownRequest);
            return;
        }
        ssize_t n = recv(client, chunk, sizeof(chunk), 0);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            // The client left or went quiet. A truncated last line is still answered.
            if (n == 0 && !pending.empty() && !silent) respond(client, pending, silent);
            return;
        }
        pending.append(chunk, static_cast<size_t>(n));
    }
}

bool VexilServer::respond(int client, const std::string& line, bool& silent) {
    journal_.vexilserver_request(line);
    if (silent) return true;  // a client that waits in vain gets nothing more either
    std::optional<ReplyOverride> reply = find_reply(line);
    if (!reply) {
        std::string request = line;
        if (!request.empty() && request.back() == '\n') request.pop_back();
        send_all(client, answerer_(request));
        return true;
    }
    switch (reply->kind) {
        case ReplyOverride::Kind::BYTES:
            for (const ReplyPiece& piece : reply->pieces) {
                std::this_thread::sleep_for(std::chrono::milliseconds(piece.delay_ms));
                send_all(client, piece.bytes);
            }
            return true;
        case ReplyOverride::Kind::SILENT:
            silent = true;
            set_receive_timeout(client, 0);  // wait for the client to give up, however long
            return true;
        case ReplyOverride::Kind::CLOSE:
            return false;
    }
    return false;
}

}  // namespace tarnmodem
