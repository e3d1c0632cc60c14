#include "server/VexilServerQueryStateRequests.h"

#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <utils/String8.h>

#include <iterator>
#include <string_view>

#include "front/RequestManager.h"
#include "front/TarnLog.h"

namespace tarn {

namespace {

constexpr std::string_view kLogStateLine = "GET_LOG_STATE\n";
constexpr std::string_view kLog2PcStateLine = "GET_LOG_TO_PC_STATE\n";

constexpr StateWord kLogStates[] = {{"ON", "on"}, {"OFF", "off"}, {"EVENT", "event"}};
constexpr StateWord kLog2PcStates[] = {{"ON", "on"}, {"OFF", "off"}};

// The word after "OK" must follow one blank and hold at least two bytes.
constexpr size_t kMinStateRestLen = 3;

const StateWord* find_state_word(const uint8_t* word, size_t len, const StateWord* accepted,
                                 size_t count) {
    for (size_t i = 0; i < count; ++i) {
        if (strlen(accepted[i].reply) == len && memcmp(accepted[i].reply, word, len) == 0) {
            return &accepted[i];
        }
    }
    return nullptr;
}

}  // namespace

std::shared_ptr<Request> RequestManager::proc_get_all_vexil_state() {
    TARN_LOG("%s: proc_get_all_vexil_state.\n", "proc_get_all_vexil_state");
    return std::make_shared<VexilServerQueryStateRequest>();
}

std::shared_ptr<Request> RequestManager::proc_get_vexil_to_pc_state() {
    TARN_LOG("%s: proc_get_vexil_to_pc_state.\n", "proc_get_vexil_to_pc_state");
    return std::make_shared<VexilServerLog2PcQueryStateRequest>();
}

int parse_state_query_result(VexilserverRequest& conn, const StateWord* accepted, size_t count) {
    static const char kFunc[] = "parse_query_result";
    uint8_t buf[kResponseBufferSize] = {};
    size_t len = 0;
    const uint8_t* rest = nullptr;
    if (conn.receive_answer(buf, len, kQueryResponseTimeoutMs) != 0 ||
        conn.judge_answer(kFunc, buf, len, rest) != 0) {
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

VexilServerQueryStateRequest::VexilServerQueryStateRequest() : VexilserverRequest(-1) {}

int VexilServerQueryStateRequest::do_request() {
    if (connect_and_send(kLogStateLine.data(), kLogStateLine.size()) != 0) {
        return -1;
    }
    return parse_query_result();
}

int VexilServerQueryStateRequest::parse_query_result() {
    return parse_state_query_result(*this, kLogStates, std::size(kLogStates));
}

VexilServerLog2PcQueryStateRequest::VexilServerLog2PcQueryStateRequest() : VexilserverRequest(-1) {}

int VexilServerLog2PcQueryStateRequest::do_request() {
    if (connect_and_send(kLog2PcStateLine.data(), kLog2PcStateLine.size()) != 0) {
        return -1;
    }
    return parse_query_result();
}

int VexilServerLog2PcQueryStateRequest::parse_query_result() {
    return parse_state_query_result(*this, kLog2PcStates, std::size(kLog2PcStates));
}

}  // namespace tarn
