#pragma once

#include <QObject>
#include <QTimer>
#include <compare>
#include <cstdint>
#include <map>
#include <memory>

#include "platform/Scheduler.h"

namespace vantle {

/// The main run loop: Qt's event loop on the thread that constructs this. All waiting work shares
/// one system timer, which runs only while work is waiting.
class QtScheduler final : public Scheduler {
public:
    QtScheduler();
    ~QtScheduler() override;

    Instant now() const override;
    void async(Work work) override;
    TimerPointer after(Seconds delay, Work work) override;
    TimerPointer every(Seconds interval, Work work) override;

private:
    class WaitingWork;
    using WaitingWorkPointer = std::shared_ptr<WaitingWork>;

    struct Due {
        Instant at;
        std::uint64_t order;
        friend auto operator<=>(const Due&, const Due&) = default;
    };

    Due add(Instant at, WaitingWorkPointer work);
    void remove(const Due& due);

    /// Posts a turn that runs the work that is due by then and was scheduled before this call.
    void postTurn();
    void runDue(std::uint64_t end);
    void arm();

    std::map<Due, WaitingWorkPointer> waiting_;
    std::uint64_t nextOrder_ = 0;
    QTimer alarm_;
    QObject context_;  ///< Work posted to it is dropped when it is destroyed.
};

}  // namespace vantle
