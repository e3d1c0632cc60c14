// Death recipients and their links to remote binders. A link lives until the binder dies, the
// link is removed, or the recipient or binder is deleted; onUnlinked runs once per link.
#include <mutex>
#include <vector>

#include "binder_impl.h"

using host::binder::RemoteBinder;

struct AIBinder_DeathRecipient {
    AIBinder_DeathRecipient_onBinderDied on_died = nullptr;
    AIBinder_DeathRecipient_onBinderUnlinked on_unlinked = nullptr;
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
    AIBinder_DeathRecipient_onBinderUnlinked on_unlinked;
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

// Removes the links `matches` selects and returns what their removal has to notify.
template <typename Predicate>
std::vector<Notification> remove_links(Predicate matches) {
    std::vector<Notification> removed;
    std::lock_guard<std::mutex> lock(links_mutex());
    auto& all = links();
    for (auto it = all.begin(); it != all.end();) {
        if (matches(*it)) {
            removed.push_back({it->recipient->on_died, it->recipient->on_unlinked, it->cookie});
            it = all.erase(it);
        } else {
            ++it;
        }
    }
    return removed;
}

void notify_unlinked(const std::vector<Notification>& removed) {
    for (const Notification& n : removed) {
        if (n.on_unlinked != nullptr) n.on_unlinked(n.cookie);
    }
}

}  // namespace

binder_status_t RemoteBinder::link(AIBinder_DeathRecipient* recipient, void* cookie) {
    std::lock_guard<std::mutex> lock(links_mutex());
    if (!alive()) return STATUS_DEAD_OBJECT;
    links().push_back({this, recipient, cookie});
    return STATUS_OK;
}

binder_status_t RemoteBinder::unlink(AIBinder_DeathRecipient* recipient, void* cookie) {
    bool first = true;
    auto removed = remove_links([&](const Link& link) {
        bool match =
            link.binder == this && link.recipient == recipient && link.cookie == cookie && first;
        if (match) first = false;
        return match;
    });
    if (removed.empty()) return STATUS_NAME_NOT_FOUND;
    notify_unlinked(removed);
    return STATUS_OK;
}

void RemoteBinder::forget(AIBinder_DeathRecipient* recipient) {
    notify_unlinked(remove_links([&](const Link& link) { return link.recipient == recipient; }));
}

void RemoteBinder::die() {
    if (dead_.exchange(true)) return;
    auto removed = remove_links([&](const Link& link) { return link.binder == this; });
    for (const Notification& n : removed) {
        if (n.on_died != nullptr) n.on_died(n.cookie);
    }
    notify_unlinked(removed);
}

void forget_binder_links(RemoteBinder* binder) {
    notify_unlinked(remove_links([&](const Link& link) { return link.binder == binder; }));
}

}  // namespace host::binder

AIBinder_DeathRecipient* AIBinder_DeathRecipient_new(
    AIBinder_DeathRecipient_onBinderDied onBinderDied) {
    if (onBinderDied == nullptr) return nullptr;
    AIBinder_DeathRecipient* recipient = new AIBinder_DeathRecipient;
    recipient->on_died = onBinderDied;
    return recipient;
}

void AIBinder_DeathRecipient_setOnUnlinked(AIBinder_DeathRecipient* recipient,
                                           AIBinder_DeathRecipient_onBinderUnlinked onUnlinked) {
    if (recipient != nullptr) recipient->on_unlinked = onUnlinked;
}

void AIBinder_DeathRecipient_delete(AIBinder_DeathRecipient* recipient) {
    if (recipient == nullptr) return;
    RemoteBinder::forget(recipient);
    delete recipient;
}

binder_status_t AIBinder_linkToDeath(AIBinder* binder, AIBinder_DeathRecipient* recipient,
                                     void* cookie) {
    if (binder == nullptr || recipient == nullptr) return STATUS_UNEXPECTED_NULL;
    if (!binder->is_remote()) return STATUS_INVALID_OPERATION;
    return static_cast<RemoteBinder*>(binder)->link(recipient, cookie);
}

binder_status_t AIBinder_unlinkToDeath(AIBinder* binder, AIBinder_DeathRecipient* recipient,
                                       void* cookie) {
    if (binder == nullptr || recipient == nullptr) return STATUS_UNEXPECTED_NULL;
    if (!binder->is_remote()) return STATUS_INVALID_OPERATION;
    return static_cast<RemoteBinder*>(binder)->unlink(recipient, cookie);
}
