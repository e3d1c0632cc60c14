// The state shared by the daemon's processes: what the service process changes, the main process
// sees, whole. The other way (a reload) is run end to end.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/SharedState.h"
#include "host/emulator/StateFile.h"
#include "host/emulator/StateJson.h"

namespace tarnmodem {
namespace {

// A state and faults that differ from the defaults in every key the state file has.
EmulatorConfig changed_config() {
    EmulatorConfig config;
    std::string error;
    EXPECT_TRUE(parse_state(R"({
        "CellularLogSettings": {"mode": 2, "dest": 3, "logPath": "/c", "logSwitch6": 0},
        "ConnectivityLogSettings": {"gnssMode": 4}, "PmSensorHubLogSettings": {"level": 1},
        "SensorHubLogSettings": {"enable": 1}, "AgdspLogSettings": {"pcmDump": 1},
        "SubsystemPresence": {"sensor": 0}, "CellularModemIoSettings": {"buf_num": 3},
        "MipiLogConfig": {"channel": "7"},
        "SubsystemStorageParam": {"1": null, "4": {"fileCount": 9}},
        "StorageMedia": 0, "ParentLogPath": "/p", "AutoReboot": {"1": 0}, "RunState": {"0": 2},
        "faults": {"flushLogs": {"status": "EX_SECURITY", "die": true},
                   "clearLogs": {"status": -32, "result": 5},
                   "getSubsystemPresence": {"status": "ok"}}})",
                            config, error))
        << error;
    config.device.logToPc = true;
    config.device.psLogProfile = 2;
    return config;
}

TEST(EmulatorSharedState, ForkedProcessSeesEveryChangeWhole) {
    EmulatorConfig want = changed_config();
    auto state = SharedState::create(default_device_state(), {});
    ASSERT_TRUE(state);
    state->share();
    pid_t child = fork();
    if (child == 0) {
        state->replace(want.device, want.faults);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    DeviceState seen = state->with([](DeviceState& s) { return s; });
    EXPECT_EQ(state_to_json(seen, {}), state_to_json(want.device, {}));
    EXPECT_TRUE(seen.logToPc);
    EXPECT_EQ(seen.psLogProfile, 2);
    for (const char* op : {"flushLogs", "clearLogs", "getSubsystemPresence"}) {
        ASSERT_TRUE(state->fault(op).has_value()) << op;
        EXPECT_EQ(state_to_json({}, {{op, *state->fault(op)}}),
                  state_to_json({}, {{op, want.faults.at(op)}}))
            << op;
    }
    EXPECT_FALSE(state->fault("getCellularLogSettings").has_value());
}

}  // namespace
}  // namespace tarnmodem
