// AIBinder_mark*Stability: with a single stability level, marking a binder changes nothing.
#include <android/binder_stability.h>

void AIBinder_markVendorStability(AIBinder* /*binder*/) {}

void AIBinder_markVintfStability(AIBinder* /*binder*/) {}
