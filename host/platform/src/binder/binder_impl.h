// The objects behind the AIBinder API: local binders (an object of this process) and remote
// binders (a connection to a service published by another process or thread).
#pragma once

#include <android/binder_ibinder.h>
#include <android/binder_shell.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

struct AIBinder_Class {
    std::string descriptor;
    AIBinder_Class_onCreate on_create = nullptr;
    AIBinder_Class_onDestroy on_destroy = nullptr;
    AIBinder_Class_onTransact on_transact = nullptr;
    AIBinder_onDump on_dump = nullptr;
    AIBinder_handleShellCommand on_shell_command = nullptr;
};

namespace host::binder {

// What weak references see of a binder; `target` is cleared when the last strong one goes.
struct WeakTarget {
    std::mutex mutex;
    AIBinder* target = nullptr;
};

}  // namespace host::binder

struct AIBinder {
    AIBinder();
    virtual ~AIBinder();
    AIBinder(const AIBinder&) = delete;
    AIBinder& operator=(const AIBinder&) = delete;

    virtual bool is_remote() const = 0;
    // Carries out one transaction: `in` holds the arguments, `out` receives the reply.
    virtual binder_status_t transact(transaction_code_t code, const AParcel& in, AParcel* out,
                                     binder_flags_t flags) = 0;
    // Whether this binder can be used as clazz, fixing the class of a remote binder.
    virtual bool associate(const AIBinder_Class* clazz) = 0;

    std::atomic<int32_t> strong{1};
    std::shared_ptr<host::binder::WeakTarget> weak;
    // The class a local binder was made with, or the one a remote binder was associated with.
    std::atomic<const AIBinder_Class*> clazz{nullptr};
};

namespace host::binder {

class LocalBinder : public AIBinder {
  public:
    LocalBinder(const AIBinder_Class* clazz, void* user_data);
    ~LocalBinder() override;

    bool is_remote() const override { return false; }
    binder_status_t transact(transaction_code_t code, const AParcel& in, AParcel* out,
                             binder_flags_t flags) override;
    bool associate(const AIBinder_Class* clazz) override;

    void* user_data() const { return user_data_; }

  private:
    void* user_data_;
};

// A connection to a published service. Calls are serialised on the connection; a hang-up marks
// the binder dead and notifies the linked death recipients once.
class RemoteBinder : public AIBinder {
  public:
    RemoteBinder(int fd, std::string descriptor);
    ~RemoteBinder() override;

    bool is_remote() const override { return true; }
    binder_status_t transact(transaction_code_t code, const AParcel& in, AParcel* out,
                             binder_flags_t flags) override;
    bool associate(const AIBinder_Class* clazz) override;

    bool alive() const { return !dead_.load(); }
    const std::string& descriptor() const { return descriptor_; }

    binder_status_t link(AIBinder_DeathRecipient* recipient, void* cookie);

  private:
    // Marks the binder dead and runs the death notifications (without holding any lock).
    void die();

    int fd_;
    const std::string descriptor_;
    std::atomic<bool> dead_{false};
    std::mutex call_mutex_;
};

// Drops every death link of a binder that is being destroyed.
void forget_binder_links(RemoteBinder* binder);

// True when both classes stand for the same interface.
bool same_interface(const AIBinder_Class* a, const AIBinder_Class* b);

// Opens a remote binder for the service published at `instance`: null (errno set) when nothing
// listens there or the service does not answer the descriptor query.
AIBinder* connect_remote(const char* instance);

}  // namespace host::binder
