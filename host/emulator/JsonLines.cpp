#include "host/emulator/JsonLines.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tarnmodem {

std::string to_json_line(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

JsonLineFile::~JsonLineFile() {
    if (fd_ >= 0) close(fd_);
}

bool JsonLineFile::open(const std::string& path) {
    fd_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    return fd_ >= 0;
}

void JsonLineFile::write(const Json& value) {
    write_text(to_json_line(value) + '\n');
}

void JsonLineFile::write_text(const std::string& lines) {
    std::lock_guard<std::mutex> lock(mutex_);
    if (fd_ < 0) return;
    // One write of an appending file: lines of the daemon's processes never interleave.
    size_t done = 0;
    while (done < lines.size()) {
        ssize_t n = ::write(fd_, lines.data() + done, lines.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return;
        done += static_cast<size_t>(n);
    }
}

}  // namespace tarnmodem
