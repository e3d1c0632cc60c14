// The server socket's answers, canned over a socket pair: what a set and a state query make of
// each reply (the decimal parser, the response splitter and the code texts are reached through
// them). A server that closes or never answers is met end to end.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "server/VexilServerQueryStateRequests.h"
#include "server/VexilserverRequest.h"

namespace {

// Replies that end the server's side at once; the time-out does not matter for them.
constexpr int kShortTimeoutMs = 2000;

struct ReplyCase {
    std::string reply;
    int rc;
    std::string out;
    std::string err;
};

// Each case's reply canned for a fresh request, over a socket pair whose other end plays the
// server, and what read(request) returns and prints. The request closes its own end.
void expect_replies(const std::vector<ReplyCase>& cases,
                    const std::function<int(VexilserverRequest&)>& read) {
    for (const ReplyCase& c : cases) {
        SCOPED_TRACE("reply \"" + c.reply + "\"");
        int fds[2];
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, fds), 0);
        ASSERT_EQ(write(fds[1], c.reply.data(), c.reply.size()), ssize_t(c.reply.size()));
        VexilserverRequest conn(fds[0]);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(read(conn), c.rc);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), c.out);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), c.err);
        close(fds[1]);
    }
}

// One write of the whole line: 0 once it went out, -1 (and no SIGPIPE) when the server hung up.
TEST(VexilserverSendReq, WholeLineOrFailure) {
    for (const bool server_open : {true, false}) {
        int fds[2];
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, fds), 0);
        if (!server_open) close(fds[1]);
        VexilserverRequest conn(fds[0]);
        EXPECT_EQ(conn.send_req("GET_LOG_STATE\n", 14), server_open ? 0 : -1);
        if (!server_open) continue;
        char line[32];
        EXPECT_EQ(read(fds[1], line, sizeof(line)), 14);
        close(fds[1]);
    }
}

// A tool started with standard streams closed: the connection never takes descriptor 0, 1 or 2,
// where the tool's own complaints on stderr would reach the server as request lines.
TEST(VexilserverPrepareConn, ConnectionStaysAboveStandardStreams) {
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    const char name[] = "vexilserver";
    memcpy(addr.sun_path + 1, name, sizeof(name) - 1);
    const auto len = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + sizeof(name));
    if (bind(listener, reinterpret_cast<sockaddr*>(&addr), len) != 0 || listen(listener, 8) != 0) {
        close(listener);
        GTEST_SKIP() << "the vexilserver name is taken here";
    }
    // Which of the three are closed: bit n for descriptor n.
    for (const unsigned closed : {1u, 4u, 5u, 7u}) {
        int saved[3];
        for (int fd = 0; fd < 3; ++fd) saved[fd] = fcntl(fd, F_DUPFD_CLOEXEC, 10);
        for (int fd = 0; fd < 3; ++fd) {
            if ((closed & (1u << fd)) != 0) close(fd);
        }
        unsigned taken = 0;
        {
            VexilserverRequest conn(-1);
            const int rc = conn.prepare_conn();
            for (int fd = 0; fd < 3; ++fd) {
                if ((closed & (1u << fd)) != 0 && fcntl(fd, F_GETFD) != -1) taken |= 1u << fd;
            }
            for (int fd = 0; fd < 3; ++fd) {
                dup2(saved[fd], fd);
                close(saved[fd]);
            }
            EXPECT_EQ(rc, 0) << closed;
        }
        EXPECT_EQ(taken, 0u) << "closed " << closed;
    }
    close(listener);
}

