// Addresses of local (AF_UNIX) sockets in the abstract or the filesystem namespace.
#pragma once

#include <sys/socket.h>
#include <sys/un.h>

namespace host {

// Fills addr/len for the abstract socket `name`. False (errno ENAMETOOLONG or EINVAL) when the
// name is null or does not fit.
bool abstract_address(const char* name, sockaddr_un* addr, socklen_t* len);

// Fills addr/len for the filesystem socket at `path`. False as above.
bool filesystem_address(const char* path, sockaddr_un* addr, socklen_t* len);

// A socket of the given type (SOCK_STREAM, SOCK_DGRAM, ... and flags) connected to addr, or -1
// with errno set.
int connect_local(const sockaddr_un& addr, socklen_t len, int type);

// A connected stream socket (close-on-exec) to addr, or -1 with errno set.
int connect_stream(const sockaddr_un& addr, socklen_t len);

}  // namespace host
