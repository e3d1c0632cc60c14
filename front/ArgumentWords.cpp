#include "front/ArgumentWords.h"

#include <algorithm>
#include <cstring>

namespace tarn {

bool WordList::contains(const char* word) const {
    return std::any_of(words_, words_ + count_,
                       [word](const char* listed) { return strcmp(word, listed) == 0; });
}

}  // namespace tarn
