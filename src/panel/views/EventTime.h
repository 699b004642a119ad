#pragma once

#include <QInputEvent>
#include <chrono>

#include "platform/Scheduler.h"

namespace vantle {

/// Returns when the input happened, on the window system's clock. The time of its arrival would
/// make the pauses of a busy program look like jumps of the hand.
inline Instant timeOf(const QInputEvent& event) {
    return Instant(std::chrono::milliseconds(event.timestamp()));
}

}  // namespace vantle
