#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <functional>

namespace vantle {

/// Handles events until the condition becomes true. Returns false if that takes longer than the
/// limit.
[[nodiscard]] inline bool runUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer limit(20'000);
    while (!condition() && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

}  // namespace vantle
