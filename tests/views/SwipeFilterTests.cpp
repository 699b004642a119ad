// What two fingers on a touchpad, or a flick of the pointer, do to the card that is on the screen.

#include <gmock/gmock.h>

#include <QPointingDevice>
#include <QWheelEvent>

#include "CardFixture.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int frame = ManualFrames::frame;

class SwipeFilterTest : public CardFixture {
protected:
    SwipeFilterTest() { Appearance::follow(&desktop); }
    ~SwipeFilterTest() override {
        panel.reset();
        Appearance::follow(nullptr);
    }

    void showCaptures(std::size_t count) {
        std::vector<CapturePointer> captures;
        for (std::size_t i = 0; i < count; ++i) captures.push_back(capture(std::to_string(i)));
        show(captures);
        makeCard();
        home = glassFrame();
        // Between two things on the card, where no tile is.
        pointer = home.bottomLeft() + QPointF(100, -6);
        actions.closeAll = [this] {
            asked.push_back("close all");
            state.visible.set(false);
        };
        actions.close = [this](const CapturePointer& closed) {
            asked.push_back("close " + closed->fileName());
            auto left = state.captures.value();
            std::erase(left, closed);
            state.captures.set(left);
        };
        makeCardAgain();
    }
    /// Makes the card with the actions as they are now.
    void makeCardAgain() {
        makeCard();
        home = glassFrame();
    }
    void pointAt(const QQuickItem& item) { pointer = this->frame(item).center(); }

    void wait(int milliseconds) {
        timestamp += static_cast<quint64>(milliseconds);
        time.advance(std::chrono::milliseconds(milliseconds));
        frames.advance(milliseconds);
    }
    bool send(const QPoint& pixels, const QPoint& angle, Qt::ScrollPhase phase) {
        QWheelEvent event(pointer, window().mapToGlobal(pointer), pixels, angle, Qt::NoButton,
                          Qt::NoModifier, phase, false, Qt::MouseEventNotSynthesized, device);
        event.setTimestamp(timestamp);
        QCoreApplication::sendEvent(&window(), &event);
        return event.isAccepted();
    }
    void fingers(const QPoint& pixels, Qt::ScrollPhase phase = Qt::ScrollUpdate) {
        send(pixels, pixels * 12, phase);
    }
    void touch() { fingers({}, Qt::ScrollBegin); }
    void lift() { fingers({}, Qt::ScrollEnd); }
    void move(const QPoint& step, int steps) {
        for (int i = 0; i < steps; ++i) {
            wait(vantle::frame);
            fingers(step);
        }
    }
    /// A gesture without speed at its end.
    void swipe(const QPoint& step, int steps) {
        touch();
        move(step, steps);
        wait(200);
        lift();
    }
    /// Moves the pressed pointer in equal steps of ten milliseconds.
    void drag(const QPointF& way, int steps) {
        for (int i = 1; i <= steps; ++i) {
            wait(10);
            mouse(QEvent::MouseMove, pointer + way * i / steps);
        }
        pointer += way;
    }
    void mouse(QEvent::Type type, const QPointF& place) {
        const bool isMove = type == QEvent::MouseMove;
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, window().mapToGlobal(place),
                          isMove ? Qt::NoButton : Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(timestamp);
        QCoreApplication::sendEvent(&window(), &event);
    }
    void press() { mouse(QEvent::MouseButtonPress, pointer); }
    void release() { mouse(QEvent::MouseButtonRelease, pointer); }

    double cardShift() const { return glassFrame().x() - home.x(); }
    double rowPosition() const { return item("TileRow")->property("position").toDouble(); }

    QRectF home;
    QPointF pointer;
    quint64 timestamp = 5'000'000;
    const QPointingDevice* device = QPointingDevice::primaryPointingDevice();
    DesktopAppearance desktop;
};

TEST_F(SwipeFilterTest, TheCardFollowsTheFingersAtOnce) {
    showCaptures(2);
    touch();
    move({10, 0}, 4);
    EXPECT_NEAR(cardShift(), 37, 1);
    move({-6, 0}, 4);
    EXPECT_NEAR(cardShift(), 15.5, 1);
}

