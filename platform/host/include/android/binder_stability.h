// Host stand-in for the Android 13 binder stability API. The host has a single stability level.
#pragma once

#include <android/binder_ibinder.h>

__BEGIN_DECLS

void AIBinder_markVintfStability(AIBinder* binder);

__END_DECLS
