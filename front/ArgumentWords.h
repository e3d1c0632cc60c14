#pragma once

#include <string>
#include <vector>

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

// A view of the four word lists the classifier works with.
struct ArgumentWords {
    const std::vector<std::string>& subsys;
    const std::vector<std::string>& storage;
    const std::vector<std::string>& arg;
    const std::vector<std::string>& logdest;
};

template <size_t N>
std::vector<std::string> word_list(const char* const (&words)[N]) {
    return std::vector<std::string>(words, words + N);
}

}  // namespace tarn
