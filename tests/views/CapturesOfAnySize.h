#pragma once

#include <string>

#include "capture/Capture.h"

namespace vantle {

/// Returns a capture without a file, whose picture is a small landscape of `pixels` in its own
/// colours. With an empty size it has no picture, like a file that cannot be read.
CapturePointer capture(const std::string& name, Size pixels = {}, Date date = {});

/// Returns the same for a recording.
CapturePointer recording(const std::string& name, double seconds, Size pixels = {}, Date date = {});

}  // namespace vantle
