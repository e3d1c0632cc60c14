// Host stand-in for the part of android::String8 this project uses.
#pragma once

#include <stddef.h>

#include <string>

namespace android {

class String8 {
  public:
    String8() = default;
    explicit String8(const char* o) : mString(o == nullptr ? "" : o) {}
    String8(const char* o, size_t numChars)
        : mString(o == nullptr ? std::string() : std::string(o, numChars)) {}

    const char* string() const { return mString.c_str(); }
    const char* c_str() const { return mString.c_str(); }
    size_t size() const { return mString.size(); }
    size_t length() const { return mString.size(); }

  private:
    std::string mString;
};

}  // namespace android
