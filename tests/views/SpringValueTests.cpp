#include <gtest/gtest.h>

#include <QSignalSpy>
#include <cmath>

#include "ManualFrames.h"
#include "panel/views/SpringValue.h"

namespace vantle {
namespace {

class SpringValueTest : public testing::Test {
protected:
    void begin(double target) {
        spring.setTarget(target);
        spring.componentComplete();
    }
    ManualFrames frames;
    SpringValue spring;
};

TEST_F(SpringValueTest, BeginsAtItsTarget) {
    begin(40);
    EXPECT_EQ(spring.value(), 40);
    EXPECT_FALSE(spring.isRunning());
}

TEST_F(SpringValueTest, BeginsElsewhereIfSetAndMovesToItsTarget) {
    spring.setFrom(10);
    begin(40);
    EXPECT_EQ(spring.value(), 10);
    EXPECT_TRUE(spring.isRunning());
    frames.settle();
    EXPECT_EQ(spring.value(), 40);
    EXPECT_FALSE(spring.isRunning());
}

TEST_F(SpringValueTest, ReportsWhereItBegins) {
    const QSignalSpy spy(&spring, &SpringValue::fromChanged);
    spring.setFrom(10);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(spring.from(), 10);
}

TEST_F(SpringValueTest, FollowsTheClosedForm) {
    begin(0);
    spring.setTarget(100);
    const Spring expected({.response = 0.5, .dampingFraction = 0.82}, {0, 0}, 100);
    for (int i = 1; i <= 10; ++i) {
        frames.advance(16);
        EXPECT_NEAR(spring.value(), expected.at(0.016 * i).value, 1e-6) << i;
    }
}

TEST_F(SpringValueTest, AnInterruptedMotionTurnsWithoutAJump) {
    begin(0);
    spring.setTarget(100);
    frames.advance(96);
    const double before = spring.value();
    frames.advance(16);
    const double step = spring.value() - before;
    const double turned = spring.value();
    spring.setTarget(0);
    EXPECT_EQ(spring.value(), turned);
    frames.advance(16);
    EXPECT_GT(spring.value(), turned) << "it goes on in its direction first";
    EXPECT_LT(std::abs(spring.value() - turned), step);
    frames.settle();
    EXPECT_EQ(spring.value(), 0);
}

TEST_F(SpringValueTest, IsAtItsTargetWhenDisabled) {
    begin(0);
    spring.setProperty("enabled", false);
    spring.setTarget(100);
    EXPECT_EQ(spring.value(), 100);
    EXPECT_FALSE(spring.isRunning());
}

TEST_F(SpringValueTest, JumpingEndsTheMotion) {
    begin(0);
    spring.setTarget(100);
    frames.advance(64);
    spring.jumpTo(7);
    EXPECT_EQ(spring.value(), 7);
    EXPECT_EQ(spring.target(), 7);
    EXPECT_FALSE(spring.isRunning());
}

TEST_F(SpringValueTest, SignalsNothingAtRest) {
    begin(0);
    spring.setTarget(100);
    frames.settle();
    const QSignalSpy spy(&spring, &SpringValue::valueChanged);
    frames.advance(500);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(SpringValueTest, ALaunchBeginsWithThatSpeed) {
    begin(0);
    spring.jumpTo(30);
    spring.launch(0, 600);
    const Spring expected({.response = 0.5, .dampingFraction = 0.82}, {30, 600}, 0);
    for (int i = 1; i <= 10; ++i) {
        frames.advance(16);
        EXPECT_NEAR(spring.value(), expected.at(0.016 * i).value, 1e-6) << i;
    }
    EXPECT_EQ(spring.target(), 0);
    frames.settle();
    EXPECT_EQ(spring.value(), 0);
    EXPECT_FALSE(spring.isRunning());
}

TEST_F(SpringValueTest, ALaunchToTheTargetThatItHasMovesAsWell) {
    begin(0);
    spring.launch(0, 600);
    frames.advance(32);
    EXPECT_GT(spring.value(), 5);
    frames.settle();
    EXPECT_EQ(spring.value(), 0);
}

}  // namespace
}  // namespace vantle
