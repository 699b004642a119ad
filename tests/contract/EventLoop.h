#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <functional>

namespace vantle {

/// Whether the condition comes true within a generous limit, while events are handled.
[[nodiscard]] inline bool runUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer limit(20'000);
    while (!condition() && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

}  // namespace vantle