TEST_F(SwipeFilterTest, AnUnfinishedSwipeSpringsBack) {
    showCaptures(2);
    swipe({10, 0}, 6);
    const double released = cardShift();
    EXPECT_GT(released, 50);
    wait(vantle::frame);
    EXPECT_LT(cardShift(), released);
    EXPECT_GT(cardShift(), 30) << "without a jump";
    rest();
    EXPECT_EQ(cardShift(), 0);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, ItSpringsBackWithTheSpeedOfTheFingers) {
    showCaptures(2);
    touch();
    move({10, 0}, 2);
    const double released = cardShift();
    lift();
    wait(vantle::frame);
    EXPECT_GT(cardShift(), released);
    rest();
    EXPECT_EQ(cardShift(), 0);
}

TEST_F(SwipeFilterTest, TheGlassIsHeldUntilItIsBackInItsPlace) {
    showCaptures(2);
    const auto* glass = PassthroughContainerView::findGlass(*window().contentItem());
    touch();
    EXPECT_FALSE(glass->isHeld());
    move({10, 0}, 2);
    EXPECT_TRUE(glass->isHeld());
    lift();
    wait(vantle::frame);
    EXPECT_TRUE(glass->isHeld());
    rest();
    EXPECT_FALSE(glass->isHeld());
}

TEST_F(SwipeFilterTest, AFullSwipeTakesTheCardAway) {
    showCaptures(2);
    swipe({10, 0}, 12);
    EXPECT_THAT(asked, ElementsAre("close all"));
    rest();
    EXPECT_FALSE(item("CaptureCardView")->property("panel").value<PanelModel*>()->isPresented());
    state.visible.set(true);
    rest();
    EXPECT_EQ(glassFrame(), home) << "it comes back to its place";
}

TEST_F(SwipeFilterTest, TheCardGoesOnWithTheSpeedOfTheFingers) {
    showCaptures(2);
    touch();
    move({40, 0}, 4);
    const double released = cardShift();
    lift();
    ASSERT_THAT(asked, ElementsAre("close all"));
    wait(vantle::frame);
    EXPECT_GT(cardShift(), released + 30) << "a card at rest would have moved ten points";
    EXPECT_LT(cardShift(), released + 60);
}

TEST_F(SwipeFilterTest, ACardThatReturnsWhileLeavingComesBackToItsPlace) {
    showCaptures(2);
    swipe({10, 0}, 12);
    wait(100);
    const double leaving = cardShift();
    state.visible.set(true);
    EXPECT_EQ(cardShift(), leaving) << "without a jump";
    rest();
    EXPECT_EQ(glassFrame(), home);
}

TEST_F(SwipeFilterTest, InALeftCornerItGoesToTheLeft) {
    state.corner = PanelCorner::topLeft;
    showCaptures(2);
    swipe({10, 0}, 12);
    EXPECT_THAT(asked, IsEmpty());
    rest();
    swipe({-10, 0}, 12);
    EXPECT_THAT(asked, ElementsAre("close all"));
    EXPECT_LT(cardShift(), -50);
}

TEST_F(SwipeFilterTest, AnAcceptedSwipeReachesNothingElse) {
    showCaptures(2);
    touch();
    EXPECT_TRUE(send({10, 0}, {120, 0}, Qt::ScrollUpdate));
    lift();
}

TEST_F(SwipeFilterTest, ATileFollowsTheFingersAndFades) {
    showCaptures(3);
    pointAt(*tile(1));
    const double place = tile(1)->y();
    touch();
    move({0, -10}, 4);
    EXPECT_NEAR(tile(1)->y() - place, -34, 1);
    EXPECT_NEAR(tile(1)->opacity(), 0.72, 0.02);
    EXPECT_EQ(tile(0)->y(), place);
    EXPECT_EQ(cardShift(), 0);
    wait(200);
    lift();
    rest();
    EXPECT_EQ(tile(1)->y(), place);
    EXPECT_EQ(tile(1)->opacity(), 1);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, ATileThatIsSwipedLeavesInThatDirection) {
    showCaptures(3);
    pointAt(*tile(1));
    swipe({0, 10}, 8);
    EXPECT_THAT(asked, ElementsAre("close 1.png"));
    const QQuickItem* leaving = tile(1);
    const double released = leaving->y();
    wait(50);
    EXPECT_GT(leaving->y(), released);
    rest();
    EXPECT_EQ(items("CaptureTile").size(), 2u);
}

