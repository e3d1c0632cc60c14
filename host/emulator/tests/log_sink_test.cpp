// The log sink as a device's liblog meets it: logd's datagrams on a socket at a path.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include "host/emulator/LogSink.h"

namespace tarnmodem {
namespace {

// logd's header: buffer id, thread id (2 bytes), seconds and nanoseconds (4 bytes each).
std::string header(unsigned char buffer) {
    return std::string(1, static_cast<char>(buffer)) + std::string("\x2a\x00", 2) +
           std::string(8, '\x01');
}

Json decode(const std::string& datagram) {
    return decode_logd_datagram(reinterpret_cast<const unsigned char*>(datagram.data()),
                                datagram.size());
}

TEST(EmulatorLogdDatagram, HeaderThenPriorityTagAndText) {
    const struct {
        std::string datagram;
        Json expected;
    } cases[] = {
        {header(0).substr(0, 10), nullptr},
        {header(0), nullptr},
        {header(0) + std::string("\x06VEXILCTL\0flush: done\n\0", 24),
         {{"prio", 6}, {"tag", "VEXILCTL"}, {"msg", "flush: done\n"}, {"buffer", 0}}},
        // liblog cuts a payload past its limit, its last NUL with it.
        {header(3) + std::string("\x04T\0cut", 6),
         {{"prio", 4}, {"tag", "T"}, {"msg", "cut"}, {"buffer", 3}}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(decode(c.datagram), c.expected) << c.datagram.size() << " bytes";
    }
}

TEST(EmulatorLogdSink, RecordsWhatIsSentToItsPathReplacingAStaleSocket) {
    char dir[] = "/tmp/logd-sink-XXXXXX";
    ASSERT_NE(mkdtemp(dir), nullptr);
    const std::string path = std::string(dir) + "/logdw", log = std::string(dir) + "/log.jsonl";
    ASSERT_EQ(mknod(path.c_str(), S_IFSOCK | 0600, 0), 0);  // what a killed daemon leaves
    {
        JsonLineFile out;
        ASSERT_TRUE(out.open(log));
        LogSink sink(out, decode_logd_datagram);
        ASSERT_TRUE(sink.start_at(path));
        int fd = socket(AF_UNIX, SOCK_DGRAM, 0);
        sockaddr_un addr{};
        addr.sun_family = AF_UNIX;
        path.copy(addr.sun_path, sizeof(addr.sun_path) - 1);
        const std::string datagram = header(0) + std::string("\x06VEXILCTL\0line\n\0", 16);
        EXPECT_EQ(sendto(fd, datagram.data(), datagram.size(), 0,
                         reinterpret_cast<sockaddr*>(&addr), sizeof(addr)),
                  static_cast<ssize_t>(datagram.size()));
        close(fd);
        sink.stop();
    }
    std::ifstream in(log);
    std::string line;
    ASSERT_TRUE(std::getline(in, line));
    EXPECT_EQ(Json::parse(line),
              Json({{"prio", 6}, {"tag", "VEXILCTL"}, {"msg", "line\n"}, {"buffer", 0}}));
    unlink(log.c_str());
    unlink(path.c_str());
    rmdir(dir);
}

}  // namespace
}  // namespace tarnmodem
