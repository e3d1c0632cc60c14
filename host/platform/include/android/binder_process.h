// Host stand-in for the Android 13 binder thread pool API.
#pragma once

#include <android/binder_status.h>
#include <stdbool.h>
#include <stdint.h>
#include <sys/cdefs.h>

__BEGIN_DECLS

void ABinderProcess_startThreadPool();

__END_DECLS
