// The emulated log-control service, called directly: state, refusals, faults and journal.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "LogControlService.h"

namespace tarnmodem {
namespace {

using svc::SubsystemType;

class EmulatorService : public ::testing::Test {
  protected:
    void SetUp() override {
        char dir[] = "/tmp/emulator_service_test.XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        dir_ = dir;
        journal_path_ = dir_ + "/journal.jsonl";
        ASSERT_TRUE(journal_.open(journal_path_));
    }

    void TearDown() override {
        unlink(journal_path_.c_str());
        rmdir(dir_.c_str());
    }

    // A service over the default state, with the given faults.
    std::shared_ptr<LogControlService> service(const FaultTable& faults = {}) {
        state_->replace(snapshot(), faults);
        return ndk::SharedRefBase::make<LogControlService>(*state_, journal_);
    }

    std::vector<Json> journal_lines() {
        std::vector<Json> lines;
        std::ifstream in(journal_path_);
        std::string line;
        while (std::getline(in, line)) lines.push_back(Json::parse(line));
        return lines;
    }

    DeviceState snapshot() {
        return state_->with([](DeviceState& s) { return s; });
    }

    std::unique_ptr<SharedState> state_ = SharedState::create(default_device_state(), {});
    Journal journal_;
    std::string dir_;
    std::string journal_path_;
};

TEST_F(EmulatorService, ReadsReflectEarlierWrites) {
    auto svc = service();
    int32_t result = -1;

    svc::CellularLogSettings cellular;
    ASSERT_TRUE(svc->getCellularLogSettings(&cellular, &result).isOk());
    EXPECT_EQ(result, 0);
    EXPECT_EQ(cellular.mode, 1);
    cellular.mode = 0;
    cellular.comp = 1;
    ASSERT_TRUE(svc->setCellularLogSettings(cellular, &result).isOk());
    EXPECT_EQ(result, 0);
    svc::CellularLogSettings again;
    ASSERT_TRUE(svc->getCellularLogSettings(&again, &result).isOk());
    EXPECT_EQ(again, cellular);

    svc::SubsystemStorageParam param;
    ASSERT_TRUE(svc->getSubsystemStorageParam(SubsystemType::WCN, &param, &result).isOk());
    EXPECT_EQ(result, 0);
    param.logFileSize = 99;
    ASSERT_TRUE(svc->setSubsystemStorageParam(SubsystemType::WCN, param, &result).isOk());
    EXPECT_EQ(result, 0);
    svc::SubsystemStorageParam wcn, modem;
    ASSERT_TRUE(svc->getSubsystemStorageParam(SubsystemType::WCN, &wcn, &result).isOk());
    ASSERT_TRUE(svc->getSubsystemStorageParam(SubsystemType::MODEM, &modem, &result).isOk());
    EXPECT_EQ(wcn.logFileSize, 99);
    EXPECT_NE(modem.logFileSize, 99) << "storage is kept per subsystem";

    ASSERT_TRUE(svc->setCurrentParentLogPath("/mnt/x", &result).isOk());
    EXPECT_EQ(result, 0);
    std::string path;
    ASSERT_TRUE(svc->getCurrentParentLogPath(&path).isOk());
    EXPECT_EQ(path, "/mnt/x");

    ASSERT_TRUE(svc->setPreferredStorageMedia(svc::StorageMedia::EXTERNAL, &result).isOk());
    svc::StorageMedia media = svc::StorageMedia::DATA;
    ASSERT_TRUE(svc->getPreferredStorageMedia(&media).isOk());
    EXPECT_EQ(media, svc::StorageMedia::EXTERNAL);

    ASSERT_TRUE(svc->setSubsystemAutoReboot(kWcnCpIndex, 2, &result).isOk());
    EXPECT_EQ(result, 0);
    int32_t reboot = -1;
    ASSERT_TRUE(svc->getSubsystemAutoReboot(kWcnCpIndex, &reboot).isOk());
    EXPECT_EQ(reboot, 2);
    ASSERT_TRUE(svc->getSubsystemAutoReboot(kModemCpIndex, &reboot).isOk());
    EXPECT_EQ(reboot, 1);

    svc::MipiLogConfig mipi;
    mipi.type = "a";
    mipi.channel = "b";
    mipi.frequency = "c";
    ASSERT_TRUE(svc->setMipiLogConfig(mipi, &result).isOk());
    svc::MipiLogConfig read_mipi;
    ASSERT_TRUE(svc->getMipiLogConfig("a", &read_mipi, &result).isOk());
    EXPECT_EQ(read_mipi, mipi);

    svc::CellularModemIoSettings io;
    ASSERT_TRUE(svc->getCellularModemIoSettings(&io, &result).isOk());
    io.buf_num = 3;
    ASSERT_TRUE(svc->setCellularModemIoSettings(io, &result).isOk());
    EXPECT_EQ(result, 0);
    EXPECT_EQ(snapshot().modemIo.buf_num, 3);
}

TEST_F(EmulatorService, RefusesWhatTheDeviceDoesNotSupport) {
    auto svc = service();
    const auto none = static_cast<SubsystemType>(0);
    int32_t result = 0;
    svc::SubsystemStorageParam param;
    EXPECT_TRUE(svc->getSubsystemStorageParam(none, &param, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->getSubsystemStorageParam(SubsystemType::SENSOR, &param, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->setSubsystemStorageParam(none, param, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->crashSubsystem(SubsystemType::GNSS, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->crashSubsystem(SubsystemType::WCN, &result).isOk());
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(svc->collectLogs(none, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->getSubsystemAutoReboot(2, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->getSubsystemRunState(-1, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);

    // Values the daemon will not take change nothing.
    const DeviceState before = snapshot();
    EXPECT_TRUE(svc->setCurrentParentLogPath("relative/dir", &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    EXPECT_TRUE(svc->setCurrentParentLogPath("", &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    EXPECT_TRUE(svc->setPreferredStorageMedia(static_cast<svc::StorageMedia>(5), &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    EXPECT_TRUE(svc->setSubsystemAutoReboot(kModemCpIndex, 3, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    EXPECT_TRUE(svc->setPsLogModuleConfig(2, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    svc::CellularModemIoSettings io = before.modemIo;
    io.avg_ratio = 101;
    EXPECT_TRUE(svc->setCellularModemIoSettings(io, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    io = before.modemIo;
    io.buf_num = 0;
    EXPECT_TRUE(svc->setCellularModemIoSettings(io, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    svc::AgdspLogSettings agdsp = before.agdsp;
    agdsp.dest = 4;
    EXPECT_TRUE(svc->setAgdspLogSettings(agdsp, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    param = before.storage.at(1);
    param.internalMaxSize = -1;
    EXPECT_TRUE(svc->setSubsystemStorageParam(SubsystemType::MODEM, param, &result).isOk());
    EXPECT_EQ(result, kResultFailed);
    const DeviceState after = snapshot();
    EXPECT_EQ(after.parentLogPath, before.parentLogPath);
    EXPECT_EQ(after.modemIo, before.modemIo);
    EXPECT_EQ(after.agdsp, before.agdsp);
    EXPECT_EQ(after.storage, before.storage);
    EXPECT_EQ(after.autoReboot, before.autoReboot);
}

TEST_F(EmulatorService, AbsentCoProcessorHasNoStorage) {
    state_->with([](DeviceState& s) { s.presence.wcn = 0; });
    auto svc = service();
    int32_t result = 0;
    svc::SubsystemStorageParam param;
    EXPECT_TRUE(svc->getSubsystemStorageParam(SubsystemType::WCN, &param, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
    EXPECT_TRUE(svc->crashSubsystem(SubsystemType::WCN, &result).isOk());
    EXPECT_EQ(result, kResultUnsupported);
}

TEST_F(EmulatorService, ResultFaultFillsOutValuesAndChangesNothing) {
    FaultTable faults;
    faults["getCellularLogSettings"].result = 7;
    faults["setCellularLogSettings"].result = 0;
    faults["getPreferredStorageMedia"].result = 9;
    auto svc = service(faults);
    int32_t result = 0;
    svc::CellularLogSettings cellular;
    ASSERT_TRUE(svc->getCellularLogSettings(&cellular, &result).isOk());
    EXPECT_EQ(result, 7);
    EXPECT_EQ(cellular, default_device_state().cellular);

    cellular.mode = 0;
    ASSERT_TRUE(svc->setCellularLogSettings(cellular, &result).isOk());
    EXPECT_EQ(result, 0);
    EXPECT_EQ(snapshot().cellular.mode, 1) << "a forced result changes no state";

    svc::StorageMedia media = svc::StorageMedia::DATA;
    ASSERT_TRUE(svc->getPreferredStorageMedia(&media).isOk());
    EXPECT_EQ(static_cast<int32_t>(media), 9);
}

TEST_F(EmulatorService, ReservedSlotsAnswerUnknownTransaction) {
    auto svc = service();
    ndk::ScopedAStatus status = svc->reserved04();
    EXPECT_EQ(status.getExceptionCode(), EX_TRANSACTION_FAILED);
    EXPECT_EQ(status.getStatus(), STATUS_UNKNOWN_TRANSACTION);
    EXPECT_EQ(svc->reserved42().getStatus(), STATUS_UNKNOWN_TRANSACTION);
}

TEST_F(EmulatorService, JournalRecordsInputsInOrder) {
    auto svc = service();
    int32_t result = 0;
    svc::SubsystemStorageParam param;
    param.externalMaxSize = 1;
    param.internalMaxSize = 2;
    param.logFileSize = 3;
    param.overwrite = 1;
    param.fileCount = 5;
    ASSERT_TRUE(svc->setSubsystemStorageParam(SubsystemType::AGDSP, param, &result).isOk());
    ASSERT_TRUE(svc->setSubsystemAutoReboot(kModemCpIndex, 0, &result).isOk());
    svc::CellularLogSettings cellular;
    ASSERT_TRUE(svc->getCellularLogSettings(&cellular, &result).isOk());
    ASSERT_TRUE(svc->setCurrentParentLogPath("/p", &result).isOk());
    ASSERT_TRUE(svc->reserved17().getStatus() == STATUS_UNKNOWN_TRANSACTION);

    const std::vector<Json> expected = {
        Json::parse(R"({"op": "setSubsystemStorageParam", "args": [5,
                {"externalMaxSize": 1, "internalMaxSize": 2, "logFileSize": 3, "overwrite": 1,
                 "fileCount": 5}]})"),
        Json::parse(R"({"op": "setSubsystemAutoReboot", "args": [0, 0]})"),
        Json::parse(R"({"op": "getCellularLogSettings", "args": []})"),
        Json::parse(R"({"op": "setCurrentParentLogPath", "args": ["/p"]})"),
        Json::parse(R"({"op": "reserved17", "args": []})"),
    };
    EXPECT_EQ(journal_lines(), expected);
}

}  // namespace
}  // namespace tarnmodem
