#include "updateflow/UpdateSchedule.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle {
namespace {

constexpr Seconds interval = std::chrono::hours(24);
// Nothing is checked while the desktop is still starting.
constexpr Seconds startupDelay = std::chrono::minutes(1);
// The timer stops while the machine sleeps, so the date is compared at least this often.
constexpr Seconds maximumWait = std::chrono::hours(1);

Seconds sinceEpoch(const WallClock& clock) {
    return clock.now().time_since_epoch();
}

}  // namespace

UpdateSchedule::UpdateSchedule(Scheduler& scheduler, const WallClock& clock, UserDefaults& defaults,
                               std::function<void()> check)
    : scheduler_(scheduler), clock_(clock), defaults_(defaults), check_(std::move(check)) {
    defaults_.registerDefaults({{isAutomatic, true}});
    if (defaults_.boolean(isAutomatic)) wakeAfter(startupDelay);
}

UpdateSchedule::~UpdateSchedule() {
    if (timer_) timer_->cancel();
}

void UpdateSchedule::recordCheck() {
    defaults_.set(lastCheck, std::floor(sinceEpoch(clock_).count()));
}

void UpdateSchedule::wake() {
    const bool isFirstLaunch = defaults_.number(lastCheck) <= 0;
    if (isFirstLaunch) return recordCheck();
    const bool isDue = untilNextCheck() <= Seconds(0);
    if (isDue) check_();
    // The check may have been skipped, because the last result can stay on the screen for days.
    wakeAfter(isDue ? maximumWait : std::clamp(untilNextCheck(), startupDelay, maximumWait));
}

void UpdateSchedule::wakeAfter(Seconds delay) {
    timer_ = scheduler_.after(delay, [this] { wake(); });
}

Seconds UpdateSchedule::untilNextCheck() const {
    const Seconds passed = sinceEpoch(clock_) - Seconds(defaults_.number(lastCheck));
    // The clock was set back, so the time since the last check is unknown.
    if (passed < Seconds(0)) return Seconds(0);
    return interval - passed;
}

}  // namespace vantle
