#include "panel/DebugSnapshots.h"

#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Seconds delay{1.2};
constexpr Seconds interval{1};

}  // namespace

std::shared_ptr<DebugSnapshots> DebugSnapshots::create(Scheduler& scheduler) {
    return std::shared_ptr<DebugSnapshots>(new DebugSnapshots(scheduler));
}

void DebugSnapshots::schedule(const std::string& path) {
    ++pending_;
    scheduler_.after(delay,
                     weakly(shared_from_this(), [path](auto& self) { self.timerFired(path); }));
}

void DebugSnapshots::timerFired(const std::string& path) {
    const bool isLast = --pending_ == 0;
    // Each picture draws a whole card. If many captures come at once, only the last picture is of
    // interest, and drawing them all would block the program.
    if (!isLast && last_ && scheduler_.now() - *last_ < interval) return;
    onDue(path);
    last_ = scheduler_.now();
}

}  // namespace vantle
