#pragma once

#include <functional>
#include <string>

#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"

namespace vantle {

/// Decides when to look for updates without a request by the user: once a day, for the first time
/// in the second launch, and never if the settings file contains `automaticUpdateChecks=false`. A
/// launch of less than a minute does not count. Main thread only.
class UpdateSchedule {
public:
    static constexpr auto isAutomatic = "automaticUpdateChecks";
    /// The time of the last check in seconds since 1970; the time of the first launch before any
    /// check.
    static constexpr auto lastCheck = "lastUpdateCheck";

    /// Starts the schedule. Everything borrowed must outlive this object.
    UpdateSchedule(Scheduler& scheduler, const WallClock& clock, UserDefaults& defaults,
                   std::function<void()> check);
    ~UpdateSchedule();

    /// Must be called for every check.
    void recordCheck();

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
