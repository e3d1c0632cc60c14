#include "server/VexilServerExchange.h"

#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <utils/String8.h>

#include "service/TarnLog.h"

// One exchange with the server: connecting, sending, and judging and reporting the answer. The
// connection class only moves and splits bytes; every verdict on an answer is made here.

namespace {

// The word after "OK" must follow one blank and hold at least two bytes.
constexpr size_t kMinStateRestLen = 3;

// Reads one answer into buf, reports a missing one. len: the answer's length on return.
int receive_answer(VexilserverRequest& conn, uint8_t (&buf)[kResponseBufferSize], size_t& len,
                   int timeout) {
    len = sizeof(buf);
    if (conn.wait_response(buf, len, timeout) != 0) {
        VexilserverRequest::report_error(VexilserverRequest::RECV_ERROR);
        return -1;
    }
    return 0;
}

// Splits the answer into its code and the rest; reports an answer that is neither "OK" nor
// "ERROR <n>", and one that carries an error code. func names the judging function in the log.
int judge_result(VexilserverRequest& conn, const char* func, const uint8_t* data, size_t len,
                 const uint8_t*& rest) {
    VexilserverRequest::ResponseErrorCode code = VexilserverRequest::RESP_SUCCESS;
    if (conn.parse_result(data, len, code, rest) != 0) {
        android::String8 printable(reinterpret_cast<const char*>(data), len);
        fprintf(stderr, "Invalid response: %s\n", printable.string());
        TARN_LOG_ERRNO("%s: invalid response: %s", func, printable.string());
        return -1;
    }
    if (code != VexilserverRequest::RESP_SUCCESS) {
        const char* text = VexilserverRequest::resp_code_to_string(code);
        fprintf(stderr, "Error: %d(%s)\n", code, text);
        TARN_LOG_ERRNO("%s: error: %d(%s)", func, code, text);
        return -1;
    }
    return 0;
}

const tarn::StateWord* find_state_word(const uint8_t* word, size_t len,
                                       const tarn::StateWord* accepted, size_t count) {
    for (size_t i = 0; i < count; ++i) {
        if (strlen(accepted[i].reply) == len && memcmp(accepted[i].reply, word, len) == 0) {
            return &accepted[i];
        }
    }
    return nullptr;
}

}  // namespace

int VexilserverRequest::wait_simple_response(int timeout) {
    uint8_t buf[kResponseBufferSize] = {};
    size_t len = 0;
    const uint8_t* rest = nullptr;
    if (receive_answer(*this, buf, len, timeout) != 0 ||
        judge_result(*this, "wait_simple_response", buf, len, rest) != 0) {
        return -1;
    }
    printf("set success\n");
    return 0;
}

namespace tarn {

int connect_and_send(VexilserverRequest& conn, const char* line, size_t len) {
    if (conn.prepare_conn() != 0) {
        TARN_LOG_ERRNO("%s: fail to connect vexilserver", "do_request");
        return -1;
    }
    if (conn.send_req(line, len) != 0) {
        VexilserverRequest::report_error(VexilserverRequest::SEND_ERROR);
        return -1;
    }
    return 0;
}

int parse_state_query_result(VexilserverRequest& conn, const StateWord* accepted, size_t count) {
    static const char kFunc[] = "parse_query_result";
    uint8_t buf[kResponseBufferSize] = {};
    size_t len = 0;
    const uint8_t* rest = nullptr;
    if (receive_answer(conn, buf, len, kQueryResponseTimeoutMs) != 0 ||
        judge_result(conn, kFunc, buf, len, rest) != 0) {
        return -1;
    }
    size_t rest_len = len - static_cast<size_t>(rest - buf);
    if (rest_len < kMinStateRestLen || rest[0] != ' ') {
        android::String8 response(reinterpret_cast<const char*>(buf), len);
        fprintf(stderr, "Invalid state response: %s\n", response.string());
        TARN_LOG_ERRNO("%s: invalid state response: %s", kFunc, response.string());
        return -1;
    }
    const uint8_t* word = rest + 1;
    size_t word_len = rest_len - 1;
    const StateWord* state = find_state_word(word, word_len, accepted, count);
    if (state == nullptr) {
        android::String8 printable(reinterpret_cast<const char*>(word), word_len);
        fprintf(stderr, "state query return: %s error\n", printable.string());
        TARN_LOG_ERRNO("%s: state query return: %s error", kFunc, printable.string());
        return -1;
    }
    printf("%s\n", state->printed);
    return 0;
}

}  // namespace tarn
