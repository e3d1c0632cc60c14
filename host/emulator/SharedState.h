// The device state and the injected faults, shared by the daemon's two processes: the main one
// (command socket, reloads) and the service process forked from it, which may die on its own.
// They live in an anonymous shared mapping as state-file JSON under a process-shared lock; each
// process works on a decoded copy and decodes again only after another process changed it. Until
// a second process is forked, the one process's copy is the state and nothing is encoded.
#pragma once

#include <pthread.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "host/emulator/DeviceState.h"
#include "host/emulator/Faults.h"

namespace tarnmodem {

class SharedState {
  public:
    // Maps the region and stores the initial contents; null when no mapping can be made.
    static std::unique_ptr<SharedState> create(const DeviceState& device, const FaultTable& faults);
    ~SharedState();
    SharedState(const SharedState&) = delete;
    SharedState& operator=(const SharedState&) = delete;

    // Runs f on the device state under the lock and returns what f returns; a change is seen by
    // every process from then on. A state f left as it was is not published again.
    template <typename F>
    auto with(F f) {
        Lock lock(*this);
        const DeviceState before = copy_.device;
        if constexpr (std::is_void_v<decltype(f(copy_.device))>) {
            f(copy_.device);
            if (!(copy_.device == before)) publish();
        } else {
            auto result = f(copy_.device);
            if (!(copy_.device == before)) publish();
            return result;
        }
    }

    // The fault injected into op, if any.
    std::optional<Fault> fault(const std::string& op);

    // Puts a new state and new faults in place of the old (a reload).
    void replace(const DeviceState& device, const FaultTable& faults);

    // Before forking a process that will share the state: from now on every change is published.
    void share();

    // In a process just forked: the copy may have been taken half-changed, so decode afresh.
    void forget_copy() { seen_version_ = ~uint64_t{0}; }

  private:
    struct Region;
    struct Copy {
        DeviceState device;
        FaultTable faults;
    };

    // Holds the region's lock, with the copy brought up to date.
    class Lock {
      public:
        explicit Lock(SharedState& owner);
        ~Lock();
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;

      private:
        SharedState& owner_;
    };

    SharedState(Region* region, Copy initial);
    void refresh();
    void publish();

    Region* region_;
    Copy copy_;
    uint64_t seen_version_ = 0;
    // Whether another process may read the region; until then publishing is put off.
    bool shared_ = false;
    bool unpublished_ = false;
};

}  // namespace tarnmodem
