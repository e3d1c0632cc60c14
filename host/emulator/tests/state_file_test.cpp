// The state file: partial overrides, and the refusals that name the offending key. Every kind of
// fault it names is run end to end by the fault matrix.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/StateFile.h"

namespace tarnmodem {
namespace {

TEST(EmulatorStateFile, OverridesOnlyTheFieldsGivenAndNullRemovesStorage) {
    EmulatorConfig config;
    std::string error;
    ASSERT_TRUE(
        parse_state(R"({"CellularLogSettings": {"mode": 2}, "SubsystemStorageParam": {"2": null}})",
                    config, error))
        << error;
    EXPECT_EQ(config.device.cellular.mode, 2);
    EXPECT_EQ(config.device.cellular.dest, default_device_state().cellular.dest);
    EXPECT_EQ(config.device.storage.count(2), 0u);
    EXPECT_EQ(config.device.storage.count(1), 1u);
}

TEST(EmulatorStateFile, RefusalsNameTheKey) {
    struct Case {
        const char* text;
        const char* message_part;
    };
    const Case cases[] = {
        {R"({"bogus": 1})", "\"bogus\" is not a state key"},
        {R"([1])", "must be a JSON object"},
        {R"({"service": "maybe"})", "\"service\""},
        {R"({"CellularLogSettings": {"mode": "on"}})",
         "\"CellularLogSettings.mode\" must be an integer"},
        {R"({"CellularLogSettings": {"modes": 1}})",
         "\"CellularLogSettings.modes\" is not a field"},
        {R"({"CellularLogSettings": {"mode": 2147483648}})", "out of the int32 range"},
        {R"({"CellularLogSettings": {"mode": 1.5}})", "must be an integer"},
        {R"({"SubsystemPresence": 1})", "\"SubsystemPresence\" must be an object"},
        {R"({"SubsystemStorageParam": {"7": {}}})", "\"SubsystemStorageParam.7\""},
        {R"({"SubsystemStorageParam": {"x": {}}})", "\"SubsystemStorageParam.x\""},
        {R"({"SubsystemStorageParam": {"1": {"size": 1}}})", "\"SubsystemStorageParam.1.size\""},
        {R"({"StorageMedia": "data"})", "\"StorageMedia\" must be an integer"},
        {R"({"ParentLogPath": 1})", "\"ParentLogPath\" must be a string"},
        {R"({"AutoReboot": {"2": 1}})", "\"AutoReboot.2\""},
        {R"({"RunState": {"0": true}})", "\"RunState.0\" must be an integer"},
        {R"({"faults": {"nope": {}}})", "\"faults.nope\" is not an operation"},
        {R"({"faults": {"flushLogs": {"result": 0}}})", "\"faults.flushLogs.result\""},
        {R"({"faults": {"getCurrentParentLogPath": {"result": 0}}})", "has no int"},
        {R"({"faults": {"clearLogs": {"status": "EX_NOPE"}}})", "\"faults.clearLogs.status\""},
        {R"({"faults": {"clearLogs": {"die": 1}}})", "\"faults.clearLogs.die\""},
        {R"({"faults": {"clearLogs": {"crash": true}}})", "\"faults.clearLogs.crash\""},
        {R"({"vexilserver": {"up": "yes"}})", "\"vexilserver.up\""},
        {R"({"vexilserver": {"down": true}})", "\"vexilserver.down\""},
        {R"({"vexilserver": {"replies": {"X\n": 3}}})", "\"vexilserver.replies.X\n\""},
        {R"({"vexilserver": {"replies": {"X\n": [-1]}}})", "\"vexilserver.replies.X\n\""},
        {R"({"vexilserver": {"replies": {"X\n": [600001]}}})", "pauses from 0 to 600000"},
        {R"({"mode": )", "not valid JSON"},
        {"{\"ParentLogPath\": \"\xff\"}", "not valid JSON"},
    };
    for (const Case& c : cases) {
        EmulatorConfig config;
        std::string error;
        EXPECT_FALSE(parse_state(c.text, config, error)) << c.text;
        EXPECT_NE(error.find(c.message_part), std::string::npos)
            << c.text << "\n  gave: " << error << "\n  lacks: " << c.message_part;
    }
}

}  // namespace
}  // namespace tarnmodem
