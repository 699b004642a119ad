#pragma once

#include <functional>
#include <string>

#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"

namespace vantle {

/// When to look for updates without being asked: once a day, for the first time in the second
/// launch, and not at all where the settings file says so (`automaticUpdateChecks=false`).
/// A launch of less than a minute does not count. Main thread only.
class UpdateSchedule {
public:
    static constexpr auto isAutomatic = "automaticUpdateChecks";
    /// In seconds since 1970; of the first launch, while there was none.
    static constexpr auto lastCheck = "lastUpdateCheck";

    /// Begins. What it borrows outlives it.
    UpdateSchedule(Scheduler& scheduler, const WallClock& clock, UserDefaults& defaults,
                   std::function<void()> check);
    ~UpdateSchedule();

    /// To be told of every check.
    void noteCheck();

private:
    void wake();
    void wakeAfter(Seconds delay);
    Seconds untilNextCheck() const;

    Scheduler& scheduler_;
    const WallClock& clock_;
    UserDefaults& defaults_;
    const std::function<void()> check_;
    TimerPointer timer_;
};

}  // namespace vantle
