#pragma once

#include <signal.h>

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace vantle {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a call of `onEnd` on
/// the main thread, as long as this object exists; one object per process. Signals that the parent
/// has switched off (as nohup does) stay off. SIGPIPE is ignored meanwhile, so a write without a
/// reader fails instead. Programs that this one starts receive all signals as usual.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onEnd);
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

private:
    static constexpr std::array numbers = {SIGTERM, SIGINT, SIGHUP, SIGPIPE};

    std::array<struct sigaction, numbers.size()> previous_{};
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
