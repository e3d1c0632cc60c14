// Helpers shared by the front-end tests: golden texts and argument vectors.
#pragma once

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tarn::test {

inline std::string read_golden(const std::string& name) {
    std::ifstream in(std::string(GOLDEN_DIR) + "/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// What the C library's formatter writes for a text used as the format itself, as the tool writes
// its usage texts. The formatters differ on invalid conversions: bionic renders the "%)" of
// "percentage(%)." as ")", glibc keeps "%)".
inline std::string formatted(const std::string& format) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int size = std::snprintf(nullptr, 0, format.c_str());
    std::string out(size > 0 ? size : 0, '\0');
    std::snprintf(out.data(), out.size() + 1, format.c_str());
#pragma GCC diagnostic pop
    return out;
}

// The golden files hold the usage texts as written; the expected bytes are the platform's
// rendering of them.
inline const std::string& error_usage_text() {
    static const std::string text = formatted(read_golden("usage_error.txt"));
    return text;
}

inline const std::string& manual_text() {
    static const std::string text = formatted(read_golden("usage_manual.txt"));
    return text;
}

// A command line as the process receives it: the tool's name, then the given words.
class CommandLine {
  public:
    explicit CommandLine(const std::vector<std::string>& words) : storage_{"vexilctl"} {
        storage_.insert(storage_.end(), words.begin(), words.end());
        for (std::string& word : storage_) pointers_.push_back(word.data());
        pointers_.push_back(nullptr);
    }
    int argc() const { return static_cast<int>(storage_.size()); }
    char** argv() { return pointers_.data(); }

  private:
    std::vector<std::string> storage_;
    std::vector<char*> pointers_;
};

}  // namespace tarn::test
