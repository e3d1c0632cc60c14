#pragma once

#include <stddef.h>
#include <stdint.h>

// How long a set request waits for the daemon's answer; switching a log can take minutes.
constexpr int kSetResponseTimeoutMs = 420000;
// How long a state query waits for the daemon's answer.
constexpr int kQueryResponseTimeoutMs = 3000;
// Size of the buffer a response is read into; longer responses are cut.
constexpr size_t kResponseBufferSize = 32;

// Client side of the daemon's "vexilserver" command socket: one connection, one request line,
// one response line. The connection is closed when the object goes away.
class VexilserverRequest {
  public:
    // What failed on the client side.
    enum RequestError {
        CONNECT_ERROR = 1,
        SEND_ERROR = 2,
        RECV_ERROR = 3,
    };

    // The number the server puts after "ERROR ".
    enum ResponseErrorCode {
        RESP_SUCCESS = 0,
        RESP_UNKNOWN_REQUEST = 1,
        RESP_INVALID_PARAM = 2,
        RESP_EXEC_FAILURE = 3,
        RESP_TRANSACTION_ON = 4,
        RESP_NOT_SAVED_TO_SD = 5,
        RESP_SLEEP_LOG_UNSUPPORTED = 6,
        RESP_RINGBUF_UNSUPPORTED = 7,
        RESP_CP_ASSERTED = 8,
        RESP_UNKNOWN_SUBSYS = 9,
        RESP_NO_AGDSP = 10,
        RESP_MAX = 11,
    };

    explicit VexilserverRequest(int fd);
    virtual ~VexilserverRequest();
    VexilserverRequest(const VexilserverRequest&) = delete;
    VexilserverRequest& operator=(const VexilserverRequest&) = delete;

    // Connects to the server; reports a refusal and returns -1.
    int prepare_conn();
    // Writes the request with one write; -1 unless all of it went out.
    int send_req(const void* req, size_t len);
    // Waits up to timeout ms and reads once into buf. len is the capacity on entry and the
    // response length, without one trailing newline, on return. -1 on time-out, error or EOF.
    int wait_response(void* buf, size_t& len, int timeout);
    // Prints and logs the client-side failure.
    static void report_error(RequestError e);
    // Splits "OK..." or "ERROR <n>..." (n up to RESP_MAX) into its code and the bytes after it.
    int parse_result(const uint8_t* data, size_t len, ResponseErrorCode& code, const uint8_t*& rest);
    static const char* resp_code_to_string(ResponseErrorCode code);
    // Waits for the answer to a set request and prints the outcome.
    int wait_simple_response(int timeout);

    // One exchange, as the four commands make it; every failure is reported here.
    // Connects and writes one request line.
    int connect_and_send(const char* line, size_t len);
    // Reads one answer into buf (len: its length on return); reports a missing one.
    int receive_answer(uint8_t (&buf)[kResponseBufferSize], size_t& len, int timeout);
    // Splits the answer into its code and the rest; reports an answer that is neither "OK" nor
    // "ERROR <n>", and one that carries an error code. func names the judging function in the log.
    int judge_answer(const char* func, const uint8_t* data, size_t len, const uint8_t*& rest);

  private:
    int fd_;
};

// Reads the leading decimal digits of data. Stops at the first non-digit; fails when there is
// no digit or when the value reached so far is exactly 2^32 - 1 before a further digit (any other
// overflow wraps). value is updated digit by digit; consumed is the digit count.
int parse_number(const unsigned char* data, size_t len, uint32_t& value, size_t& consumed);
