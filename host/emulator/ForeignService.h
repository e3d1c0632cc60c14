// A binder of some other interface, for publishing under the log-control service's name.
#pragma once

#include <android/binder_auto_utils.h>

namespace tarnmodem {

// A service whose descriptor is not ISysLogControl's and which knows no transaction.
ndk::SpAIBinder make_foreign_service();

}  // namespace tarnmodem
