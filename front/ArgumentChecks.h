#pragma once

#include <string>

#include "front/Options.h"

namespace tarn {

// The complaints about a command's arguments, shared by the classifier and every handler. Each
// goes to stderr; the handler either builds no request (report_...) or ends the process with
// status 0 at once (end_...). Which one a command takes is part of its behaviour.

// "Missing argument." alone.
void complain_missing_argument();

// "Missing argument." and the error usage text; the caller builds no request.
void report_missing_argument();

// "Missing argument." and the error usage text, then the process ends with status 0.
[[noreturn]] void end_missing_argument();

// "Error argument." and the error usage text, then the process ends with status 0.
[[noreturn]] void end_error_argument();

// The first subsystem word; later words are ignored. None at all: end_missing_argument().
const std::string& require_subsystem(const Options& opts);

// The one subsystem word; none or more than one: end_error_argument().
const std::string& require_one_subsystem(const Options& opts);

// True when a subsystem word was given; otherwise report_missing_argument() and false.
bool has_subsystem(const Options& opts);

}  // namespace tarn
