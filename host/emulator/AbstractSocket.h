// Sockets in the abstract local namespace, as Android's local sockets use them.
#pragma once

#include <string>

namespace tarnmodem {

// Binds a new socket of the given type (SOCK_STREAM or SOCK_DGRAM) to the abstract name, and
// listens when it is a stream socket. Returns the descriptor, or -1 with errno set.
int bind_abstract_socket(const std::string& name, int type);

}  // namespace tarnmodem
