#include "host/emulator/ServiceProcess.h"

#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <android/binder_manager.h>
#include <android/binder_process.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "host/emulator/ForeignService.h"
#include "host/emulator/Journal.h"
#include "host/emulator/LogControlService.h"

namespace tarnmodem {
namespace {

// The service process's name: the service package's, as short as the shortest argv allows.
constexpr char kServiceName[] = "vexil_svc";
// The descriptor the service process reports readiness on.
constexpr int kReadyFd = 3;

}  // namespace

bool ServiceProcess::start(ServicePublication publication, std::string& error) {
    publication_ = publication;
    if (publication == ServicePublication::ABSENT) return true;
    int ready[2];
    if (pipe2(ready, O_CLOEXEC) != 0) {
        error = std::string("cannot start the service: ") + strerror(errno);
        return false;
    }
    state_.share();
    pid_t parent = getpid();
    pid_t pid = fork();
    if (pid == 0) {
        // Dies with the daemon, however that ends.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(1);
        close(ready[0]);
        serve(publication, ready[1]);
    }
    close(ready[1]);
    char byte = 0;
    ssize_t n = pid < 0 ? -1 : read(ready[0], &byte, 1);
    int saved = errno;
    close(ready[0]);
    if (n != 1) {
        error = pid < 0 ? std::string("cannot start the service: ") + strerror(saved)
                        : "the service did not start";
        if (pid > 0) waitpid(pid, nullptr, 0);
        return false;
    }
    pid_ = pid;
    return true;
}

void ServiceProcess::stop() {
    if (pid_ <= 0) return;
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
}

void ServiceProcess::reap() {
    if (pid_ > 0 && waitpid(pid_, nullptr, WNOHANG) == pid_) pid_ = -1;
}

void ServiceProcess::rename() {
    prctl(PR_SET_NAME, kServiceName, 0, 0, 0);
    // The arguments lie end to end; the new name takes their place.
    char* begin = argv_[0];
    char* end = argv_[argc_ - 1] + strlen(argv_[argc_ - 1]);
    size_t room = static_cast<size_t>(end - begin);
    memset(begin, 0, room);
    memcpy(begin, kServiceName, std::min(room, sizeof(kServiceName) - 1));
}

void ServiceProcess::serve(ServicePublication publication, int ready_fd) {
    rename();
    // Nothing of the main process's but the shared state: its sockets must close when it
    // closes them.
    if (dup2(ready_fd, kReadyFd) < 0 || close_range(kReadyFd + 1, ~0U, 0) != 0) _exit(1);
    state_.forget_copy();
    static Journal journal;
    if (!journal_path_.empty() && !journal.open(journal_path_)) _exit(1);

    ndk::SpAIBinder binder;
    if (publication == ServicePublication::PRESENT) {
        static std::shared_ptr<LogControlService> service =
            ndk::SharedRefBase::make<LogControlService>(state_, journal);
        binder = service->asBinder();
    } else {
        binder = make_foreign_service();
    }
    const std::string instance = std::string(svc::ISysLogControl::descriptor) + "/default";
    if (AServiceManager_addService(binder.get(), instance.c_str()) != EX_NONE) {
        fprintf(stderr, "tarnmodem: cannot publish %s: %s\n", instance.c_str(), strerror(errno));
        _exit(1);
    }
    ABinderProcess_startThreadPool();
    if (write(kReadyFd, "1", 1) != 1) _exit(1);
    close(kReadyFd);
    for (;;) pause();
}

}  // namespace tarnmodem
