#include "host/platform/src/binder/service_host.h"

#include <errno.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <memory>

#include "host/platform/src/binder/binder_impl.h"
#include "host/platform/src/binder/wire.h"
#include "host/platform/src/local_socket.h"

namespace host::binder {

namespace {

std::atomic<ServiceHost*> g_host{nullptr};

void back_off() {
    timespec pause_time{0, 10 * 1000 * 1000};
    nanosleep(&pause_time, nullptr);
}

// Runs fn on a new detached thread; false if no thread could be made.
template <typename Fn>
bool spawn_detached(std::unique_ptr<Fn> fn) {
    pthread_attr_t attr;
    if (pthread_attr_init(&attr) != 0) return false;
    pthread_attr_setdetachstate(&attr, PTHREAD_CREATE_DETACHED);
    pthread_t thread;
    int rc = pthread_create(
        &thread, &attr,
        [](void* arg) -> void* {
            std::unique_ptr<Fn> body(static_cast<Fn*>(arg));
            (*body)();
            return nullptr;
        },
        fn.get());
    pthread_attr_destroy(&attr);
    if (rc != 0) return false;
    fn.release();
    return true;
}

// Answers the requests of one client until it hangs up or sends a malformed frame.
void serve_connection(int fd, AIBinder* binder) {
    for (;;) {
        Frame request;
        if (read_frame(fd, &request) != FrameResult::OK) break;
        AParcel in;
        in.data = std::move(request.payload);
        AParcel out;
        binder_status_t status = binder->transact(request.word1, in, &out, request.word2);
        if ((request.word2 & FLAG_ONEWAY) != 0) continue;
        if (status != STATUS_OK) out.data.clear();
        if (!send_frame(fd, static_cast<uint32_t>(status), 0, out.data)) break;
    }
    close(fd);
    AIBinder_decStrong(binder);
}

}  // namespace

ServiceHost::ServiceHost() : wake_fd_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

ServiceHost& ServiceHost::get() {
    static const bool registered = [] {
        // After fork() only the forking thread exists: the child gets a fresh host rather
        // than one whose accept thread and locks belong to the parent.
        pthread_atfork(nullptr, nullptr, [] { g_host.store(new ServiceHost); });
        g_host.store(new ServiceHost);
        return true;
    }();
    (void)registered;
    return *g_host.load();
}

binder_exception_t ServiceHost::publish(AIBinder* binder, const char* instance) {
    if (binder == nullptr || instance == nullptr || binder->is_remote()) {
        return EX_ILLEGAL_ARGUMENT;
    }
    sockaddr_un addr;
    socklen_t len;
    if (!abstract_address(instance, &addr, &len)) return EX_ILLEGAL_ARGUMENT;
    int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) return EX_ILLEGAL_STATE;
    if (bind(fd, reinterpret_cast<const sockaddr*>(&addr), len) < 0 || listen(fd, SOMAXCONN) < 0) {
        close(fd);
        return EX_ILLEGAL_STATE;
    }
    AIBinder_incStrong(binder);
    {
        std::lock_guard<std::mutex> lock(mutex_);
        listeners_.push_back({fd, binder});
    }
    wake();
    return EX_NONE;
}

void ServiceHost::start() {
    std::lock_guard<std::mutex> lock(mutex_);
    if (accepting_) return;
    auto loop = std::make_unique<std::function<void()>>([this] { accept_loop(); });
    accepting_ = spawn_detached(std::move(loop));
}

void ServiceHost::wake() {
    uint64_t one = 1;
    ssize_t rc = write(wake_fd_, &one, sizeof(one));
    (void)rc;  // a full counter already wakes the loop
}

void ServiceHost::accept_loop() {
    for (;;) {
        std::vector<pollfd> fds{{wake_fd_, POLLIN, 0}};
        std::vector<AIBinder*> binders{nullptr};
        {
            std::lock_guard<std::mutex> lock(mutex_);
            for (const Listener& l : listeners_) {
                fds.push_back({l.fd, POLLIN, 0});
                binders.push_back(l.binder);
            }
        }
        if (poll(fds.data(), fds.size(), -1) < 0) {
            if (errno != EINTR) back_off();
            continue;
        }
        if (fds[0].revents != 0) {
            uint64_t count;
            ssize_t rc = read(wake_fd_, &count, sizeof(count));
            (void)rc;
        }
        for (size_t i = 1; i < fds.size(); ++i) {
            if ((fds[i].revents & POLLIN) == 0) continue;
            int conn = accept4(fds[i].fd, nullptr, nullptr, SOCK_CLOEXEC);
            if (conn < 0) {
                if (errno == EMFILE || errno == ENFILE || errno == ENOMEM) back_off();
                continue;
            }
            AIBinder* binder = binders[i];
            AIBinder_incStrong(binder);
            auto serve = std::make_unique<std::function<void()>>(
                [conn, binder] { serve_connection(conn, binder); });
            if (!spawn_detached(std::move(serve))) {
                close(conn);
                AIBinder_decStrong(binder);
            }
        }
    }
}

}  // namespace host::binder
