// Compares the curves along which things move with the closed form of the intended spring, at
// several times.

#include <gtest/gtest.h>

#include <QEasingCurve>
#include <algorithm>

#include "CardFixture.h"
#include "ScreenStage.h"
#include "panel/Spring.h"

namespace vantle {
namespace {

constexpr int sampled = 48;  // milliseconds between two samples
constexpr int looks = 8;

/// A spring's motion from a value at rest to its target.
struct Course {
    Animation animation;
    double from;
    double to;

    double at(double seconds) const { return Spring(animation, {from, 0}, to).at(seconds).value; }
    double clampedAt(double seconds) const { return std::clamp(at(seconds), 0.0, 1.0); }
};

/// Lets time pass, and calls `look` with the seconds since the beginning.
void eachLook(ManualFrames& frames, const std::function<void(double seconds)>& look) {
    for (int i = 1; i <= looks; ++i) {
        frames.advance(sampled);
        look(i * sampled / 1000.0);
    }
}

class MotionCurveTest : public CardFixture {
protected:
    QQuickItem* card() const {
        return PassthroughContainerView::findGlass(*window().contentItem())->parentItem();
    }
    /// Returns how far the row is scrolled.
    double scrolled() const { return 10 - tile(0)->parentItem()->x(); }
    std::vector<CapturePointer> captures(int count) const {
        std::vector<CapturePointer> made;
        for (int i = 0; i < count; ++i) made.push_back(capture(std::to_string(i)));
        return made;
    }
};

TEST_F(MotionCurveTest, TheCardAppearsAndLeaves) {
    constexpr Animation spring{.response = 0.5, .dampingFraction = 0.82};
    constexpr double there = 458;
    constexpr double travel = 328 + 14;
    state.visible.set(false);
    show(captures(1));
    makeCard();
    for (const bool isComing : {true, false}) {
        const Course course{spring, isComing ? 0.0 : 1.0, isComing ? 1.0 : 0.0};
        state.visible.set(isComing);
        eachLook(frames, [&](double seconds) {
            EXPECT_NEAR(card()->opacity(), course.clampedAt(seconds), 1e-3) << seconds;
            EXPECT_NEAR(card()->x(), there + (1 - course.at(seconds)) * travel, 0.2) << seconds;
        });
        rest();
    }
}

TEST_F(MotionCurveTest, TheRowScrollsToTheNewest) {
    auto shown = captures(6);
    show(shown);
    makeCard();
    const double from = scrolled();
    shown.push_back(capture("new"));
    state.captures.set(shown);
    const double room = 100 * 1.6 + 10;
    const Course course{{.response = 0.5, .dampingFraction = 0.85}, from, from + room};
    eachLook(frames,
             [&](double seconds) { EXPECT_NEAR(scrolled(), course.at(seconds), 0.2) << seconds; });
    rest();
    EXPECT_EQ(scrolled(), course.to);
}

TEST_F(MotionCurveTest, ATileAppears) {
    show(captures(2));
    makeCard();
    auto shown = state.captures.value();
    shown.push_back(capture("new"));
    state.captures.set(shown);
    const Course size{{.response = 0.55, .dampingFraction = 0.8}, 0.7, 1};
    const Course fade{{.response = 0.55, .dampingFraction = 1}, 0, 1};
    eachLook(frames, [&](double seconds) {
        EXPECT_NEAR(tile(2)->scale(), size.at(seconds), 1e-3) << seconds;
        EXPECT_NEAR(tile(2)->opacity(), fade.at(seconds), 1e-3) << seconds;
    });
}

TEST_F(MotionCurveTest, ATileLeaves) {
    show(captures(3));
    makeCard();
    constexpr Animation removal{.response = 0.45, .dampingFraction = 0.82};
    const auto left = state.captures.value();
    state.animate(removal, [&] { state.captures.set({left[0], left[1]}); });
    const Course size{removal, 1, 0.8};
    const Course fade{{.response = 0.45, .dampingFraction = 1}, 1, 0};
    eachLook(frames, [&](double seconds) {
        EXPECT_NEAR(tile(2)->scale(), size.at(seconds), 1e-3) << seconds;
        EXPECT_NEAR(tile(2)->opacity(), fade.at(seconds), 1e-3) << seconds;
    });
}

TEST_F(MotionCurveTest, TheTilesAndTheCardAdapt) {
    show(captures(3));
    makeCard();
    constexpr Animation arrival{.response = 0.55, .dampingFraction = 0.8};
    const Course width{arrival, tile(0)->width(), 202};
    const Course height{arrival, 100, 126};
    const Course place{arrival, tile(1)->x(), 202 + 10};
    const Course card{arrival, glassFrame().width(), 438};
    state.captures.set({state.captures.value()[0], state.captures.value()[1]});
    eachLook(frames, [&](double seconds) {
        EXPECT_NEAR(tile(0)->width(), width.at(seconds), 0.1) << seconds;
        EXPECT_NEAR(item("DraggableThumbnail", tile(0))->height(), height.at(seconds), 0.1);
        EXPECT_NEAR(tile(1)->x(), place.at(seconds), 0.1) << seconds;
        EXPECT_NEAR(glassFrame().width(), card.at(seconds), 0.1) << seconds;
    });
}

TEST_F(MotionCurveTest, TheHoverBarRisesFromTheThumbnailsEdge) {
    show(captures(2));
    makeCard();
    QTest::mouseMove(&window(), {1, 1});
    QTest::mouseMove(&window(), frame(*tile(0)).center().toPoint() - QPoint(0, 20));
    auto* bar = item("HoverBar", tile(0));
    const Course course{{.response = 0.25, .dampingFraction = 1}, 0, 1};
    const double there = 126 - bar->height() - 6;
    eachLook(frames, [&](double seconds) {
        EXPECT_NEAR(bar->opacity(), course.at(seconds), 1e-3) << seconds;
        const double below = (1 - course.at(seconds)) * 16;
        EXPECT_NEAR(frameIn(*bar, *tile(0)).top(), there + below, 0.1) << seconds;
    });
}

TEST(ScreenMotionTest, TheStepsOfTheOnboardingSlideInFromTheirSide) {
    ScreenStage stage;
    stage.openOnboarding(0);
    stage.rest();
    const auto* content = stage.view().findChild<QQuickItem*>(QStringLiteral("content"));
    const Course course{{.response = 0.45, .dampingFraction = 0.85}, 0, 1};
    for (const auto& [button, side] : {std::pair{"Get Started", 1}, std::pair{"Back", -1}}) {
        const double way = 60 * side;
        stage.click(QString::fromLatin1(button));
        eachLook(stage.frames, [&](double seconds) {
            EXPECT_NEAR(content->opacity(), course.clampedAt(seconds), 1e-3) << seconds;
            EXPECT_NEAR(content->x(), (1 - course.at(seconds)) * way, 0.1) << seconds;
        });
        stage.rest();
    }
}

}  // namespace
}  // namespace vantle
