#include "host/platform/src/binder/wire.h"

#include <errno.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

namespace host::binder {

namespace {

bool send_all(int fd, const uint8_t* data, size_t size) {
    while (size > 0) {
        ssize_t sent = send(fd, data, size, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) return false;
        data += sent;
        size -= static_cast<size_t>(sent);
    }
    return true;
}

bool read_all(int fd, uint8_t* data, size_t size) {
    while (size > 0) {
        ssize_t got = read(fd, data, size);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        data += got;
        size -= static_cast<size_t>(got);
    }
    return true;
}

void put_word(uint8_t* where, uint32_t value) {
    memcpy(where, &value, sizeof(value));
}

uint32_t get_word(const uint8_t* where) {
    uint32_t value;
    memcpy(&value, where, sizeof(value));
    return value;
}

// The frame's length word is within the limits.
bool length_ok(uint32_t length) {
    return length >= kFrameWordsBytes && length <= kMaxFrameBytes;
}

}  // namespace

bool send_frame(int fd, uint32_t word1, uint32_t word2, const std::vector<uint8_t>& payload) {
    if (payload.size() > kMaxParcelBytes) return false;
    std::vector<uint8_t> frame(4 + kFrameWordsBytes + payload.size());
    put_word(frame.data(), static_cast<uint32_t>(kFrameWordsBytes + payload.size()));
    put_word(frame.data() + 4, word1);
    put_word(frame.data() + 8, word2);
    if (!payload.empty()) memcpy(frame.data() + 12, payload.data(), payload.size());
    return send_all(fd, frame.data(), frame.size());
}

FrameResult read_frame(int fd, Frame* frame) {
    uint8_t head[4 + kFrameWordsBytes];
    if (!read_all(fd, head, 4)) return FrameResult::CLOSED;
    uint32_t length = get_word(head);
    if (!length_ok(length)) return FrameResult::MALFORMED;
    if (!read_all(fd, head + 4, kFrameWordsBytes)) return FrameResult::CLOSED;
    frame->word1 = get_word(head + 4);
    frame->word2 = get_word(head + 8);
    frame->payload.resize(length - kFrameWordsBytes);
    if (!read_all(fd, frame->payload.data(), frame->payload.size())) return FrameResult::CLOSED;
    return FrameResult::OK;
}

FrameResult take_frame(const uint8_t*& data, size_t& size, Frame* frame) {
    if (size < 4) return FrameResult::CLOSED;
    uint32_t length = get_word(data);
    if (!length_ok(length)) return FrameResult::MALFORMED;
    if (size - 4 < length) return FrameResult::CLOSED;
    frame->word1 = get_word(data + 4);
    frame->word2 = get_word(data + 8);
    frame->payload.assign(data + 4 + kFrameWordsBytes, data + 4 + length);
    data += 4 + length;
    size -= 4 + length;
    return FrameResult::OK;
}

}  // namespace host::binder
