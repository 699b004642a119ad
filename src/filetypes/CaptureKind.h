#pragma once

namespace vantle {

/// The kind of a capture: a still image or a recording.
enum class CaptureKind { image, video };

}  // namespace vantle
