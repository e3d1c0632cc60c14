// What the dbg captures do that the end-to-end cases cannot reach: type words the command line
// never lets through, a header longer than its buffer, output lines longer than one read, and a
// close that fails. The log lines are read from the host log sink.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <host/log_datagram.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "debug/TarnDebug.h"
#include "host/emulator/AbstractSocket.h"
#include "host/emulator/LogSink.h"

namespace tarn {
namespace {

namespace fs = std::filesystem;

// Holds the log sink's name while it lives; another test or a running tarnmodem may hold it for
// a while (30 s at most are waited for).
class LogSink {
  public:
    LogSink() {
        for (int tries = 0; tries < 600 && fd_ < 0; ++tries) {
            fd_ = tarnmodem::bind_abstract_socket(kHostLogSinkName, SOCK_DGRAM);
            if (fd_ < 0) std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        int on = 1;
        if (fd_ >= 0) setsockopt(fd_, SOL_SOCKET, SO_PASSCRED, &on, sizeof(on));
    }
    ~LogSink() {
        if (fd_ >= 0) close(fd_);
    }
    bool bound() const { return fd_ >= 0; }

    // The texts of the lines this process logged so far, one after another. Other processes
    // (tests or fuzzers running beside this one) may log to the sink meanwhile: their lines are
    // dropped, and reading stops after 2 s even while they keep logging.
    std::string texts() {
        std::string all;
        pollfd p{fd_, POLLIN, 0};
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
        while (std::chrono::steady_clock::now() < deadline && poll(&p, 1, 100) == 1) {
            unsigned char buf[8192];
            alignas(cmsghdr) char control[CMSG_SPACE(sizeof(ucred))];
            iovec iov{buf, sizeof(buf)};
            msghdr msg{};
            msg.msg_iov = &iov;
            msg.msg_iovlen = 1;
            msg.msg_control = control;
            msg.msg_controllen = sizeof(control);
            ssize_t got = recvmsg(fd_, &msg, 0);
            if (got <= 0) break;
            cmsghdr* cred = CMSG_FIRSTHDR(&msg);
            if (cred != nullptr && reinterpret_cast<ucred*>(CMSG_DATA(cred))->pid == getpid()) {
                all += tarnmodem::decode_log_datagram(buf, static_cast<size_t>(got))["msg"];
            }
        }
        return all;
    }

  private:
    int fd_ = -1;
};

std::string read_file(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class TarnDebugTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = ::testing::TempDir() + "tarn_debug_test.XXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        root = pattern;
    }
    void TearDown() override { fs::remove_all(root); }

    // Runs the command through execute_shell_cmd into a fresh file and gives back the file.
    std::string captured(const std::string& cmd) {
        int fd = open((root / "capture.txt").c_str(), O_RDWR | O_CREAT | O_TRUNC, 0644);
        TarnDebug debug("strace", root.string());
        EXPECT_EQ(debug.execute_shell_cmd(cmd.c_str(), fd), 0);
        close(fd);
        return read_file(root / "capture.txt");
    }

