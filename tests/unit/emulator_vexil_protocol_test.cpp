// The emulated daemon's answers on its command socket and what they change: the exact words it
// takes (the tool sends only good lines; raw clients send the rest) and the settings behind them.
#include <gtest/gtest.h>

#include <string>

#include "VexilProtocol.h"

namespace tarnmodem {
namespace {

TEST(EmulatorVexilProtocol, AnswersEachRequest) {
    struct Case {
        std::string request;
        std::string response;
    };
    const Case cases[] = {
        {"ENABLE_LOG GNSS", "OK\n"},
        {"ENABLE_LOG AG-DSP", "OK\n"},
        {"DISABLE_LOG PM_SH", "OK\n"},
        // Unknown subsystem words, case and spacing included.
        {"ENABLE_LOG 5mode", "ERROR 9\n"},
        {"ENABLE_LOG ", "ERROR 9\n"},
        {"ENABLE_LOG  WCN", "ERROR 9\n"},
        {"DISABLE_LOG WCN GNSS", "ERROR 9\n"},
        // Unknown requests.
        {"", "ERROR 1\n"},
        {"get_log_state", "ERROR 1\n"},
        {"GET_LOG_STATE ", "ERROR 1\n"},
        {"GET_LOG_STATE\r", "ERROR 1\n"},
        {"ENABLE_LOG_TO_PC now", "ERROR 1\n"},
        {"ENABLE_LOGS", "ERROR 1\n"},
        {std::string("GET_LOG_STATE\0", 14), "ERROR 1\n"},
    };
    for (const Case& c : cases) {
        DeviceState state = default_device_state();
        EXPECT_EQ(answer_vexilserver_request(c.request, state), c.response) << c.request;
    }
}

TEST(EmulatorVexilProtocol, SwitchesTheSameSettingsTheServiceShows) {
    DeviceState s = default_device_state();
    ASSERT_EQ(answer_vexilserver_request("DISABLE_LOG 5MODE", s), "OK\n");
    EXPECT_EQ(s.cellular.mode, 0);
    EXPECT_EQ(s.cellular.logSwitch6, 0);
    EXPECT_EQ(s.cellular.dest, 1) << "switching off keeps the destination";
    ASSERT_EQ(answer_vexilserver_request("DISABLE_LOG WCN", s), "OK\n");
    EXPECT_EQ(s.connectivity.wcn, 0);
    EXPECT_EQ(s.connectivity.gnss, 1);
    ASSERT_EQ(answer_vexilserver_request("ENABLE_LOG AG-DSP", s), "OK\n");
    EXPECT_EQ(s.agdsp.enable, 1);
    EXPECT_EQ(s.agdsp.enableAux, 1);
    ASSERT_EQ(answer_vexilserver_request("ENABLE_LOG PM_SH", s), "OK\n");
    EXPECT_EQ(s.pmSensorHub.enable, 1);
    EXPECT_EQ(s.sensorHub.enable, 1);

    ASSERT_EQ(answer_vexilserver_request("DISABLE_LOG", s), "OK\n");
    EXPECT_EQ(s.connectivity.gnss, 0);
    ASSERT_EQ(answer_vexilserver_request("ENABLE_LOG GNSS", s), "OK\n");
    EXPECT_EQ(answer_vexilserver_request("GET_LOG_STATE", s), "OK ON\n");

    s.cellular.mode = 2;
    EXPECT_EQ(answer_vexilserver_request("GET_LOG_STATE", s), "OK EVENT\n");
}

TEST(EmulatorVexilProtocol, AbsentCoProcessorsAreUnknown) {
    DeviceState s = default_device_state();
    s.presence.agdsp = 0;
    s.presence.wcn = 0;
    EXPECT_EQ(answer_vexilserver_request("ENABLE_LOG AG-DSP", s), "ERROR 10\n");
    EXPECT_EQ(answer_vexilserver_request("ENABLE_LOG WCN", s), "ERROR 9\n");
    ASSERT_EQ(answer_vexilserver_request("ENABLE_LOG", s), "OK\n");
    EXPECT_EQ(s.agdsp.enable, 0) << "switching all leaves out what is not there";
    EXPECT_EQ(s.cellular.mode, 1);
}

}  // namespace
}  // namespace tarnmodem
