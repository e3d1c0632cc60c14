// Host stand-in for the Android 13 binder stability API. The host has a single stability level.
#pragma once

#include <android/binder_ibinder.h>

__BEGIN_DECLS

// The stability of the vendor image, or of system<->vendor (what the NDK library of a
// @VintfStability interface built for a device gives each binder it makes).
void AIBinder_markVendorStability(AIBinder* binder);
void AIBinder_markVintfStability(AIBinder* binder);

__END_DECLS
