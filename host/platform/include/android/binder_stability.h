// Host stand-in for the Android 13 binder stability API. The host has a single stability level.
#pragma once

#include <android/binder_ibinder.h>
