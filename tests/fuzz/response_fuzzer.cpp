// The client's reading of vexilserver answers: parse_number and parse_result on the raw bytes,
// and the same bytes arriving on a socket as the answer to a state query and to a set request.
#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "server/VexilServerQueryStateRequests.h"
#include "server/VexilserverRequest.h"

namespace {

// The words of the log state query; the log-to-PC query accepts a subset of them.
constexpr tarn::StateWord kStateWords[] = {{"ON", "on"}, {"OFF", "off"}, {"EVENT", "event"}};

void check(bool condition) {
    if (!condition) abort();
}

void check_parsers(const uint8_t* data, size_t size) {
    uint32_t value = 0;
    size_t consumed = 0;
    if (parse_number(data, size, value, consumed) == 0) check(consumed >= 1 && consumed <= size);

    VexilserverRequest parser(-1);
    VexilserverRequest::ResponseErrorCode code = VexilserverRequest::RESP_SUCCESS;
    const uint8_t* rest = nullptr;
    if (parser.parse_result(data, size, code, rest) == 0) {
        check(rest >= data && rest <= data + size);
        check(code >= VexilserverRequest::RESP_SUCCESS && code <= VexilserverRequest::RESP_MAX);
    }
}

// A connection whose peer has sent the bytes and hung up; -1 when none can be made.
int answered_connection(const uint8_t* data, size_t size) {
    int fds[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, fds) != 0) return -1;
    bool sent = size == 0 || send(fds[1], data, size, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
    close(fds[1]);
    if (!sent) {
        close(fds[0]);
        return -1;
    }
    return fds[0];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    check_parsers(data, size);

    int fd = answered_connection(data, size);
    if (fd >= 0) {
        VexilserverRequest query(fd);
        tarn::parse_state_query_result(query, kStateWords, std::size(kStateWords));
    }
    fd = answered_connection(data, size);
    if (fd >= 0) {
        VexilserverRequest set(fd);
        set.wait_simple_response(0);
    }
    return 0;
}
