#pragma once

#include <cstddef>

namespace tarn {

// The words the classifier recognises, one list per kind. A word found in an earlier kind is
// never looked up in a later one.
inline constexpr const char* kSubsysWords[] = {"modem", "wcn",    "gnss",  "pmsh",
                                               "pm",    "sensor", "agdsp", "all"};
inline constexpr const char* kStorageWords[] = {"storage", "external", "data", "internal"};
inline constexpr const char* kArgWords[] = {"enable",
                                            "disable",
                                            "none",
                                            "lz4",
                                            "strace",
                                            "debuggerd",
                                            "fdinfo",
                                            "debug",
                                            "user",
                                            "avgratio",
                                            "lograte",
                                            "bufnum",
                                            "bufsize",
                                            "logcommitthreshold",
                                            "bufcommitthreshold"};
inline constexpr const char* kLogdestWords[] = {"off", "stor", "wifi", "usb"};

// One of those lists, as a view of its constant array.
class WordList {
  public:
    template <size_t N>
    constexpr WordList(const char* const (&words)[N])  // NOLINT(google-explicit-constructor)
        : words_(words), count_(N) {}

    // True when the list holds the word (same length, same bytes).
    bool contains(const char* word) const;

  private:
    const char* const* words_;
    size_t count_;
};

// The four word lists the classifier works with.
struct ArgumentWords {
    WordList subsys;
    WordList storage;
    WordList arg;
    WordList logdest;
};

}  // namespace tarn
