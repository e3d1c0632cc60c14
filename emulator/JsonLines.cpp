#include "JsonLines.h"

namespace tarnmodem {

std::string to_json_line(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

JsonLineFile::~JsonLineFile() {
    if (file_ != nullptr) fclose(file_);
}

bool JsonLineFile::open(const std::string& path) {
    file_ = fopen(path.c_str(), "ae");
    return file_ != nullptr;
}

void JsonLineFile::write(const Json& value) {
    std::string line = to_json_line(value);
    line += '\n';
    std::lock_guard<std::mutex> lock(mutex_);
    if (file_ == nullptr) return;
    fwrite(line.data(), 1, line.size(), file_);
    fflush(file_);
}

}  // namespace tarnmodem
