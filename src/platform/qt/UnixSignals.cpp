#include "platform/qt/UnixSignals.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <utility>

namespace vantle {
namespace {

constexpr std::array endingSignals = {SIGTERM, SIGINT, SIGHUP};
int arrived = -1;  // written by the handler, which may use little else

void note(int) {
    const int error = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(arrived, &one, sizeof one);
    errno = error;
}

void handle(int number, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
}

}  // namespace

UnixSignals::UnixSignals(std::function<void()> onEnd) {
    arrived = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    notifier_ = std::make_unique<QSocketNotifier>(arrived, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [onEnd = std::move(onEnd)] {
                         std::uint64_t count = 0;
                         [[maybe_unused]] const auto drained = read(arrived, &count, sizeof count);
                         onEnd();
                     });
    for (const int number : endingSignals) handle(number, note);
    handle(SIGPIPE, SIG_IGN);
}

UnixSignals::~UnixSignals() {
    for (const int number : endingSignals) handle(number, SIG_DFL);
    notifier_.reset();
    close(std::exchange(arrived, -1));
}

}  // namespace vantle