TEST_F(SwipeFilterTest, ATileThatReturnsWhileLeavingComesBackToItsPlace) {
    showCaptures(3);
    const auto all = state.captures.value();
    pointAt(*tile(1));
    swipe({0, 10}, 8);
    wait(50);
    state.captures.set(all);
    rest();
    for (const QQuickItem* one : items("CaptureTile")) {
        EXPECT_EQ(one->y(), 0);
        EXPECT_EQ(one->opacity(), 1);
    }
}

TEST_F(SwipeFilterTest, WhatIsNotDismissedAfterAllComesBack) {
    showCaptures(3);
    actions.close = [](const CapturePointer&) {};
    actions.closeAll = [] {};
    makeCardAgain();
    pointAt(*tile(1));
    swipe({0, 10}, 8);
    rest();
    EXPECT_EQ(tile(1)->y(), 0);
    EXPECT_EQ(tile(1)->opacity(), 1);
    swipe({10, 0}, 12);
    rest();
    EXPECT_EQ(glassFrame(), home);
}

TEST_F(SwipeFilterTest, TheOnlyTileTakesTheCardWithIt) {
    showCaptures(1);
    pointAt(*tile(0));
    swipe({0, -10}, 8);
    EXPECT_THAT(asked, ElementsAre("close 0.png"));
    rest();
    show({capture("next")});
    rest();
    EXPECT_EQ(tile(0)->y(), 0);
}

TEST_F(SwipeFilterTest, ANextTileThatSlidUnderThePointerTakesNoClick) {
    // In this corner the next tile moves to the place of the first.
    state.corner = PanelCorner::bottomLeft;
    showCaptures(3);
    pointer = this->frame(*tile(0)).topLeft() + QPointF(60, 30);
    hover(pointer);
    asked.clear();
    swipe({0, 10}, 8);
    EXPECT_THAT(asked, ElementsAre("close 0.png"));
    wait(300);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, pointer.toPoint());
    EXPECT_EQ(asked.size(), 1u);
    wait(1500);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, pointer.toPoint());
    EXPECT_THAT(asked, ElementsAre("close 0.png", "open 1.png"));
}

TEST_F(SwipeFilterTest, ARowThatOverflowsScrolls) {
    showCaptures(12);
    const double end = rowPosition();
    ASSERT_GT(end, 500);
    swipe({20, 0}, 10);
    EXPECT_NEAR(rowPosition(), end - 200, 1e-6);
    EXPECT_EQ(cardShift(), 0);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, OnlyANewSwipeAtTheEndOfTheRowTakesTheCard) {
    showCaptures(12);
    touch();
    move({100, 0}, 40);
    wait(200);
    lift();
    EXPECT_EQ(rowPosition(), 0);
    EXPECT_THAT(asked, IsEmpty());
    wait(500);
    swipe({20, 0}, 10);
    EXPECT_THAT(asked, ElementsAre("close all"));
}

TEST_F(SwipeFilterTest, InALeftCornerTheOtherEndOfTheRowCounts) {
    state.corner = PanelCorner::bottomLeft;
    showCaptures(12);
    ASSERT_GT(rowPosition(), 500);
    swipe({-20, 0}, 10);
    EXPECT_THAT(asked, ElementsAre("close all")) << "the newest tile is in sight";
}