    fs::path root;
};

TEST(TarnDebugFoldPid, FoldsEveryByteUpToTheLineEnd) {
    const struct {
        const char* line;
        int32_t pid;
    } cases[] = {
        {"123\n", 123}, {"12 34\n", 10434},  // the blank adds ' ' - '0' = -16 between the two pids
        {"", 0},        {"42\r\n", 42},
        {"5\n6\n", 5},  {"99999999999\n", 1215752191},  // wraps as 32-bit arithmetic does
        {"\xff", 207},                                  // bytes count as unsigned
    };
    for (const auto& c : cases) EXPECT_EQ(fold_pid(c.line), c.pid) << c.line;
}

// The type word picks its capture by its first letters. Here the capture directory cannot be
// made, so each capture stops at once and names itself in its log line.
TEST_F(TarnDebugTest, TypeWordSelectsTheCaptureByItsFirstLetters) {
    LogSink sink;
    if (!sink.bound()) GTEST_SKIP() << "the log sink's name stayed taken";
    const std::string made = "open_file: tarndebug director create fail\n";
    const std::string errno_text = " [2(No such file or directory)]\n";
    const struct {
        const char* type;
        std::string log;  // empty: no capture
    } cases[] = {
        {"stracex", made + "save_strace_info: open file fail to save debuggerd info" + errno_text},
        {"debuggerdx",
         made + "save_debuggerd_info: open file fail to save debuggerd info" + errno_text},
        {"fdinfo2", made + "save_fd_info: open file fail to save fd info" + errno_text},
        {"strac", ""},
        {"debugger", ""},
        {"Strace", ""},
        {"", ""},
    };
    for (const auto& c : cases) {
        TarnDebug debug(c.type, (root / "missing" / "tarndebug").string());
        errno = 0;
        EXPECT_EQ(debug.do_request(), -1) << c.type;
        EXPECT_EQ(sink.texts(), c.log) << c.type;
        EXPECT_FALSE(fs::exists(root / "missing"));
    }
}

// The header is "<command>\n\n" cut to 63 bytes; the command itself always runs whole.
TEST_F(TarnDebugTest, HeaderIsCutToItsBuffer) {
    for (size_t length : {61u, 62u, 63u, 120u}) {
        std::string cmd = "echo " + std::string(length - 5, 'x');
        std::string header = (cmd + "\n\n").substr(0, 63);
        EXPECT_EQ(captured(cmd), header + std::string(length - 5, 'x') + "\n") << length;
    }
}

// At most 1001 reads of 1023 bytes each: the 3001-byte line takes three, leaving 998.
TEST_F(TarnDebugTest, OutputIsReadInLimitedPieces) {
    const std::string cmd = "printf '%03000d\\n' 0; seq 1 1200";
    std::string expected = cmd + "\n\n" + std::string(3000, '0') + "\n";
    for (int n = 1; n <= 998; ++n) expected += std::to_string(n) + "\n";
    EXPECT_EQ(captured(cmd), expected);
}

// No capture file until one is opened; with standard input closed the capture file takes
// descriptor 0, and the capture still goes on.
TEST_F(TarnDebugTest, CaptureFileMayTakeDescriptorZero) {
    TarnDebug debug("fdinfo", root.string());
    EXPECT_EQ(debug.output_fd(), -1);
    // A first capture opens the log's socket as well, which would otherwise take descriptor 0.
    ASSERT_EQ(debug.open_file("fdinfo"), 0);
    int first = debug.output_fd();
    debug.close_file(first);
    int saved = dup(0);
    ASSERT_EQ(close(0), 0);
    int opened = debug.open_file("fdinfo");
    int fd = debug.output_fd();
    dup2(saved, 0);
    close(saved);
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(fd, 0);
}

TEST_F(TarnDebugTest, CloseFileLogsLostAndFailedCloses) {
    LogSink sink;
    if (!sink.bound()) GTEST_SKIP() << "the log sink's name stayed taken";
    TarnDebug debug("fdinfo", root.string());
    int fd = 0;  // standard input is never the capture file: left open
    errno = 0;
    EXPECT_EQ(debug.close_file(fd), -1);
    EXPECT_EQ(fd, -1);
    EXPECT_NE(fcntl(0, F_GETFD), -1);
    EXPECT_EQ(sink.texts(), "close_file: m_fd lost, please check [0(Success)]\n");

    int open_fd = open(root.c_str(), O_RDONLY);
    fd = open_fd;
    EXPECT_EQ(debug.close_file(fd), 0);
    EXPECT_EQ(fd, -1);
    EXPECT_EQ(fcntl(open_fd, F_GETFD), -1);

    // Closing it again fails, is logged and keeps the number.
    fd = open_fd;
    EXPECT_EQ(debug.close_file(fd), -1);
    EXPECT_EQ(fd, open_fd);
    EXPECT_EQ(sink.texts(), "close_file: close file fail [9(Bad file descriptor)]\n");
}

}  // namespace
}  // namespace tarn
