// The server socket's response protocol: the decimal parser, the response splitter, the code
// texts, and the set/query answer handling against canned replies over a real socket pair.
#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "server/VexilServerExchange.h"
#include "server/VexilserverRequest.h"

namespace {

using Code = VexilserverRequest::ResponseErrorCode;

const uint8_t* bytes(const std::string& s) {
    return reinterpret_cast<const uint8_t*>(s.data());
}

TEST(VexilserverParseNumber, Table) {
    struct Case {
        std::string text;
        int rc;
        uint32_t value;
        size_t consumed;
    };
    const std::vector<Case> cases = {
        {"0", 0, 0, 1},
        {"7", 0, 7, 1},
        {"12 tail", 0, 12, 2},
        {"000042", 0, 42, 6},
        {"4294967295", 0, 4294967295u, 10},
        {"4294967295x", 0, 4294967295u, 10},
        {"42949672950", -1, 0, 0},
        {"42949672951", -1, 0, 0},
        {"4294967296", 0, 0, 10},
        {"4294967307", 0, 11, 10},
        {"99999999999", 0, 1215752191u, 11},
        {"", -1, 0, 0},
        {"x1", -1, 0, 0},
        {" 1", -1, 0, 0},
        {"-1", -1, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("text \"" + c.text + "\"");
        uint32_t value = 0xdeadbeef;
        size_t consumed = 99;
        ASSERT_EQ(parse_number(bytes(c.text), c.text.size(), value, consumed), c.rc);
        if (c.rc == 0) {
            EXPECT_EQ(value, c.value);
            EXPECT_EQ(consumed, c.consumed);
        }
    }
}

TEST(VexilserverParseNumber, RefusalLeavesOutputsAloneWhenNoDigit) {
    uint32_t value = 5;
    size_t consumed = 6;
    EXPECT_EQ(parse_number(bytes("a"), 1, value, consumed), -1);
    EXPECT_EQ(parse_number(bytes(""), 0, value, consumed), -1);
    EXPECT_EQ(value, 5u);
    EXPECT_EQ(consumed, 6u);
}

TEST(VexilserverParseNumber, StopsAtGivenLength) {
    uint32_t value = 0;
    size_t consumed = 0;
    ASSERT_EQ(parse_number(bytes("12345"), 2, value, consumed), 0);
    EXPECT_EQ(value, 12u);
    EXPECT_EQ(consumed, 2u);
}

TEST(VexilserverParseResult, Table) {
    struct Case {
        std::string response;
        int rc;
        int code;
        size_t rest_offset;
    };
    const std::vector<Case> cases = {
        {"OK", 0, 0, 2},         {"OK ON", 0, 0, 2},
        {"OKAY", 0, 0, 2},       {"ERROR 0", 0, 0, 7},
        {"ERROR 0 ON", 0, 0, 7}, {"ERROR 1", 0, 1, 7},
        {"ERROR 11", 0, 11, 8},  {"ERROR 011x", 0, 11, 9},
        {"ERROR 12", -1, 0, 0},  {"ERROR 4294967296", 0, 0, 16},
        {"ERROR x", -1, 0, 0},   {"ERROR ", -1, 0, 0},
        {"ERROR", -1, 0, 0},     {"ERROR1", -1, 0, 0},
        {"ERRORS 1", -1, 0, 0},  {"ok", -1, 0, 0},
        {"error 1", -1, 0, 0},   {"O", -1, 0, 0},
        {"", -1, 0, 0},          {" OK", -1, 0, 0},
    };
    VexilserverRequest conn(-1);
    for (const Case& c : cases) {
        SCOPED_TRACE("response \"" + c.response + "\"");
        Code code = VexilserverRequest::RESP_MAX;
        const uint8_t* rest = nullptr;
        ASSERT_EQ(conn.parse_result(bytes(c.response), c.response.size(), code, rest), c.rc);
        if (c.rc == 0) {
            EXPECT_EQ(code, c.code);
            EXPECT_EQ(rest, bytes(c.response) + c.rest_offset);
        }
    }
}

TEST(VexilserverParseResult, OnlyLooksAtGivenLength) {
    VexilserverRequest conn(-1);
    Code code = VexilserverRequest::RESP_MAX;
    const uint8_t* rest = nullptr;
    EXPECT_EQ(conn.parse_result(bytes("OK"), 1, code, rest), -1);
    EXPECT_EQ(conn.parse_result(bytes("ERROR 1"), 6, code, rest), -1);
}

TEST(VexilserverRespCodeToString, AllCodes) {
    const std::vector<std::string> texts = {
        "Unknown error",           "unknown request",           "invalid parameter",
        "execution failure",       "transaction going on",      "log is not saved to SD",
        "sleep log not supported", "RingBuf log not supported", "the CP has asserted",
        "unknown CP or subsystem", "no AG-DSP in the system",   "Unknown error",
        "Unknown error",
    };
    for (size_t code = 0; code < texts.size(); ++code) {
        SCOPED_TRACE("code " + std::to_string(code));
        EXPECT_EQ(VexilserverRequest::resp_code_to_string(static_cast<Code>(code)), texts[code]);
    }
}

// A connected socket pair: the client end belongs to the request under test, the test plays
// the server on the other end.
class CannedServer {
  public:
    CannedServer() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, fds_), 0); }
    ~CannedServer() { close_server(); }

    int client_fd() const { return fds_[0]; }
    int server_fd() const { return fds_[1]; }
    void reply(const std::string& bytes) {
        ASSERT_EQ(write(fds_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void close_server() {
        if (fds_[1] >= 0) {
            close(fds_[1]);
            fds_[1] = -1;
        }
    }

  private:
    int fds_[2] = {-1, -1};
};

struct Outcome {
    int rc;
    std::string out;
    std::string err;
};

Outcome run_captured(const std::function<int()>& run) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    int rc = run();
    std::string out = testing::internal::GetCapturedStdout();
    std::string err = testing::internal::GetCapturedStderr();
    return {rc, out, err};
}

// Replies that end the server's side at once; the time-out does not matter for them.
constexpr int kShortTimeoutMs = 2000;

struct ReplyCase {
    std::string reply;
    int rc;
    std::string out;
    std::string err;
};

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
        {"ERROR 11", -1, "", "Error: 11(Unknown error)\n"},
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
    for (const ReplyCase& c : cases) {
        SCOPED_TRACE("reply \"" + c.reply + "\"");
        CannedServer server;
        server.reply(c.reply);
        VexilserverRequest conn(server.client_fd());
        Outcome got = run_captured([&] { return conn.wait_simple_response(kShortTimeoutMs); });
        EXPECT_EQ(got.rc, c.rc);
        EXPECT_EQ(got.out, c.out);
        EXPECT_EQ(got.err, c.err);
    }
}

