#include "platform/freedesktop/UnixSignals.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <utility>

namespace vantle {
namespace {

std::atomic<int> signalEvent = -1;  // an eventfd
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may use nothing else");

void recordSignal(int) {
    const int error = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(signalEvent, &one, sizeof one);
    errno = error;
}

// Unlike SIG_IGN, a handler is not inherited by the programs that this one starts.
void ignore(int) {}

/// Installs the handler unless the signal is ignored. Returns the previous action.
struct sigaction handle(int number, void (*handler)(int)) {
    struct sigaction previous {};
    sigaction(number, nullptr, &previous);
    if (previous.sa_handler == SIG_IGN) return previous;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
    return previous;
}

}  // namespace

UnixSignals::UnixSignals(std::function<void()> onEnd) {
    signalEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    notifier_ = std::make_unique<QSocketNotifier>(signalEvent.load(), QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [onEnd = std::move(onEnd)] {
            std::uint64_t count = 0;
            [[maybe_unused]] const auto drained = read(signalEvent, &count, sizeof count);
            onEnd();
        });
    for (std::size_t i = 0; i < numbers.size(); ++i)
        previous_[i] = handle(numbers[i], numbers[i] == SIGPIPE ? ignore : recordSignal);
}

UnixSignals::~UnixSignals() {
    for (std::size_t i = 0; i < numbers.size(); ++i) sigaction(numbers[i], &previous_[i], nullptr);
    notifier_.reset();
    close(signalEvent.exchange(-1));
}

}  // namespace vantle
