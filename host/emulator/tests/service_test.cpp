// The emulated log-control service, called directly: what it keeps per subsystem and processor,
// and the values it refuses without changing anything (those a vexilctl command can send). What the
// tool sends and reads back is proven end to end against the running emulator.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "host/emulator/LogControlService.h"
#include "host/emulator/StateJson.h"

namespace tarnmodem {
namespace {

using svc::SubsystemType;

class EmulatorService : public ::testing::Test {
  protected:
    DeviceState snapshot() {
        return state_->with([](DeviceState& s) { return s; });
    }

    std::unique_ptr<SharedState> state_ = SharedState::create(default_device_state(), {});
    Journal journal_;  // not opened: nothing is recorded
    std::shared_ptr<LogControlService> svc_ =
        ndk::SharedRefBase::make<LogControlService>(*state_, journal_);
    int32_t result_ = 0;
};

TEST_F(EmulatorService, KeepsStoragePerSubsystemAndPolicyPerProcessor) {
    svc::SubsystemStorageParam param;
    ASSERT_TRUE(svc_->getSubsystemStorageParam(SubsystemType::WCN, &param, &result_).isOk());
    param.logFileSize = 99;
    ASSERT_TRUE(svc_->setSubsystemStorageParam(SubsystemType::WCN, param, &result_).isOk());
    EXPECT_EQ(result_, 0);
    EXPECT_EQ(snapshot().storage.at(static_cast<int>(SubsystemType::WCN)).logFileSize, 99);
    EXPECT_NE(snapshot().storage.at(static_cast<int>(SubsystemType::MODEM)).logFileSize, 99);

    ASSERT_TRUE(svc_->setSubsystemAutoReboot(kWcnCpIndex, 2, &result_).isOk());
    int32_t reboot = -1;
    ASSERT_TRUE(svc_->getSubsystemAutoReboot(kWcnCpIndex, &reboot).isOk());
    EXPECT_EQ(reboot, 2);
    ASSERT_TRUE(svc_->getSubsystemAutoReboot(kModemCpIndex, &reboot).isOk());
    EXPECT_EQ(reboot, 1);
}

TEST_F(EmulatorService, RefusesWhatTheDeviceWouldNotTakeAndChangesNothing) {
    state_->with([](DeviceState& s) { s.presence.wcn = 0; });
    const DeviceState before = snapshot();
    const auto none = static_cast<SubsystemType>(0);
    svc::SubsystemStorageParam param = before.storage.at(1);
    svc::CellularModemIoSettings ratio = before.modemIo, no_buffers = before.modemIo;
    ratio.avg_ratio = 101;
    no_buffers.buf_num = 0;
    int32_t* r = &result_;
    const struct {
        const char* what;
        std::function<ndk::ScopedAStatus()> call;
        int32_t expected;
    } cases[] = {
        {"storage of the sensor hub",
         [&] { return svc_->getSubsystemStorageParam(SubsystemType::SENSOR, &param, r); },
         kResultUnsupported},
        {"storage of an absent wcn",
         [&] { return svc_->getSubsystemStorageParam(SubsystemType::WCN, &param, r); },
         kResultUnsupported},
        {"crash of an absent wcn", [&] { return svc_->crashSubsystem(SubsystemType::WCN, r); },
         kResultUnsupported},
        {"collect of none", [&] { return svc_->collectLogs(none, r); }, kResultUnsupported},
        {"relative path", [&] { return svc_->setCurrentParentLogPath("relative/dir", r); },
         kResultFailed},
        {"empty path", [&] { return svc_->setCurrentParentLogPath("", r); }, kResultFailed},
        {"reboot policy 3", [&] { return svc_->setSubsystemAutoReboot(kModemCpIndex, 3, r); },
         kResultFailed},
        {"ratio 101", [&] { return svc_->setCellularModemIoSettings(ratio, r); }, kResultFailed},
        {"no buffers", [&] { return svc_->setCellularModemIoSettings(no_buffers, r); },
         kResultFailed},
    };
    for (const auto& c : cases) {
        result_ = 0;
        EXPECT_TRUE(c.call().isOk()) << c.what;
        EXPECT_EQ(result_, c.expected) << c.what;
    }
    EXPECT_EQ(state_to_json(snapshot(), {}), state_to_json(before, {}));

    // The reserved transaction slots answer as the real service does to an unknown code.
    ndk::ScopedAStatus status = svc_->reserved04();
    EXPECT_EQ(status.getExceptionCode(), EX_TRANSACTION_FAILED);
    EXPECT_EQ(status.getStatus(), STATUS_UNKNOWN_TRANSACTION);
}

}  // namespace
}  // namespace tarnmodem
