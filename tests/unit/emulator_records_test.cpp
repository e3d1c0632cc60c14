// The emulator's record tables agree with the interface definition (for the operations the tool
// calls, the fault matrix holds the operation table to it: the state file refuses a fault on an
// unknown operation, and a result fault on one without an int); log datagram decoding; its
// command line.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "LogSink.h"
#include "RecordFields.h"

namespace tarnmodem {
namespace {

std::string read_aidl(const std::string& type) {
    std::ifstream in(std::string(AIDL_DIR) + "/vendor/kest/hardware/vexil_svc/" + type + ".aidl");
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Field names of a parcelable, in declaration order.
std::vector<std::string> aidl_fields(const std::string& type) {
    std::string text = read_aidl(type);
    std::vector<std::string> names;
    std::regex field(R"(^\s*(int|String)\s+(\w+)\s*;)", std::regex::multiline);
    for (std::sregex_iterator it(text.begin(), text.end(), field), end; it != end; ++it) {
        names.push_back((*it)[2]);
    }
    return names;
}

template <typename Record>
std::vector<std::string> table_fields() {
    std::vector<std::string> names;
    for (const auto& f : RecordFields<Record>::fields()) names.push_back(f.name);
    return names;
}

template <typename Record>
void expect_fields_match_aidl() {
    const char* name = RecordFields<Record>::kName;
    std::vector<std::string> from_aidl = aidl_fields(name);
    ASSERT_FALSE(from_aidl.empty()) << name;
    EXPECT_EQ(table_fields<Record>(), from_aidl) << name;
}

TEST(EmulatorRecords, FieldTablesFollowTheInterfaceDefinition) {
    expect_fields_match_aidl<svc::AgdspLogSettings>();
    expect_fields_match_aidl<svc::CellularLogSettings>();
    expect_fields_match_aidl<svc::CellularModemIoSettings>();
    expect_fields_match_aidl<svc::ConnectivityLogSettings>();
    expect_fields_match_aidl<svc::MipiLogConfig>();
    expect_fields_match_aidl<svc::PmSensorHubLogSettings>();
    expect_fields_match_aidl<svc::SensorHubLogSettings>();
    expect_fields_match_aidl<svc::SubsystemPresence>();
    expect_fields_match_aidl<svc::SubsystemStorageParam>();
}

TEST(EmulatorRecords, LogDatagramsDecode) {
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

TEST(EmulatorRecords, CommandLine) {
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
