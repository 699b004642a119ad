#pragma once

#include <string>

#include "capture/Capture.h"

namespace vantle {

/// A capture of a picture that is not on any disk: `pixels` large, a little landscape of its own
/// colours. An empty size leaves the capture without a picture, as a file that cannot be read does.
CapturePointer capture(const std::string& name, Size pixels = {}, Date date = {});

/// The same for a recording.
CapturePointer recording(const std::string& name, double seconds, Size pixels = {}, Date date = {});

}  // namespace vantle
