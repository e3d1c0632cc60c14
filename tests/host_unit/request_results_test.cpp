// What each command's request returns from do_request(), which the front end ignores (the exit
// status stays 0): -1 when the service cannot be reached, and for some requests when the input or
// the service refuses; 0 after anything else, errors included. The requests run in this process
// against the emulated service, published in a network namespace of the test's own.
#include <android/binder_manager.h>
#include <android/binder_process.h>
#include <gtest/gtest.h>
#include <sched.h>

#include <iterator>
#include <sstream>
#include <string>

#include "front/RequestManager.h"
#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/Faults.h"
#include "host/emulator/LogControlService.h"
#include "requests/MipiPsRequests.h"
#include "tests/unit/front_test_support.h"

namespace tarn {
namespace {

using tarnmodem::FaultStatus;
using tarnmodem::FaultTable;

// Runs the request of the command line.
int result_of(const std::string& line) {
    std::istringstream words(line);
    test::CommandLine command({std::istream_iterator<std::string>(words), {}});
    std::shared_ptr<Request> request;
    RequestManager().prepare_request(command.argc(), command.argv(), &request);
    if (!request) return 99;
    return request->do_request();
}

// Command lines (split at '|') whose requests return the same: with no service; on the default
// device; with every call failing; with every int result -1.
struct Rows {
    int absent, fine, failing, refused;
    const char* lines;
};

// clang-format off
const Rows kRows[] = {
    {-1, 0, 0, 0, "state modem|setlog modem off|collect|collect all|flush|crash modem|crash gnss|"
                  "setcomp modem lz4|getcomp wcn|getcpcapacity modem internal|getfilesize modem|"
                  "setcpcapacity modem external 100|setfilesize wcn 10|getstor|getlogpath|"
                  "setlogpath /data/x|getoverwrite modem|getoverwrite all|getfilenodel modem|"
                  "setoverwrite modem disable|setfilenodel modem enable|getcpreset modem|"
                  "setcpreset wcn rstdmp|getcprunstate modem|getminidump|setminidump off|"
                  "setmipilog enable 1 2|getmipilog enable|setlogpscfg debug"},
    {-1, 0, -1, -1, "clear|clear skipboot|setstor data|getiolimit modem|"
                    "setiolimit modem avgratio 50"},
    // No vexilserver listens in the test's namespace.
    {-1, -1, -1, -1, "getcpcapacity all internal|setvexil modem on|setvexiltopc disable|"
                     "getallvexilstate|getvexiltopcstate"},
};
// clang-format on

// False, after naming each line that returned otherwise on stderr, when one did.
bool expect_results(int Rows::*column) {
    bool as_expected = true;
    for (const Rows& rows : kRows) {
        std::istringstream lines(rows.lines);
        for (std::string line; std::getline(lines, line, '|');) {
            const int result = result_of(line);
            if (result == rows.*column) continue;
            fprintf(stderr, "\n%s: %d, expected %d\n", line.c_str(), result, rows.*column);
            as_expected = false;
        }
    }
    return as_expected;
}

// A profile type no handler builds is refused on stdout before any call.
bool out_of_range_profile_is_refused() {
    testing::internal::CaptureStdout();
    const int result = SetLogPsCfg(static_cast<SetLogPsCfg::PsCfgOpertType>(2)).do_request();
    const std::string out = testing::internal::GetCapturedStdout();
    if (result == 0 && out == "setPsLogModuleConfig PsCfgOpertType Error\n") return true;
    fprintf(stderr, "\nsetlogpscfg of type 2: %d, \"%s\"\n", result, out.c_str());
    return false;
}

// Runs the first column, publishes the emulated service and runs the others.
bool check_every_column() {
    bool as_expected = expect_results(&Rows::absent);
    tarnmodem::EmulatorConfig config;
    auto state = tarnmodem::SharedState::create(config.device, config.faults);
    tarnmodem::Journal journal;  // not opened: nothing is recorded
    auto service = ndk::SharedRefBase::make<tarnmodem::LogControlService>(*state, journal);
    const std::string instance = std::string(ISysLogControl::descriptor) + "/default";
    if (AServiceManager_addService(service->asBinder().get(), instance.c_str()) != EX_NONE) {
        return false;
    }
    ABinderProcess_startThreadPool();
    as_expected = out_of_range_profile_is_refused() && as_expected;
    FaultTable failing, refused;
    for (const auto& [name, operation] : tarnmodem::service_operations()) {
        failing[name].status = FaultStatus{FaultStatus::Kind::EXCEPTION, EX_TRANSACTION_FAILED};
        if (operation.returns_int) refused[name].result = -1;
    }
    const std::pair<FaultTable, int Rows::*> columns[] = {
        {{}, &Rows::fine}, {failing, &Rows::failing}, {refused, &Rows::refused}};
    for (const auto& [faults, column] : columns) {
        state->replace(config.device, faults);
        as_expected = expect_results(column) && as_expected;
    }
    return as_expected;
}

// In a child process, so that the namespace and the service's threads end with it; a child that
// cannot have a namespace of its own checks nothing. The requests' output is dropped.
TEST(RequestResults, ByServiceState) {
    EXPECT_EXIT(
        {
            freopen("/dev/null", "w", stdout);
            _exit(unshare(CLONE_NEWNET) != 0 || check_every_column() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tarn
