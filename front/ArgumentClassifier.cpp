#include "front/ArgumentClassifier.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "front/ArgumentChecks.h"

namespace tarn {
namespace {

bool is_one_of(const char* word, std::initializer_list<const char*> names) {
    return std::any_of(names.begin(), names.end(),
                       [word](const char* name) { return strcmp(word, name) == 0; });
}

// Every word must be a recognised word or a number; a log destination ends the check.
int classify_words(int argc, char** argv, const ArgumentWords& words, Options& opts) {
    for (int i = 2; i < argc; ++i) {
        const char* word = argv[i];
        if (words.subsys.contains(word)) {
            opts.subsystems.emplace_back(word);
        } else if (words.storage.contains(word)) {
            opts.storage = word;
        } else if (words.arg.contains(word)) {
            opts.cmd = word;
        } else if (words.logdest.contains(word)) {
            opts.logdest = word;
            break;  // whatever follows the destination is left to the handler, unchecked
        } else if (is_number(word)) {
            // Saturates like atol does here; an empty word gives 0.
            opts.number = std::strtoll(word, nullptr, 10);
        } else {
            report_missing_argument();
            return 1;
        }
    }
    return 0;
}

}  // namespace

bool is_number(const std::string& word) {
    return word.find_first_not_of("0123456789") == std::string::npos;
}

int classify_arguments(int argc, char** argv, const ArgumentWords& words, Options& opts) {
    if (argc <= 2) return 0;  // a command word alone always reaches its handler
    const char* command = argv[1];

    // These commands take their arguments by position.
    if (is_one_of(command, {"setlogpath", "getmipilog", "setminidump", "clear"})) {
        opts.cmd = argv[2];
        return 0;
    }
    if (strcmp(command, "setmipilog") == 0) {
        if (argc != 5) {
            complain_missing_argument();  // the one refusal without the usage text
            return 1;
        }
        opts.cmd = argv[2];
        opts.param1 = argv[3];
        opts.param2 = argv[4];
        return 0;
    }
    if (is_one_of(command, {"setvexil", "setcpreset"})) {
        if (argc != 4 || !words.subsys.contains(argv[2])) {
            report_missing_argument();
            return 1;
        }
        opts.subsystems.emplace_back(argv[2]);
        opts.cmd = argv[3];
        return 0;
    }
    return classify_words(argc, argv, words, opts);
}

}  // namespace tarn
