#include "capture/OnePerTurn.h"

#include <deque>
#include <mutex>
#include <utility>

namespace vantle {

struct OnePerTurn::Waiting {
    explicit Waiting(Scheduler& scheduler) : main(scheduler) {}

    Scheduler& main;
    std::mutex mutex;
    std::deque<Work> pieces;  ///< The first one may be running.

    static void takeTurn(const std::shared_ptr<Waiting>& self) {
        self->main.async([self] {
            Work piece;
            {
                const std::lock_guard lock(self->mutex);
                piece = std::move(self->pieces.front());
            }
            piece();
            const std::lock_guard lock(self->mutex);
            self->pieces.pop_front();
            if (!self->pieces.empty()) takeTurn(self);
        });
    }
};

OnePerTurn::OnePerTurn(Scheduler& main) : waiting_(std::make_shared<Waiting>(main)) {}

void OnePerTurn::add(Work work) {
    const std::lock_guard lock(waiting_->mutex);
    waiting_->pieces.push_back(std::move(work));
    if (waiting_->pieces.size() == 1) Waiting::takeTurn(waiting_);
}

}  // namespace vantle
