// tarnmodem: host stand-in for the device's log daemon. Serves the log-control service, the
// vexilserver command socket and the log sink until SIGTERM or SIGINT.
#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <android/binder_manager.h>
#include <android/binder_process.h>
#include <host/log_sink.h>
#include <pthread.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "CommandLine.h"
#include "EmulatorConfig.h"
#include "ForeignService.h"
#include "Journal.h"
#include "LogControlService.h"
#include "LogSink.h"
#include "VexilProtocol.h"
#include "VexilServer.h"

namespace {

using namespace tarnmodem;

constexpr int kBadUsage = 2;
constexpr int kCannotServe = 1;

[[noreturn]] void fail(int status, const std::string& message) {
    fprintf(stderr, "tarnmodem: %s\n", message.c_str());
    exit(status);
}

std::string with_errno(const std::string& what) {
    return what + ": " + strerror(errno);
}

void publish_service(ServicePublication publication, SharedDeviceState& state,
                     const FaultTable& faults, Journal& journal) {
    if (publication == ServicePublication::kAbsent) return;
    ndk::SpAIBinder binder;
    if (publication == ServicePublication::kPresent) {
        // The service object lives as long as the process.
        static std::shared_ptr<LogControlService> service =
            ndk::SharedRefBase::make<LogControlService>(state, faults, journal);
        binder = service->asBinder();
    } else {
        binder = make_foreign_service();
    }
    const std::string instance = std::string(svc::ISysLogControl::descriptor) + "/default";
    if (AServiceManager_addService(binder.get(), instance.c_str()) != EX_NONE) {
        fail(kCannotServe, with_errno("cannot publish " + instance));
    }
    ABinderProcess_startThreadPool();
}

}  // namespace

int main(int argc, char** argv) {
    prctl(PR_SET_NAME, "tarnmodem", 0, 0, 0);
    signal(SIGPIPE, SIG_IGN);

    CommandLine options;
    std::string error;
    if (!parse_command_line(argc, argv, options, error)) {
        fprintf(stderr, "tarnmodem: %s\n%s", error.c_str(), kUsage);
        return kBadUsage;
    }
    EmulatorConfig config;
    if (!options.state_path.empty() && !load_state_file(options.state_path, config, error)) {
        fail(kBadUsage, error);
    }
    Journal journal;
    if (!options.journal_path.empty() && !journal.open(options.journal_path)) {
        fail(kBadUsage, with_errno("cannot open journal " + options.journal_path));
    }
    JsonLineFile log_file;
    if (!options.log_path.empty() && !log_file.open(options.log_path)) {
        fail(kBadUsage, with_errno("cannot open log " + options.log_path));
    }

    // Every thread started from here on leaves the stop signals to the main thread.
    sigset_t stop_signals;
    sigemptyset(&stop_signals);
    sigaddset(&stop_signals, SIGTERM);
    sigaddset(&stop_signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &stop_signals, nullptr);

    SharedDeviceState state(config.device);
    LogSink log_sink(log_file);
    if (!log_sink.start(kHostLogSinkName)) fail(kCannotServe, with_errno("cannot bind log sink"));
    VexilServer vexilserver(config.vexilserver, journal, [&state](const std::string& request) {
        return state.with([&](DeviceState& s) { return answer_vexilserver_request(request, s); });
    });
    if (config.vexilserver.up && !vexilserver.start("vexilserver")) {
        fail(kCannotServe, with_errno("cannot listen on vexilserver"));
    }
    publish_service(config.service, state, config.faults, journal);

    printf("ready\n");
    fflush(stdout);

    int signal_number = 0;
    sigwait(&stop_signals, &signal_number);
    log_sink.stop();  // records the lines already sent
    // Service and socket threads may be inside a call: leave without running destructors.
    _exit(0);
}
