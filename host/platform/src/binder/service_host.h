// The service side of the host transport: local binders published on abstract stream sockets,
// one accept loop, and one thread per client connection so that clients never block each other.
#pragma once

#include <android/binder_ibinder.h>
#include <android/binder_status.h>

#include <mutex>
#include <vector>

namespace host::binder {

class ServiceHost {
  public:
    // The process's host; a child made by fork() starts with an empty one.
    static ServiceHost& get();

    // Listens on the abstract socket `instance` for `binder` (kept alive from then on).
    binder_exception_t publish(AIBinder* binder, const char* instance);

    // Starts accepting connections on a background thread (once).
    void start();

    ServiceHost();

  private:
    struct Listener {
        int fd;
        AIBinder* binder;
    };

    [[noreturn]] void accept_loop();
    void wake();

    std::mutex mutex_;
    std::vector<Listener> listeners_;
    int wake_fd_;
    bool accepting_ = false;
};

}  // namespace host::binder