TEST_F(SwipeFilterTest, NotchesOfAWheelDismissNothing) {
    showCaptures(2);
    pointAt(*tile(0));
    for (int i = 0; i < 20; ++i) {
        send({}, {0, -120}, Qt::NoScrollPhase);
        send({}, {120, 0}, Qt::NoScrollPhase);
        wait(10);
    }
    rest();
    EXPECT_EQ(glassFrame(), home);
    EXPECT_EQ(tile(0)->y(), 0);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, AFineWheelDismissesNothing) {
    showCaptures(2);
    pointAt(*tile(0));
    for (int i = 0; i < 200; ++i) {
        // An X driver with fine notches reports pixels as well.
        send({15, 0}, {15, 0}, Qt::NoScrollPhase);
        send({}, {0, 15}, Qt::NoScrollPhase);
        wait(5);
    }
    rest();
    EXPECT_EQ(glassFrame(), home);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, NotchesScrollTheRowAsBefore) {
    showCaptures(12);
    const double end = rowPosition();
    pointAt(*tile(11));
    send({}, {0, 120}, Qt::NoScrollPhase);
    EXPECT_EQ(rowPosition(), end - 120);
    send({}, {-60, 0}, Qt::NoScrollPhase);
    EXPECT_EQ(rowPosition(), end - 60);
}

TEST_F(SwipeFilterTest, ATouchpadOnXIsKnownByItsKindOrItsName) {
    const auto counts = [](const QString& name, QInputDevice::DeviceType type,
                           const QPoint& pixels = {5, 0}) {
        const QPointingDevice used(name, 99, type, QPointingDevice::PointerType::Generic,
                                   QInputDevice::Capability::Scroll, 1, 7);
        const QWheelEvent event({}, {}, pixels, {40, 0}, Qt::NoButton, Qt::NoModifier,
                                Qt::NoScrollPhase, false, Qt::MouseEventNotSynthesized, &used);
        return SwipeFilter::isFromFingers(event);
    };
    const auto mouse = QInputDevice::DeviceType::Mouse;
    const auto touchpad = QInputDevice::DeviceType::TouchPad;
    EXPECT_TRUE(counts("any", touchpad));
    EXPECT_TRUE(counts("SynPS/2 Synaptics TouchPad", mouse));
    EXPECT_TRUE(counts("Apple Inc. Magic Trackpad", mouse, {}));
    EXPECT_FALSE(counts("Logitech MX Master 3", mouse));
    EXPECT_FALSE(counts("xwayland-relative-pointer:16", touchpad, {}))
        << "Qt takes the wheel behind it for a touchpad";
}

TEST_F(SwipeFilterTest, WithoutPhasesASilenceEndsTheSwipe) {
    showCaptures(2);
    const QPointingDevice touchpad("Touchpad", 99, QInputDevice::DeviceType::TouchPad,
                                   QPointingDevice::PointerType::Generic,
                                   QInputDevice::Capability::Scroll, 1, 7);
    device = &touchpad;
    for (int i = 0; i < 14; ++i) {
        wait(vantle::frame);
        // No pixels, as from a driver that measures in notches.
        send({}, {80, 0}, Qt::NoScrollPhase);
    }
    EXPECT_GT(cardShift(), 80);
    wait(140);
    EXPECT_THAT(asked, IsEmpty());
    wait(20);
    EXPECT_THAT(asked, ElementsAre("close all"));
}

TEST_F(SwipeFilterTest, ASwipeBesideTheCardIsNotOurs) {
    showCaptures(2);
    pointer = home.topLeft() - QPointF(20, 20);
    swipe({10, 0}, 20);
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(cardShift(), 0);
}

TEST_F(SwipeFilterTest, ASwipeEndsWhenThePointerLeaves) {
    showCaptures(2);
    touch();
    move({10, 0}, 14);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window(), &leave);
    rest();
    EXPECT_EQ(cardShift(), 0);
    lift();
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, ASwipeEndsWithTheCard) {
    showCaptures(2);
    touch();
    move({10, 0}, 14);
    state.visible.set(false);
    wait(100);
    state.visible.set(true);
    wait(200);
    lift();
    rest();
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(glassFrame(), home);
}

