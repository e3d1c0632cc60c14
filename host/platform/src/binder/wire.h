// Framing of the host binder transport on a local stream socket.
//
// Every message is one frame: uint32 length of what follows, uint32 word1, uint32 word2, then
// the parcel bytes. A request carries (transaction code, flags); a reply carries (transport
// status, 0) and, when the status is STATUS_OK, the reply parcel. Oneway requests get no reply.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include <vector>

#include "host/platform/src/binder/parcel_impl.h"

namespace host::binder {

// Asks a service for its interface descriptor; the reply parcel holds it as a string.
constexpr uint32_t kInterfaceTransaction =
    (uint32_t{'_'} << 24) | (uint32_t{'N'} << 16) | (uint32_t{'T'} << 8) | uint32_t{'F'};

constexpr size_t kFrameWordsBytes = 8;
constexpr size_t kMaxFrameBytes = kFrameWordsBytes + kMaxParcelBytes;

struct Frame {
    uint32_t word1 = 0;
    uint32_t word2 = 0;
    std::vector<uint8_t> payload;
};

enum class FrameResult {
    OK,
    CLOSED,     // end of stream or a transport error
    MALFORMED,  // a length outside the limits
};

// Sends one frame; false when the peer is gone. Never raises SIGPIPE.
bool send_frame(int fd, uint32_t word1, uint32_t word2, const std::vector<uint8_t>& payload);

FrameResult read_frame(int fd, Frame* frame);

// Takes one frame off the front of a byte stream held in memory, as read_frame reads it from a
// socket: CLOSED when the bytes end inside the frame. data and size move past the frame.
FrameResult take_frame(const uint8_t*& data, size_t& size, Frame* frame);

}  // namespace host::binder
