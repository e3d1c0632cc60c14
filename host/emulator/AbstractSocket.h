// Local sockets in the abstract namespace, as Android's local sockets use them, or at a
// filesystem path, as logd's are.
#pragma once

#include <string>

namespace tarnmodem {

// Binds a new socket of the given type (SOCK_STREAM or SOCK_DGRAM) to the abstract name, and
// listens when it is a stream socket. Returns the descriptor, or -1 with errno set.
int bind_abstract_socket(const std::string& name, int type);

// The same at a filesystem path; a file already there (a socket left by an earlier run) is
// removed first.
int bind_socket_at(const std::string& path, int type);

}  // namespace tarnmodem
