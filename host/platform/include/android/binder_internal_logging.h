// Host stand-in: the binder C++ helpers report misuse through syslog, as on the device.
#pragma once

#include <syslog.h>
