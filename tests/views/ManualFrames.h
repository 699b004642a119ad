#pragma once

#include <QAbstractAnimation>
#include <QAnimationDriver>
#include <QCoreApplication>
#include <algorithm>

namespace vantle {

/// A clock for all animations that only advance() moves.
class ManualFrames final : public QAnimationDriver {
public:
    static constexpr int frame = 16;  // milliseconds

    ManualFrames() {
        install();
        heartbeat_.start();
        beginWhatWaits();
        // Up to 50 ms of the previous clock are still due. This way only the heartbeat gets them.
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

    /// Advances far enough for all animations to end.
    void settle() { advance(4000); }

private:
    /// Keeps this clock in use: without a running animation, Qt would switch to its own clock.
    class Heartbeat final : public QAbstractAnimation {
    public:
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int) override {}
    };

    /// Animations begin with one event, and their timers with another.
    static void beginWhatWaits() {
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

    qint64 now_ = 0;
    Heartbeat heartbeat_;
};

}  // namespace vantle
