#pragma once

namespace vantle {

/// Whether a capture is a still image or a recording.
enum class CaptureKind { image, video };

}  // namespace vantle
