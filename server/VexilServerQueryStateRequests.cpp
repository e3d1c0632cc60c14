#include "server/VexilServerQueryStateRequests.h"

#include <iterator>
#include <string_view>

#include "server/VexilServerExchange.h"

namespace tarn {

namespace {

constexpr std::string_view kLogStateLine = "GET_LOG_STATE\n";
constexpr std::string_view kLog2PcStateLine = "GET_LOG_TO_PC_STATE\n";

constexpr StateWord kLogStates[] = {{"ON", "on"}, {"OFF", "off"}, {"EVENT", "event"}};
constexpr StateWord kLog2PcStates[] = {{"ON", "on"}, {"OFF", "off"}};

}  // namespace

VexilServerQueryStateRequest::VexilServerQueryStateRequest() : VexilserverRequest(-1) {}

int VexilServerQueryStateRequest::do_request() {
    if (connect_and_send(*this, kLogStateLine.data(), kLogStateLine.size()) != 0) {
        return -1;
    }
    return parse_query_result();
}

int VexilServerQueryStateRequest::parse_query_result() {
    return parse_state_query_result(*this, kLogStates, std::size(kLogStates));
}

VexilServerLog2PcQueryStateRequest::VexilServerLog2PcQueryStateRequest() : VexilserverRequest(-1) {}

int VexilServerLog2PcQueryStateRequest::do_request() {
    if (connect_and_send(*this, kLog2PcStateLine.data(), kLog2PcStateLine.size()) != 0) {
        return -1;
    }
    return parse_query_result();
}

int VexilServerLog2PcQueryStateRequest::parse_query_result() {
    return parse_state_query_result(*this, kLog2PcStates, std::size(kLog2PcStates));
}

}  // namespace tarn