TEST(VexilserverWaitSimpleResponse, NoAnswerIsRequestError) {
    {
        SCOPED_TRACE("server closes without answering");
        CannedServer server;
        server.close_server();
        VexilserverRequest conn(server.client_fd());
        Outcome got = run_captured([&] { return conn.wait_simple_response(kShortTimeoutMs); });
        EXPECT_EQ(got.rc, -1);
        EXPECT_EQ(got.out, "");
        EXPECT_TRUE(testing::internal::RE::FullMatch(got.err, "Request error: [0-9]+\n")) << got.err;
    }
    {
        SCOPED_TRACE("server stays silent past the time-out");
        CannedServer server;
        VexilserverRequest conn(server.client_fd());
        Outcome got = run_captured([&] { return conn.wait_simple_response(50); });
        EXPECT_EQ(got.rc, -1);
        EXPECT_TRUE(testing::internal::RE::FullMatch(got.err, "Request error: [0-9]+\n")) << got.err;
    }
}

TEST(VexilserverWaitResponse, OneReadIntoGivenCapacity) {
    CannedServer server;
    server.reply("OK ON\n");
    VexilserverRequest conn(server.client_fd());
    char buf[4] = {};
    size_t len = sizeof(buf);
    ASSERT_EQ(conn.wait_response(buf, len, kShortTimeoutMs), 0);
    EXPECT_EQ(len, 4u);
    EXPECT_EQ(std::string(buf, len), "OK O");
    // The rest stays unread; a second read sees it, one trailing newline dropped.
    len = sizeof(buf);
    ASSERT_EQ(conn.wait_response(buf, len, kShortTimeoutMs), 0);
    EXPECT_EQ(std::string(buf, len), "N");
}

TEST(VexilserverRequestLifetime, DestructorClosesDescriptor) {
    CannedServer server;
    int fd = server.client_fd();
    { VexilserverRequest conn(fd); }
    EXPECT_EQ(fcntl(fd, F_GETFD), -1);
    EXPECT_EQ(errno, EBADF);
}

TEST(VexilserverSendReq, WritesExactlyTheLine) {
    CannedServer server;
    VexilserverRequest conn(server.client_fd());
    const std::string line = "GET_LOG_STATE\n";
    ASSERT_EQ(conn.send_req(line.data(), line.size()), 0);
    char buf[64] = {};
    ASSERT_EQ(read(server.server_fd(), buf, sizeof(buf)), static_cast<ssize_t>(line.size()));
    EXPECT_EQ(std::string(buf, line.size()), line);

    VexilserverRequest unconnected(-1);
    EXPECT_EQ(unconnected.send_req(line.data(), line.size()), -1);
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
    for (const ReplyCase& c : cases) {
        SCOPED_TRACE("reply \"" + c.reply + "\"");
        CannedServer server;
        server.reply(c.reply);
        VexilserverRequest conn(server.client_fd());
        Outcome got = run_captured(
            [&] { return tarn::parse_state_query_result(conn, accepted, std::size(accepted)); });
        EXPECT_EQ(got.rc, c.rc);
        EXPECT_EQ(got.out, c.out);
        EXPECT_EQ(got.err, c.err);
    }
}

TEST(VexilserverStateQuery, ClosedWithoutAnswerIsRequestError) {
    const tarn::StateWord accepted[] = {{"ON", "on"}};
    CannedServer server;
    server.close_server();
    VexilserverRequest conn(server.client_fd());
    Outcome got = run_captured(
        [&] { return tarn::parse_state_query_result(conn, accepted, std::size(accepted)); });
    EXPECT_EQ(got.rc, -1);
    EXPECT_EQ(got.out, "");
    EXPECT_TRUE(testing::internal::RE::FullMatch(got.err, "Request error: [0-9]+\n")) << got.err;
}

}  // namespace
