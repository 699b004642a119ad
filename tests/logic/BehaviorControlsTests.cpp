#include <gtest/gtest.h>

#include <limits>

#include "fakes/SettingsOnFakes.h"
#include "screens/BehaviorControls.h"

namespace vantle {
namespace {

class BehaviorControlsTest : public testing::Test, protected fakes::SettingsOnFakes {
protected:
    double seconds() const { return settings.dismissAfter.value(); }

    fakes::ManualScheduler scheduler{time};
};

TEST_F(BehaviorControlsTest, WithoutATimerTheToggleIsOn) {
    const BehaviorControls controls(settings, scheduler);
    EXPECT_TRUE(controls.neverDismiss());
    EXPECT_EQ(controls.dismissAfterText(), "—");
}

TEST_F(BehaviorControlsTest, WithATimerTheToggleIsOffAndTheSecondsAreWhole) {
    settings.dismissAfter.set(12.9);
    const BehaviorControls controls(settings, scheduler);
    EXPECT_FALSE(controls.neverDismiss());
    EXPECT_EQ(controls.dismissAfterText(), "12 seconds");
}

TEST_F(BehaviorControlsTest, AMovedSliderIsStoredWhenItRests) {
    settings.dismissAfter.set(30);
    int stored = 0;
    const auto subscription = settings.dismissAfter.observeChanges([&](double) { ++stored; });
    BehaviorControls controls(settings, scheduler);
    for (int second = 31; second <= 90; ++second) {
        controls.moveSlider(second);
        EXPECT_EQ(controls.sliderValue(), second);
        time.advance(Seconds(0.05));
    }
    EXPECT_EQ(controls.dismissAfterText(), "90 seconds");
    EXPECT_EQ(stored, 0);
    time.advance(Seconds(1));
    EXPECT_EQ(stored, 1);
    EXPECT_EQ(seconds(), 90);
}

TEST_F(BehaviorControlsTest, AJustMovedSliderIsNotLost) {
    settings.dismissAfter.set(30);
    {
        BehaviorControls controls(settings, scheduler);
        controls.moveSlider(40);
        controls.setNeverDismiss(true);
        controls.setNeverDismiss(false);
        EXPECT_EQ(seconds(), 40);
        controls.moveSlider(50);
    }
    EXPECT_EQ(seconds(), 50);
    time.advance(Seconds(1));
    EXPECT_EQ(seconds(), 50);
}

TEST_F(BehaviorControlsTest, OnStoresZero) {
    settings.dismissAfter.set(30);
    BehaviorControls controls(settings, scheduler);
    controls.setNeverDismiss(true);
    EXPECT_EQ(seconds(), 0);
    EXPECT_EQ(defaults.stored.at("dismissAfter"), PreferenceValue(0.0));
}

TEST_F(BehaviorControlsTest, OffRestoresTheLastPositiveNumberOfSeconds) {
    settings.dismissAfter.set(30);
    BehaviorControls controls(settings, scheduler);
    settings.dismissAfter.set(45);
    controls.setNeverDismiss(true);
    controls.setNeverDismiss(false);
    EXPECT_EQ(seconds(), 45);
}

TEST_F(BehaviorControlsTest, OffMeansTenSecondsIfThereWereNone) {
    settings.dismissAfter.set(-5);
    settings.dismissAfter.set(0);
    BehaviorControls controls(settings, scheduler);
    controls.setNeverDismiss(false);
    EXPECT_EQ(seconds(), 10);
}

TEST_F(BehaviorControlsTest, SettingTheSameAgainChangesNothing) {
    settings.dismissAfter.set(30);
    BehaviorControls controls(settings, scheduler);
    settings.dismissAfter.set(-1);
    controls.setNeverDismiss(false);
    EXPECT_EQ(seconds(), -1);
}

TEST_F(BehaviorControlsTest, TheToggleFollowsTheSettingsWhenItAppears) {
    BehaviorControls controls(settings, scheduler);
    settings.dismissAfter.set(20);
    EXPECT_TRUE(controls.neverDismiss());
    controls.appear();
    EXPECT_FALSE(controls.neverDismiss());
}

TEST_F(BehaviorControlsTest, TheSliderNeverOffersValuesBelow3OrAbove120) {
    const BehaviorControls controls(settings, scheduler);
    EXPECT_EQ(BehaviorControls::minimum, 3);
    EXPECT_EQ(BehaviorControls::maximum, 120);
    EXPECT_EQ(controls.sliderValue(), 3);
    settings.dismissAfter.set(500);
    EXPECT_EQ(controls.sliderValue(), 120);
    settings.dismissAfter.set(-4);
    EXPECT_EQ(controls.sliderValue(), 3);
    settings.dismissAfter.set(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(controls.sliderValue(), 3);
}

TEST_F(BehaviorControlsTest, NumbersThatTheSliderCannotSetAreShownUnchanged) {
    settings.dismissAfter.set(500);
    const BehaviorControls controls(settings, scheduler);
    EXPECT_EQ(controls.dismissAfterText(), "500 seconds");
    settings.dismissAfter.set(-2.5);
    EXPECT_EQ(controls.dismissAfterText(), "-2 seconds");
    settings.dismissAfter.set(std::numeric_limits<double>::infinity());
    EXPECT_EQ(controls.dismissAfterText(), "9000000000000000 seconds");
    settings.dismissAfter.set(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(controls.dismissAfterText(), "0 seconds");
}

}  // namespace
}  // namespace vantle