TEST_F(SwipeFilterTest, WithLessMotionTheCardFadesInItsPlace) {
    desktop.look.set({.reducesMotion = true});
    showCaptures(2);
    touch();
    move({10, 0}, 6);
    EXPECT_EQ(cardShift(), 0);
    const QQuickItem* card = item("GlassBackdropView")->parentItem();
    EXPECT_NEAR(card->opacity(), 0.56, 0.02);
    wait(200);
    lift();
    rest();
    EXPECT_EQ(card->opacity(), 1);
    swipe({10, 0}, 12);
    EXPECT_THAT(asked, ElementsAre("close all"));
    wait(50);
    EXPECT_EQ(cardShift(), 0);
}

TEST_F(SwipeFilterTest, WithLessMotionATileFadesInItsPlace) {
    desktop.look.set({.reducesMotion = true});
    showCaptures(3);
    pointAt(*tile(1));
    touch();
    move({0, 10}, 4);
    EXPECT_EQ(tile(1)->y(), 0);
    EXPECT_NEAR(tile(1)->opacity(), 0.72, 0.02);
    lift();
}

TEST_F(SwipeFilterTest, AFlickOfThePointerTakesTheCardAway) {
    showCaptures(2);
    press();
    drag({120, 8}, 10);
    EXPECT_FALSE(state.marquee.value());
    release();
    EXPECT_THAT(asked, ElementsAre("close all"));
    const double released = cardShift();
    wait(vantle::frame);
    EXPECT_GT(cardShift(), released + 10);
}

TEST_F(SwipeFilterTest, AFlickTouchesNoSelection) {
    showCaptures(2);
    std::vector<std::optional<Rect>> marquees;
    int clicks = 0;
    panel->onMarquee = [&](const auto& rect) { marquees.push_back(rect); };
    panel->onBackgroundClick = [&] { ++clicks; };
    press();
    drag({120, 0}, 10);
    release();
    EXPECT_THAT(marquees, IsEmpty());
    EXPECT_EQ(clicks, 0);
}

TEST_F(SwipeFilterTest, ASlowDragDrawsARubberBandAfterAMoment) {
    showCaptures(2);
    std::vector<std::optional<Rect>> marquees;
    panel->onMarquee = [&](const auto& rect) { marquees.push_back(rect); };
    const QPointF from = pointer;
    press();
    drag({30, 0}, 10);
    EXPECT_THAT(marquees, IsEmpty());
    wait(250);
    ASSERT_EQ(marquees.size(), 1u) << "although the pointer rests";
    EXPECT_EQ(marquees[0], (Rect{{from.x(), from.y()}, {30, 0}}));
    drag({100, 0}, 2);
    EXPECT_EQ(marquees.size(), 3u);
    release();
    EXPECT_EQ(marquees.back(), std::nullopt);
    EXPECT_THAT(asked, IsEmpty()) << "a rubber band stays one, however fast it ends";
}

TEST_F(SwipeFilterTest, AQuickDragThatStopsSelectsWhatItTouched) {
    showCaptures(2);
    std::vector<std::optional<Rect>> marquees;
    panel->onMarquee = [&](const auto& rect) { marquees.push_back(rect); };
    const QPointF from = pointer;
    press();
    drag({100, -20}, 8);
    wait(120);
    release();
    EXPECT_THAT(marquees, ElementsAre(Rect{{from.x(), from.y() - 20}, {100, 20}}, std::nullopt));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(SwipeFilterTest, APressOnATileIsNoFlick) {
    showCaptures(2);
    pointAt(*tile(0));
    press();
    drag({120, 0}, 10);
    release();
    EXPECT_EQ(std::ranges::count(asked, "close all"), 0);
}

TEST_F(SwipeFilterTest, NothingWaitsAfterAPanelThatHasGone) {
    showCaptures(2);
    press();
    drag({30, 0}, 2);
    touch();
    move({10, 0}, 4);
    panel.reset();
    time.advance(Seconds(5));
}

}  // namespace
}  // namespace vantle
