// The log-control service in a process of its own, as on a device, so that it can die (a "die"
// fault) while the log sink and the command socket of the main process live on.
#pragma once

#include <sys/types.h>

#include <string>

#include "host/emulator/EmulatorConfig.h"
#include "host/emulator/SharedState.h"

namespace tarnmodem {

class ServiceProcess {
  public:
    // argv is the daemon's own, renamed in the service process so that pidof finds only the
    // main process under the daemon's name.
    ServiceProcess(SharedState& state, std::string journal_path, int argc, char** argv)
        : state_(state), journal_path_(std::move(journal_path)), argc_(argc), argv_(argv) {}

    // Forks the service process and returns once it serves (at once for an absent service).
    // False with a message when it could not start.
    bool start(ServicePublication publication, std::string& error);
    // Ends the service process, if it runs.
    void stop();
    // Collects the service process if it has ended.
    void reap();
    bool running() const { return pid_ > 0; }
    ServicePublication publication() const { return publication_; }

  private:
    [[noreturn]] void serve(ServicePublication publication, int ready_fd);
    void rename();

    SharedState& state_;
    std::string journal_path_;
    int argc_;
    char** argv_;
    pid_t pid_ = -1;
    ServicePublication publication_ = ServicePublication::ABSENT;
};

}  // namespace tarnmodem
