#pragma once

#include <string>

#include "front/ArgumentWords.h"
#include "front/Options.h"

namespace tarn {

// Reads the arguments that follow a known command word (argv[1]) into opts. Returns 0 when the
// command's handler may run, or 1 after writing the complaint to stderr.
int classify_arguments(int argc, char** argv, const ArgumentWords& words, Options& opts);

// True when the word is empty or holds only the digits 0 to 9.
bool is_number(const std::string& word);

}  // namespace tarn
