#pragma once

#include <string>

#include "front/Options.h"

namespace tarn {

// Argument checks shared by the storage, overwrite and no-delete handlers. The first two end the
// process with status 0 after the complaint and the usage text; refuse_arguments() only writes
// them, and its caller builds no request.

// The first subsystem word; later words are ignored. None at all: "Missing argument.".
const std::string& require_subsystem(const Options& opts);

// The one subsystem word; none or more than one: "Error argument.".
const std::string& require_one_subsystem(const Options& opts);

// "Missing argument." and the usage text on stderr.
void refuse_arguments();

}  // namespace tarn
