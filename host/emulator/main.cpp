// tarnmodem: host stand-in for the device's log daemon. Serves the log-control service (in a
// process of its own), the vexilserver command socket and the log sink until SIGTERM or SIGINT;
// SIGHUP reads the state file again.
#include <host/log_datagram.h>
#include <pthread.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "host/emulator/CommandLine.h"
#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/Journal.h"
#include "host/emulator/LogSink.h"
#include "host/emulator/ServiceProcess.h"
#include "host/emulator/SharedState.h"
#include "host/emulator/StateFile.h"
#include "host/emulator/VexilProtocol.h"
#include "host/emulator/VexilServer.h"

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

// A line on standard output that a script can wait for.
void announce(const char* line) {
    printf("%s\n", line);
    fflush(stdout);
}

// Records, faults and replies from the state file again (the defaults without one); the service
// comes back when it died or the file asks for another publication. Journal and log go on.
void reload(const std::string& path, SharedState& state, VexilServer& vexilserver,
            ServiceProcess& service) {
    EmulatorConfig config;
    std::string error;
    if (!path.empty() && !load_state_file(path, config, error)) {
        fprintf(stderr, "tarnmodem: reload: %s\n", error.c_str());
        announce("reload failed");
        return;
    }
    state.replace(config.device, config.faults);
    vexilserver.replace_replies(config.vexilserver.replies);
    if (!service.running() || service.publication() != config.service) {
        service.stop();
        if (!service.start(config.service, error)) {
            fprintf(stderr, "tarnmodem: reload: %s\n", error.c_str());
            announce("reload failed");
            return;
        }
    }
    announce("reloaded");
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
    if (options.help) {
        fputs(kUsage, stdout);
        return 0;
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

    // Every thread and the service process leave these signals to the main thread.
    sigset_t signals;
    sigemptyset(&signals);
    for (int s : {SIGTERM, SIGINT, SIGHUP, SIGCHLD}) sigaddset(&signals, s);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);

    std::unique_ptr<SharedState> state = SharedState::create(config.device, config.faults);
    if (!state) fail(kCannotServe, with_errno("cannot share the state"));
    // Forked before any thread starts.
    ServiceProcess service(*state, options.journal_path, argc, argv);
    if (!service.start(config.service, error)) fail(kCannotServe, error);

    LogSink log_sink(log_file);
    if (!log_sink.start(kHostLogSinkName)) fail(kCannotServe, with_errno("cannot bind log sink"));
    LogSink logd_sink(log_file, decode_logd_datagram);
    if (!options.logd_path.empty() && !logd_sink.start_at(options.logd_path)) {
        fail(kCannotServe, with_errno("cannot bind " + options.logd_path));
    }
    VexilServer vexilserver(config.vexilserver.replies, journal, [&state](const std::string& line) {
        return state->with([&](DeviceState& s) { return answer_vexilserver_request(line, s); });
    });
    if (config.vexilserver.up && !vexilserver.start("vexilserver")) {
        fail(kCannotServe, with_errno("cannot listen on vexilserver"));
    }
    announce("ready");

    for (;;) {
        int signal_number = 0;
        sigwait(&signals, &signal_number);
        if (signal_number == SIGCHLD) {
            service.reap();
        } else if (signal_number == SIGHUP) {
            reload(options.state_path, *state, vexilserver, service);
        } else {
            break;
        }
    }
    service.stop();
    log_sink.stop();  // records the lines already sent
    logd_sink.stop();
    // Socket threads may be inside a call: leave without running destructors.
    _exit(0);
}
