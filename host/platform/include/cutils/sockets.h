// Host stand-in for the part of Android's cutils socket helpers this project uses.
#pragma once

#include <sys/cdefs.h>

__BEGIN_DECLS

#define ANDROID_SOCKET_NAMESPACE_ABSTRACT 0
#define ANDROID_SOCKET_NAMESPACE_RESERVED 1
#define ANDROID_SOCKET_NAMESPACE_FILESYSTEM 2

// Connects to a local socket; returns the descriptor, or -1 with errno set.
int socket_local_client(const char* name, int namespaceId, int type);

__END_DECLS
