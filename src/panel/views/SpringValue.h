#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractAnimation>
#include <QObject>
#include <QQmlParserStatus>
#include <optional>

#include "panel/Spring.h"

namespace vantle {

/// A number that follows its target like a damped spring, one step a frame. A change of the target
/// turns the motion without a jump. At rest it costs nothing.
class SpringValue : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_NAMED_ELEMENT(Spring)
    Q_INTERFACES(QQmlParserStatus)

    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    /// The start value; the target if this is not set.
    Q_PROPERTY(double from READ from WRITE setFrom NOTIFY fromChanged)
    /// The period of the undamped motion in seconds.
    Q_PROPERTY(double response MEMBER response_ NOTIFY animationChanged)
    /// 1 is critical. A change of `response` or of this applies from the next change of the target.
    Q_PROPERTY(double dampingFraction MEMBER dampingFraction_ NOTIFY animationChanged)
    /// If false, the value follows a new target at once.
    Q_PROPERTY(bool enabled MEMBER enabled_ NOTIFY enabledChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)

public:
    explicit SpringValue(QObject* parent = nullptr);

    double target() const { return target_; }
    void setTarget(double target);
    double value() const { return state_.value; }
    double from() const { return from_.value_or(target_); }
    void setFrom(double from);
    bool isRunning() const { return clock_.state() == QAbstractAnimation::Running; }

    /// Stops at that value, which becomes the target.
    Q_INVOKABLE void jumpTo(double value);
    /// Moves to that target, at first with that speed in units a second.
    Q_INVOKABLE void launch(double target, double velocity);

    void classBegin() override {}
    void componentComplete() override;

signals:
    void targetChanged();
    void valueChanged();
    void fromChanged();
    void animationChanged();
    void enabledChanged();
    void runningChanged();

private:
    /// Reports the time of each frame to the spring.
    class FrameClock final : public QAbstractAnimation {
    public:
        explicit FrameClock(SpringValue& spring) : spring_(spring) {}
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int milliseconds) override { spring_.stepTo(milliseconds); }

    private:
        SpringValue& spring_;
    };

    void follow();
    void stepTo(int milliseconds);
    void finish();

    double target_ = 0;
    std::optional<double> from_;
    double response_ = 0.5;
    double dampingFraction_ = 0.82;
    bool enabled_ = true;
    bool isComplete_ = false;
    Spring::State state_{0, 0};
    std::optional<Spring> spring_;
    int startTime_ = 0;  ///< Start of the motion, in milliseconds on the clock.
    FrameClock clock_{*this};
};

}  // namespace vantle
