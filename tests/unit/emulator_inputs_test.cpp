// The emulator's log datagram decoding and its command line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CommandLine.h"
#include "LogSink.h"

namespace tarnmodem {
namespace {

TEST(EmulatorInputs, LogDatagramsDecode) {
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

TEST(EmulatorInputs, CommandLine) {
    struct Case {
        std::vector<const char*> argv;
        bool ok;
        CommandLine expected;
    };
    const Case cases[] = {
        {{"tarnmodem"}, true, {}},
        {{"tarnmodem", "--state", "s", "--journal", "j", "--log", "l"}, true, {"s", "j", "l"}},
        {{"tarnmodem", "--log=l", "--state=s"}, true, {"s", "", "l"}},
        {{"tarnmodem", "--state"}, false, {}},
        {{"tarnmodem", "--state="}, false, {}},
        {{"tarnmodem", "--verbose"}, false, {}},
        {{"tarnmodem", "state.json"}, false, {}},
    };
    for (const Case& c : cases) {
        CommandLine out;
        std::string error;
        bool ok = parse_command_line(static_cast<int>(c.argv.size()), c.argv.data(), out, error);
        EXPECT_EQ(ok, c.ok) << c.argv.back();
        EXPECT_EQ(ok, error.empty()) << error;
        if (!ok) continue;
        EXPECT_EQ(out.state_path, c.expected.state_path);
        EXPECT_EQ(out.journal_path, c.expected.journal_path);
        EXPECT_EQ(out.log_path, c.expected.log_path);
    }
}

}  // namespace
}  // namespace tarnmodem
