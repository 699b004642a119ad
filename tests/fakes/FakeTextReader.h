#pragma once

#include <cerrno>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Scheduler.h"
#include "platform/TextReader.h"

namespace vantle::fakes {

/// Finds the texts that a test adds, within `duration`. Any other file cannot be read.
class FakeTextReader final : public TextReader {
public:
    static constexpr Seconds duration{2};

    explicit FakeTextReader(Scheduler& scheduler) : scheduler_(scheduler) {}

    void addText(const Url& file, std::string text) { texts_[file.path()] = std::move(text); }

    bool isAvailable() const override { return available; }

    std::unique_ptr<Reading> read(const Url& file, int page, Callbacks callbacks) override {
        requests.emplace_back(file, page);
        return std::make_unique<Scheduled>(scheduler_, outcome(file), callbacks);
    }

    bool available = true;
    std::vector<std::pair<Url, int>> requests;

private:
    Result<std::string> outcome(const Url& file) const {
        const auto found = texts_.find(file.path());
        if (!available) return Failure{ENOEXEC, "It cannot be started.", file.path()};
        if (found == texts_.end()) return Failure{EIO, "It cannot be opened.", file.path()};
        return found->second;
    }

    class Scheduled final : public Reading {
    public:
        Scheduled(Scheduler& scheduler, Result<std::string> outcome, const Callbacks& callbacks) {
            if (callbacks.onProgress && outcome)
                for (const double fraction : {0.25, 0.5, 1.0})
                    timers_.push_back(scheduler.after(
                        fraction * duration,
                        [onProgress = callbacks.onProgress, fraction] { onProgress(fraction); }));
            timers_.push_back(scheduler.after(
                duration, [outcome, onDone = callbacks.onDone] { onDone(outcome); }));
        }
        ~Scheduled() override {
            for (const auto& timer : timers_) timer->cancel();
        }
        Scheduled(const Scheduled&) = delete;
        Scheduled& operator=(const Scheduled&) = delete;

    private:
        std::vector<TimerPointer> timers_;
    };

    Scheduler& scheduler_;
    std::map<std::string, std::string> texts_;
};

}  // namespace vantle::fakes
