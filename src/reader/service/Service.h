#pragma once

#include <memory>

#include "reader/recognition/Recognizer.h"

namespace vantle::reader {

/// Reads one picture from `decoder::decoderSocket` with `recognizer`, which has loaded everything
/// that it needs, and sends its text back. Gives up all rights before it gets the picture. Reports
/// that reading is unavailable if `recognizer` is null. Returns the exit status.
int runService(std::unique_ptr<Recognizer> recognizer);

}  // namespace vantle::reader
