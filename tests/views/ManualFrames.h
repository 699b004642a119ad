#pragma once

#include <QAbstractAnimation>
#include <QAnimationDriver>
#include <QCoreApplication>
#include <algorithm>

namespace vantle {

/// The frame clock of all animations, turned by hand: nothing moves but by advance().
class ManualFrames final : public QAnimationDriver {
public:
    static constexpr int frame = 16;  // milliseconds

    ManualFrames() {
        install();
        heartbeat_.start();
        beginWhatWaits();
        // Up to 50 ms of the clock that ran before are still to come: nobody but the heartbeat gets
        // them.
        advanceAnimation();
    }
    ~ManualFrames() override { uninstall(); }

    qint64 elapsed() const override { return now_; }

    void advance(int milliseconds) {
        beginWhatWaits();
        for (const qint64 end = now_ + milliseconds; now_ < end;) {
            now_ = std::min<qint64>(now_ + frame, end);
            advanceAnimation();
            QCoreApplication::processEvents();
        }
    }

    /// Until everything stands still.
    void settle() { advance(4000); }

private:
    /// Without any animation that runs, Qt would turn to a clock of its own.
    class Heartbeat final : public QAbstractAnimation {
    public:
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int) override {}
    };

    /// Animations begin by an event, and their timers by another.
    static void beginWhatWaits() {
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

    qint64 now_ = 0;
    Heartbeat heartbeat_;
};

}  // namespace vantle
