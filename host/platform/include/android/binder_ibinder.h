// Host stand-in for the Android 13 binder NDK object API (same names and declarations).
#pragma once

#include <android/binder_parcel.h>
#include <android/binder_status.h>
#include <stdbool.h>
#include <stdint.h>
#include <sys/cdefs.h>
#include <sys/types.h>

__BEGIN_DECLS

typedef uint32_t binder_flags_t;
enum {
    FLAG_ONEWAY = 0x01,
};

typedef uint32_t transaction_code_t;
enum {
    FIRST_CALL_TRANSACTION = 0x00000001,
    LAST_CALL_TRANSACTION = 0x00ffffff,
};

struct AIBinder_Class;
typedef struct AIBinder_Class AIBinder_Class;

struct AIBinder;
typedef struct AIBinder AIBinder;

struct AIBinder_Weak;
typedef struct AIBinder_Weak AIBinder_Weak;

struct AIBinder_DeathRecipient;
typedef struct AIBinder_DeathRecipient AIBinder_DeathRecipient;

typedef void* (*AIBinder_Class_onCreate)(void* args);
typedef void (*AIBinder_Class_onDestroy)(void* userData);
typedef binder_status_t (*AIBinder_Class_onTransact)(AIBinder* binder, transaction_code_t code,
                                                     const AParcel* in, AParcel* out);

__attribute__((warn_unused_result)) AIBinder_Class* AIBinder_Class_define(
    const char* interfaceDescriptor, AIBinder_Class_onCreate onCreate,
    AIBinder_Class_onDestroy onDestroy, AIBinder_Class_onTransact onTransact) __INTRODUCED_IN(29);

typedef binder_status_t (*AIBinder_onDump)(AIBinder* binder, int fd, const char** args,
                                           uint32_t numArgs);
void AIBinder_Class_setOnDump(AIBinder_Class* clazz, AIBinder_onDump onDump) __INTRODUCED_IN(29);

__attribute__((warn_unused_result)) AIBinder* AIBinder_new(const AIBinder_Class* clazz, void* args)
    __INTRODUCED_IN(29);

bool AIBinder_isRemote(const AIBinder* binder) __INTRODUCED_IN(29);
binder_status_t AIBinder_dump(AIBinder* binder, int fd, const char** args, uint32_t numArgs)
    __INTRODUCED_IN(29);

binder_status_t AIBinder_linkToDeath(AIBinder* binder, AIBinder_DeathRecipient* recipient,
                                     void* cookie) __INTRODUCED_IN(29);

void AIBinder_incStrong(AIBinder* binder) __INTRODUCED_IN(29);
void AIBinder_decStrong(AIBinder* binder) __INTRODUCED_IN(29);

bool AIBinder_associateClass(AIBinder* binder, const AIBinder_Class* clazz) __INTRODUCED_IN(29);
const AIBinder_Class* AIBinder_getClass(AIBinder* binder) __INTRODUCED_IN(29);
void* AIBinder_getUserData(AIBinder* binder) __INTRODUCED_IN(29);

binder_status_t AIBinder_prepareTransaction(AIBinder* binder, AParcel** in) __INTRODUCED_IN(29);
binder_status_t AIBinder_transact(AIBinder* binder, transaction_code_t code, AParcel** in,
                                  AParcel** out, binder_flags_t flags) __INTRODUCED_IN(29);

__attribute__((warn_unused_result)) AIBinder_Weak* AIBinder_Weak_new(AIBinder* binder)
    __INTRODUCED_IN(29);
void AIBinder_Weak_delete(AIBinder_Weak* weakBinder) __INTRODUCED_IN(29);
__attribute__((warn_unused_result)) AIBinder* AIBinder_Weak_promote(AIBinder_Weak* weakBinder)
    __INTRODUCED_IN(29);

typedef void (*AIBinder_DeathRecipient_onBinderDied)(void* cookie) __INTRODUCED_IN(29);

__attribute__((warn_unused_result)) AIBinder_DeathRecipient* AIBinder_DeathRecipient_new(
    AIBinder_DeathRecipient_onBinderDied onBinderDied) __INTRODUCED_IN(29);

__END_DECLS
