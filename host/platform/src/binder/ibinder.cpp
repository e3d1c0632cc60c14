// AIBinder_*: classes, reference counting, weak references and transactions.
#include <memory>

#include "host/platform/src/binder/binder_impl.h"
#include "host/platform/src/binder/parcel_impl.h"
#include "host/platform/src/binder/wire.h"

using host::binder::LocalBinder;
using host::binder::WeakTarget;

namespace {

// The binder flags callers may pass: oneway, and the vendor marker the device adds.
constexpr binder_flags_t kKnownFlags = FLAG_ONEWAY | 0x10000000;

bool try_inc_strong(AIBinder* binder) {
    int32_t count = binder->strong.load();
    while (count > 0) {
        if (binder->strong.compare_exchange_weak(count, count + 1)) return true;
    }
    return false;
}

}  // namespace

struct AIBinder_Weak {
    std::shared_ptr<WeakTarget> target;
};

AIBinder::AIBinder() : weak(std::make_shared<WeakTarget>()) {
    weak->target = this;
}

AIBinder::~AIBinder() = default;

namespace host::binder {

bool same_interface(const AIBinder_Class* a, const AIBinder_Class* b) {
    return a == b || (a != nullptr && b != nullptr && a->descriptor == b->descriptor);
}

LocalBinder::LocalBinder(const AIBinder_Class* c, void* user_data) : user_data_(user_data) {
    clazz = c;
}

LocalBinder::~LocalBinder() {
    const AIBinder_Class* c = clazz.load();
    if (c->on_destroy != nullptr) c->on_destroy(user_data_);
}

binder_status_t LocalBinder::transact(transaction_code_t code, const AParcel& in, AParcel* out,
                                      binder_flags_t /*flags*/) {
    const AIBinder_Class* c = clazz.load();
    if (code == kInterfaceTransaction) {
        return AParcel_writeString(out, c->descriptor.c_str(),
                                   static_cast<int32_t>(c->descriptor.size()));
    }
    if (code < FIRST_CALL_TRANSACTION || code > LAST_CALL_TRANSACTION) {
        return STATUS_UNKNOWN_TRANSACTION;
    }
    in.position = 0;
    binder_status_t status = c->on_transact(this, code, &in, out);
    out->position = 0;
    return status;
}

bool LocalBinder::associate(const AIBinder_Class* c) {
    return same_interface(clazz.load(), c);
}

}  // namespace host::binder

AIBinder_Class* AIBinder_Class_define(const char* interfaceDescriptor,
                                      AIBinder_Class_onCreate onCreate,
                                      AIBinder_Class_onDestroy onDestroy,
                                      AIBinder_Class_onTransact onTransact) {
    if (interfaceDescriptor == nullptr || onTransact == nullptr) return nullptr;
    AIBinder_Class* clazz = new AIBinder_Class;
    clazz->descriptor = interfaceDescriptor;
    clazz->on_create = onCreate;
    clazz->on_destroy = onDestroy;
    clazz->on_transact = onTransact;
    return clazz;
}

void AIBinder_Class_setOnDump(AIBinder_Class* clazz, AIBinder_onDump onDump) {
    if (clazz != nullptr) clazz->on_dump = onDump;
}

void AIBinder_Class_setHandleShellCommand(AIBinder_Class* clazz,
                                          AIBinder_handleShellCommand handleShellCommand) {
    if (clazz != nullptr) clazz->on_shell_command = handleShellCommand;
}

AIBinder* AIBinder_new(const AIBinder_Class* clazz, void* args) {
    if (clazz == nullptr) return nullptr;
    void* user_data = clazz->on_create != nullptr ? clazz->on_create(args) : args;
    return new LocalBinder(clazz, user_data);
}

bool AIBinder_isRemote(const AIBinder* binder) {
    return binder != nullptr && binder->is_remote();
}

binder_status_t AIBinder_dump(AIBinder* binder, int fd, const char** args, uint32_t numArgs) {
    if (binder == nullptr) return STATUS_UNEXPECTED_NULL;
    if (binder->is_remote()) return STATUS_INVALID_OPERATION;
    const AIBinder_Class* clazz = binder->clazz.load();
    if (clazz->on_dump == nullptr) return STATUS_OK;
    return clazz->on_dump(binder, fd, args, numArgs);
}

void AIBinder_incStrong(AIBinder* binder) {
    if (binder == nullptr) return;
    binder->strong.fetch_add(1);
}

void AIBinder_decStrong(AIBinder* binder) {
    if (binder == nullptr) return;
    if (binder->strong.fetch_sub(1) != 1) return;
    {
        std::lock_guard<std::mutex> lock(binder->weak->mutex);
        binder->weak->target = nullptr;
    }
    delete binder;
}

bool AIBinder_associateClass(AIBinder* binder, const AIBinder_Class* clazz) {
    if (binder == nullptr || clazz == nullptr) return false;
    return binder->associate(clazz);
}

const AIBinder_Class* AIBinder_getClass(AIBinder* binder) {
    return binder == nullptr ? nullptr : binder->clazz.load();
}

void* AIBinder_getUserData(AIBinder* binder) {
    if (binder == nullptr || binder->is_remote()) return nullptr;
    return static_cast<LocalBinder*>(binder)->user_data();
}

binder_status_t AIBinder_prepareTransaction(AIBinder* binder, AParcel** in) {
    if (binder == nullptr || in == nullptr) return STATUS_UNEXPECTED_NULL;
    if (binder->clazz.load() == nullptr) return STATUS_INVALID_OPERATION;
    *in = new AParcel;
    return STATUS_OK;
}

binder_status_t AIBinder_transact(AIBinder* binder, transaction_code_t code, AParcel** in,
                                  AParcel** out, binder_flags_t flags) {
    if (in == nullptr) return STATUS_UNEXPECTED_NULL;
    std::unique_ptr<AParcel> request(*in);
    *in = nullptr;
    if (binder == nullptr || request == nullptr || out == nullptr) return STATUS_UNEXPECTED_NULL;
    if ((flags & ~kKnownFlags) != 0) return STATUS_BAD_VALUE;
    std::unique_ptr<AParcel> reply(new AParcel);
    request->position = 0;
    binder_status_t status = binder->transact(code, *request, reply.get(), flags);
    if (status == STATUS_OK) {
        reply->position = 0;
        *out = reply.release();
    }
    return status;
}

AIBinder_Weak* AIBinder_Weak_new(AIBinder* binder) {
    if (binder == nullptr) return nullptr;
    return new AIBinder_Weak{binder->weak};
}

void AIBinder_Weak_delete(AIBinder_Weak* weakBinder) {
    delete weakBinder;
}

AIBinder* AIBinder_Weak_promote(AIBinder_Weak* weakBinder) {
    if (weakBinder == nullptr) return nullptr;
    std::lock_guard<std::mutex> lock(weakBinder->target->mutex);
    AIBinder* binder = weakBinder->target->target;
    if (binder == nullptr || !try_inc_strong(binder)) return nullptr;
    return binder;
}
