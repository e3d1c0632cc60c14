#include "server/VexilserverRequest.h"

#include <cutils/sockets.h>
#include <errno.h>
#include <poll.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utils/String8.h>

#include "front/TarnLog.h"

namespace {

constexpr char kServerName[] = "vexilserver";
constexpr char kOkPrefix[] = "OK";
constexpr size_t kOkPrefixLen = sizeof(kOkPrefix) - 1;
constexpr char kErrorPrefix[] = "ERROR ";
constexpr size_t kErrorPrefixLen = sizeof(kErrorPrefix) - 1;

bool starts_with(const uint8_t* data, size_t len, const char* prefix, size_t prefix_len) {
    return len >= prefix_len && memcmp(data, prefix, prefix_len) == 0;
}

}  // namespace

int parse_number(const unsigned char* data, size_t len, uint32_t& value, size_t& consumed) {
    if (len == 0 || data[0] < '0' || data[0] > '9') {
        return -1;
    }
    value = 0;
    size_t i = 0;
    for (; i < len && data[i] >= '0' && data[i] <= '9'; ++i) {
        if (value == UINT32_MAX) {
            return -1;
        }
        value = value * 10u + static_cast<uint32_t>(data[i] - '0');
    }
    consumed = i;
    return 0;
}

VexilserverRequest::VexilserverRequest(int fd) : fd_(fd) {}

VexilserverRequest::~VexilserverRequest() {
    if (fd_ >= 0) {
        close(fd_);
    }
}

int VexilserverRequest::prepare_conn() {
    fd_ = socket_local_client(kServerName, ANDROID_SOCKET_NAMESPACE_ABSTRACT, SOCK_STREAM);
    if (fd_ >= 0) {
        return 0;
    }
    TARN_LOG_ERRNO("%s: can't connect to vexilserver server, server_name=%s", "connect",
                   kServerName);
    fprintf(stderr, "Connect to vexilserver server refused, errno = %d.\n", errno);
    return -1;
}

int VexilserverRequest::send_req(const void* req, size_t len) {
    // One write of the whole line. A server that has already hung up gives EPIPE, reported as a
    // send error, instead of a SIGPIPE that would end the tool silently.
    ssize_t written = send(fd_, req, len, MSG_NOSIGNAL);
    return written >= 0 && static_cast<size_t>(written) == len ? 0 : -1;
}

int VexilserverRequest::wait_response(void* buf, size_t& len, int timeout) {
    pollfd pfd = {};
    pfd.fd = fd_;
    pfd.events = POLLIN;
    if (poll(&pfd, 1, timeout) < 1) {
        return -1;
    }
    ssize_t got = read(fd_, buf, len);
    if (got <= 0) {
        return -1;
    }
    len = static_cast<size_t>(got);
    if (static_cast<const char*>(buf)[len - 1] == '\n') {
        --len;
    }
    return 0;
}

void VexilserverRequest::report_error(RequestError e) {
    if (e == CONNECT_ERROR) {
        fprintf(stderr, "Connect to vexilserver  error: %d\n", errno);
        TARN_LOG_ERRNO("%s: connect to vexilserver  error", "report_error");
    } else {
        fprintf(stderr, "Request error: %d\n", errno);
        TARN_LOG_ERRNO("%s: request error", "report_error");
    }
}

int VexilserverRequest::parse_result(const uint8_t* data, size_t len, ResponseErrorCode& code,
                                     const uint8_t*& rest) {
    if (len < kOkPrefixLen) {
        return -1;
    }
    if (starts_with(data, len, kOkPrefix, kOkPrefixLen)) {
        code = RESP_SUCCESS;
        rest = data + kOkPrefixLen;
        return 0;
    }
    if (!starts_with(data, len, kErrorPrefix, kErrorPrefixLen)) {
        return -1;
    }
    uint32_t number = 0;
    size_t digits = 0;
    if (parse_number(data + kErrorPrefixLen, len - kErrorPrefixLen, number, digits) != 0 ||
        number > RESP_MAX) {
        return -1;
    }
    code = static_cast<ResponseErrorCode>(number);
    rest = data + kErrorPrefixLen + digits;
    return 0;
}

const char* VexilserverRequest::resp_code_to_string(ResponseErrorCode code) {
    switch (code) {
        case RESP_UNKNOWN_REQUEST:
            return "unknown request";
        case RESP_INVALID_PARAM:
            return "invalid parameter";
        case RESP_EXEC_FAILURE:
            return "execution failure";
        case RESP_TRANSACTION_ON:
            return "transaction going on";
        case RESP_NOT_SAVED_TO_SD:
            return "log is not saved to SD";
        case RESP_SLEEP_LOG_UNSUPPORTED:
            return "sleep log not supported";
        case RESP_RINGBUF_UNSUPPORTED:
            return "RingBuf log not supported";
        case RESP_CP_ASSERTED:
            return "the CP has asserted";
        case RESP_UNKNOWN_SUBSYS:
            return "unknown CP or subsystem";
        case RESP_NO_AGDSP:
            return "no AG-DSP in the system";
        default:
            return "Unknown error";
    }
}

int VexilserverRequest::wait_simple_response(int timeout) {
    uint8_t buf[kResponseBufferSize] = {};
    size_t len = 0;
    const uint8_t* rest = nullptr;
    if (receive_answer(buf, len, timeout) != 0 ||
        judge_answer("wait_simple_response", buf, len, rest) != 0) {
        return -1;
    }
    printf("set success\n");
    return 0;
}

int VexilserverRequest::connect_and_send(const char* line, size_t len) {
    if (prepare_conn() != 0) {
        TARN_LOG_ERRNO("%s: fail to connect vexilserver", "do_request");
        return -1;
    }
    if (send_req(line, len) != 0) {
        report_error(SEND_ERROR);
        return -1;
    }
    return 0;
}

int VexilserverRequest::receive_answer(uint8_t (&buf)[kResponseBufferSize], size_t& len,
                                       int timeout) {
    len = sizeof(buf);
    if (wait_response(buf, len, timeout) != 0) {
        report_error(RECV_ERROR);
        return -1;
    }
    return 0;
}

int VexilserverRequest::judge_answer(const char* func, const uint8_t* data, size_t len,
                                     const uint8_t*& rest) {
    ResponseErrorCode code = RESP_SUCCESS;
    if (parse_result(data, len, code, rest) != 0) {
        android::String8 printable(reinterpret_cast<const char*>(data), len);
        fprintf(stderr, "Invalid response: %s\n", printable.string());
        TARN_LOG_ERRNO("%s: invalid response: %s", func, printable.string());
        return -1;
    }
    if (code != RESP_SUCCESS) {
        const char* text = resp_code_to_string(code);
        fprintf(stderr, "Error: %d(%s)\n", code, text);
        TARN_LOG_ERRNO("%s: error: %d(%s)", func, code, text);
        return -1;
    }
    return 0;
}
