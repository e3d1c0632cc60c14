// Helpers shared by the front-end tests: golden texts and argument vectors.
#pragma once

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

inline const std::string& error_usage_text() {
    static const std::string text = read_golden("usage_error.txt");
    return text;
}

inline const std::string& manual_text() {
    static const std::string text = read_golden("usage_manual.txt");
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