TEST(VexilserverWaitSimpleResponse, CannedReplies) {
    const std::vector<ReplyCase> cases = {
        {"OK", 0, "set success\n", ""},
        {"OK\n", 0, "set success\n", ""},
        {"OKAY, done", 0, "set success\n", ""},
        {"ERROR 0", 0, "set success\n", ""},
        {"ERROR 0\n", 0, "set success\n", ""},
        {"ERROR 4294967296", 0, "set success\n", ""},
        {"ERROR 1\n", -1, "", "Error: 1(unknown request)\n"},
        {"ERROR 9 extra", -1, "", "Error: 9(unknown CP or subsystem)\n"},
        {"ERROR 5", -1, "", "Error: 5(log is not saved to SD)\n"},
        {"ERROR 6", -1, "", "Error: 6(sleep log not supported)\n"},
        {"ERROR 7", -1, "", "Error: 7(RingBuf log not supported)\n"},
        {"ERROR 8", -1, "", "Error: 8(the CP has asserted)\n"},
        {"ERROR 011x", -1, "", "Error: 11(Unknown error)\n"},
        {"ERROR 42949672950", -1, "", "Invalid response: ERROR 42949672950\n"},
        {"ERROR 000000010", -1, "", "Error: 10(no AG-DSP in the system)\n"},
        {"ERROR 4294967307", -1, "", "Error: 11(Unknown error)\n"},
        {"ERROR 12", -1, "", "Invalid response: ERROR 12\n"},
        {"ERROR x", -1, "", "Invalid response: ERROR x\n"},
        {"ERROR1", -1, "", "Invalid response: ERROR1\n"},
        {"ERROR", -1, "", "Invalid response: ERROR\n"},
        {"ok\n", -1, "", "Invalid response: ok\n"},
        {"error 1", -1, "", "Invalid response: error 1\n"},
        {"O", -1, "", "Invalid response: O\n"},
        {"\n", -1, "", "Invalid response: \n"},
        {"OK\n\n", 0, "set success\n", ""},
        {"N\n\n", -1, "", "Invalid response: N\n\n"},
        {std::string(40, 'X'), -1, "", "Invalid response: " + std::string(32, 'X') + "\n"},
        {std::string(31, ' ') + "OK", -1, "", "Invalid response: " + std::string(31, ' ') + "O\n"},
    };
    expect_replies(
        cases, [](VexilserverRequest& conn) { return conn.wait_simple_response(kShortTimeoutMs); });
}

TEST(VexilserverStateQuery, CannedReplies) {
    const tarn::StateWord accepted[] = {{"ON", "on"}, {"OFF", "off"}};
    const std::vector<ReplyCase> cases = {
        {"OK ON", 0, "on\n", ""},
        {"OK ON\n", 0, "on\n", ""},
        {"OK OFF\n", 0, "off\n", ""},
        {"ERROR 0 OFF", 0, "off\n", ""},
        {"OK EVENT\n", -1, "", "state query return: EVENT error\n"},
        {"OK ONLINE", -1, "", "state query return: ONLINE error\n"},
        {"OK on", -1, "", "state query return: on error\n"},
        {"OK  ON", -1, "", "state query return:  ON error\n"},
        {"OK ON\n\n", -1, "", "state query return: ON\n error\n"},
        {"OK ON" + std::string(30, '.'), -1, "",
         "state query return: ON" + std::string(27, '.') + " error\n"},
        {"OK", -1, "", "Invalid state response: OK\n"},
        {"OK \n", -1, "", "Invalid state response: OK \n"},
        {"OK O", -1, "", "Invalid state response: OK O\n"},
        {"OKON", -1, "", "Invalid state response: OKON\n"},
        {"ERROR 0", -1, "", "Invalid state response: ERROR 0\n"},
        {"ERROR 2", -1, "", "Error: 2(invalid parameter)\n"},
        {"ERROR 11 ON", -1, "", "Error: 11(Unknown error)\n"},
        {"ERROR 12 ON", -1, "", "Invalid response: ERROR 12 ON\n"},
        {"ON", -1, "", "Invalid response: ON\n"},
        {"O", -1, "", "Invalid response: O\n"},
    };
    expect_replies(cases, [&](VexilserverRequest& conn) {
        return tarn::parse_state_query_result(conn, accepted, std::size(accepted));
    });
}

}  // namespace
