#include "host/emulator/ForeignService.h"

#include <android/binder_ibinder.h>
#include <android/binder_status.h>

namespace tarnmodem {
namespace {

const char kForeignDescriptor[] = "vendor.kest.hardware.vexil_svc.IForeignControl";

void* on_create(void* args) {
    return args;
}

void on_destroy(void*) {}

binder_status_t on_transact(AIBinder*, transaction_code_t, const AParcel*, AParcel*) {
    return STATUS_UNKNOWN_TRANSACTION;
}

}  // namespace

ndk::SpAIBinder make_foreign_service() {
    static AIBinder_Class* foreign_class =
        AIBinder_Class_define(kForeignDescriptor, on_create, on_destroy, on_transact);
    return ndk::SpAIBinder(AIBinder_new(foreign_class, nullptr));
}

}  // namespace tarnmodem
