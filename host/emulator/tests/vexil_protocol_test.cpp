// What the emulated daemon's command socket changes: the settings behind each request word. Its
// answers to lines no vexilctl sends are run end to end by raw clients.
#include <gtest/gtest.h>

#include "host/emulator/VexilProtocol.h"

namespace tarnmodem {
namespace {

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
