#pragma once

#include <signal.h>

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace vantle {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a call on the main
/// thread while it lives; one for the process. Those that the parent had switched off (as nohup
/// does) stay off. Meanwhile SIGPIPE does nothing: a write that nobody reads fails instead.
/// Programs that this one starts get all signals as usual.
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
