#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace vantle {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a call on the main
/// thread while it lives; one for the process. SIGPIPE is ignored from then on: a write to what
/// nobody reads fails instead.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onEnd);
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
