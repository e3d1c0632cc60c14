// The emulator's decoding of the log datagrams it receives.
#include <gtest/gtest.h>

#include <string>

#include "LogSink.h"

namespace tarnmodem {
namespace {

TEST(EmulatorLogDatagram, Decodes) {
    struct Case {
        std::string datagram;
        std::string line;  // the JSON line, or "null"
    };
    const Case cases[] = {
        {std::string("\x06VEXILCTL\0start: x\n\0", 20),
         R"({"prio":6,"tag":"VEXILCTL","msg":"start: x\n"})"},
        {std::string("\x03T\0m", 4), R"({"prio":3,"tag":"T","msg":"m"})"},
        {std::string("\x06TAG", 4), R"({"prio":6,"tag":"TAG","msg":""})"},
        {std::string("\x06", 1), R"({"prio":6,"tag":"","msg":""})"},
        {std::string("\xff\0\0", 3), R"({"prio":255,"tag":"","msg":""})"},
        {std::string("\x06T\0a\0b", 6), R"({"prio":6,"tag":"T","msg":"a"})"},
        {std::string("\x06T\0\xc3\x28", 5), "{\"prio\":6,\"tag\":\"T\",\"msg\":\"\xef\xbf\xbd(\"}"},
        {"", "null"},
    };
    for (const Case& c : cases) {
        Json decoded = decode_log_datagram(
            reinterpret_cast<const unsigned char*>(c.datagram.data()), c.datagram.size());
        EXPECT_EQ(to_json_line(decoded), c.line);
    }
}

}  // namespace
}  // namespace tarnmodem
