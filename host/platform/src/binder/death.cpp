// Death recipients and their links to remote binders. A link lives until the binder dies or is
// deleted.
#include <mutex>
#include <vector>

#include "host/platform/src/binder/binder_impl.h"

using host::binder::RemoteBinder;

struct AIBinder_DeathRecipient {
    AIBinder_DeathRecipient_onBinderDied on_died = nullptr;
};

namespace host::binder {

namespace {

struct Link {
    RemoteBinder* binder;
    AIBinder_DeathRecipient* recipient;
    void* cookie;
};

// What to call for a link after its removal, taken while the links are locked.
struct Notification {
    AIBinder_DeathRecipient_onBinderDied on_died;
    void* cookie;
};

std::mutex& links_mutex() {
    static std::mutex* mutex = new std::mutex;
    return *mutex;
}

std::vector<Link>& links() {
    static std::vector<Link>* all = new std::vector<Link>;
    return *all;
}

// Removes the links of a binder and returns what their removal has to notify.
std::vector<Notification> remove_links(const RemoteBinder* binder) {
    std::vector<Notification> removed;
    std::lock_guard<std::mutex> lock(links_mutex());
    auto& all = links();
    for (auto it = all.begin(); it != all.end();) {
        if (it->binder == binder) {
            removed.push_back({it->recipient->on_died, it->cookie});
            it = all.erase(it);
        } else {
            ++it;
        }
    }
    return removed;
}

}  // namespace

binder_status_t RemoteBinder::link(AIBinder_DeathRecipient* recipient, void* cookie) {
    std::lock_guard<std::mutex> lock(links_mutex());
    if (!alive()) return STATUS_DEAD_OBJECT;
    links().push_back({this, recipient, cookie});
    return STATUS_OK;
}

void RemoteBinder::die() {
    if (dead_.exchange(true)) return;
    for (const Notification& n : remove_links(this)) {
        if (n.on_died != nullptr) n.on_died(n.cookie);
    }
}

void forget_binder_links(RemoteBinder* binder) {
    remove_links(binder);
}

}  // namespace host::binder

AIBinder_DeathRecipient* AIBinder_DeathRecipient_new(
    AIBinder_DeathRecipient_onBinderDied onBinderDied) {
    if (onBinderDied == nullptr) return nullptr;
    AIBinder_DeathRecipient* recipient = new AIBinder_DeathRecipient;
    recipient->on_died = onBinderDied;
    return recipient;
}

binder_status_t AIBinder_linkToDeath(AIBinder* binder, AIBinder_DeathRecipient* recipient,
                                     void* cookie) {
    if (binder == nullptr || recipient == nullptr) return STATUS_UNEXPECTED_NULL;
    if (!binder->is_remote()) return STATUS_INVALID_OPERATION;
    return static_cast<RemoteBinder*>(binder)->link(recipient, cookie);
}
