#pragma once

#include <QObject>
#include <memory>

#include "platform/Scheduler.h"

namespace vantle {

/// The main run loop as Qt's event loop of the thread that makes this.
class QtScheduler final : public Scheduler {
public:
    Instant now() const override;
    void async(Work work) override;
    TimerPointer after(Seconds delay, Work work) override;
    TimerPointer every(Seconds interval, Work work) override;

private:
    enum class Repeats { no, yes };
    TimerPointer start(Seconds interval, Repeats repeats, Work work);

    class RunningTimer;
    QObject context_;  ///< What is posted to it goes with it.
};

}  // namespace vantle
