// The host log sink: __android_log_print sends each line as one datagram to the abstract local
// datagram socket named here (no leading NUL in the constant; the abstract address adds it).
// Payload: one byte priority, the tag, NUL, the text, NUL. Lines are silently dropped when
// nobody listens.
#pragma once

#include <cstddef>

inline constexpr char kHostLogSinkName[] = "vexil.hostlog";

// Upper bound of one payload; a longer text is cut so that the payload fits.
inline constexpr size_t kHostLogMaxPayload = 4096;
