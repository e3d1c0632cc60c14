// __android_log_*: one datagram per line to the host log sink; never stdout or stderr.
#include <android/log.h>
#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <host/log_sink.h>
#include <poll.h>
#include <stddef.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <string>
#include <thread>

namespace {

// Binds the sink's name for the test. Other tests (an emulator, say) may hold it for a while.
class SinkListener {
  public:
    SinkListener() {
        sockaddr_un addr{};
        addr.sun_family = AF_UNIX;
        memcpy(addr.sun_path + 1, kHostLogSinkName, strlen(kHostLogSinkName));
        socklen_t len = offsetof(sockaddr_un, sun_path) + 1 + strlen(kHostLogSinkName);
        auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (std::chrono::steady_clock::now() < deadline) {
            fd_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
            if (bind(fd_, reinterpret_cast<sockaddr*>(&addr), len) == 0) return;
            close(fd_);
            fd_ = -1;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }
    ~SinkListener() {
        if (fd_ >= 0) close(fd_);
    }
    bool bound() const { return fd_ >= 0; }

    // The next datagram, or "" after a second of silence.
    std::string next() {
        pollfd p{fd_, POLLIN, 0};
        if (poll(&p, 1, 1000) != 1) return "";
        char buf[8192];
        ssize_t got = recv(fd_, buf, sizeof(buf), 0);
        return got > 0 ? std::string(buf, static_cast<size_t>(got)) : "";
    }

  private:
    int fd_ = -1;
};

std::string payload(char prio, const std::string& tag, const std::string& text) {
    return std::string(1, prio) + tag + '\0' + text + '\0';
}

TEST(HostLog, EachLineIsOneDatagramToTheSink) {
    SinkListener sink;
    if (!sink.bound()) GTEST_SKIP() << "the log sink name stayed taken";

    errno = EACCES;
    __android_log_print(ANDROID_LOG_ERROR, "VEXILCTL", "%s: getService fail [%d(%s)]\n", "start",
                        111, "Connection refused");
    EXPECT_EQ(errno, EACCES) << "logging leaves errno alone";
    EXPECT_EQ(sink.next(),
              payload(6, "VEXILCTL", "start: getService fail [111(Connection refused)]\n"));

    __android_log_write(ANDROID_LOG_INFO, "T", "plain % text");
    EXPECT_EQ(sink.next(), payload(4, "T", "plain % text"));

    __android_log_write(ANDROID_LOG_WARN, nullptr, nullptr);
    EXPECT_EQ(sink.next(), payload(5, "", ""));

    // Formatted text is cut at the device's 1023 characters.
    std::string long_text(5000, 'y');
    __android_log_print(ANDROID_LOG_ERROR, "VEXILCTL", "%s", long_text.c_str());
    EXPECT_EQ(sink.next(), payload(6, "VEXILCTL", long_text.substr(0, 1023)));

    // A written line is cut so that the payload stays within its bound.
    __android_log_write(ANDROID_LOG_ERROR, "VEXILCTL", long_text.c_str());
    std::string line = sink.next();
    EXPECT_EQ(line.size(), kHostLogMaxPayload);
    EXPECT_EQ(line.back(), '\0');
}

// Redirects a descriptor into a pipe for the lifetime of the object.
class Capture {
  public:
    explicit Capture(int target) : target_(target), saved_(dup(target)) {
        EXPECT_EQ(pipe2(pipe_, O_CLOEXEC | O_NONBLOCK), 0);
        dup2(pipe_[1], target_);
    }
    ~Capture() {
        dup2(saved_, target_);
        close(saved_);
        close(pipe_[0]);
        close(pipe_[1]);
    }
    std::string taken() {
        char buf[256];
        ssize_t got = read(pipe_[0], buf, sizeof(buf));
        return got > 0 ? std::string(buf, static_cast<size_t>(got)) : "";
    }

  private:
    int target_;
    int saved_;
    int pipe_[2];
};

TEST(HostLog, NothingReachesStdoutOrStderrWithOrWithoutAListener) {
    Capture out(STDOUT_FILENO);
    Capture err(STDERR_FILENO);
    for (int i = 0; i < 3; ++i) {
        __android_log_print(ANDROID_LOG_ERROR, "VEXILCTL", "%s: line %d\n", "test", i);
        __android_log_write(ANDROID_LOG_FATAL, "VEXILCTL", "fatal words");
    }
    EXPECT_EQ(out.taken(), "");
    EXPECT_EQ(err.taken(), "");
}

}  // namespace
