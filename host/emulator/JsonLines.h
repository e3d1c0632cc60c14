// Append-only files of one JSON object per line, shared by the journal and the log record.
#pragma once

#include <mutex>
#include <nlohmann/json.hpp>
#include <string>

namespace tarnmodem {

// Objects keep their keys in insertion order, so lines read as they were built.
using Json = nlohmann::ordered_json;

// One compact line of JSON without its line end. Bytes that are not UTF-8 (a client may send
// anything) come out as U+FFFD instead of making the encoder throw.
std::string to_json_line(const Json& value);

// Writes whole lines from any thread and any process that shares the file, each at once so that
// a reader sees it as soon as it was written. A writer without a file drops every line.
class JsonLineFile {
  public:
    JsonLineFile() = default;
    ~JsonLineFile();
    JsonLineFile(const JsonLineFile&) = delete;
    JsonLineFile& operator=(const JsonLineFile&) = delete;

    // Opens the file for appending; false with errno set when it cannot be opened.
    bool open(const std::string& path);
    void write(const Json& value);
    // Lines already encoded, each with its line end.
    void write_text(const std::string& lines);

  private:
    std::mutex mutex_;
    int fd_ = -1;
};

}  // namespace tarnmodem
