// Host stand-in for the Android 13 binder shell-command API (a platform header).
#pragma once

#include <android/binder_ibinder.h>

__BEGIN_DECLS

typedef binder_status_t (*AIBinder_handleShellCommand)(AIBinder* binder, int in, int out, int err,
                                                       const char** argv, uint32_t argc);

// Sets what a class's binders run for a shell command. The host transport carries no shell
// commands: the function is kept and never called.
void AIBinder_Class_setHandleShellCommand(AIBinder_Class* clazz,
                                          AIBinder_handleShellCommand handleShellCommand)
    __INTRODUCED_IN(30);

__END_DECLS
