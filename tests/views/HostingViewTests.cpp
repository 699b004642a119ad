// What a press on the panel does: beside the glass, on a tile, and on the card's background.

#include <gmock/gmock.h>

#include "CardFixture.h"
#include "fakes/CapturedLog.h"
#include "support/Debug.h"

namespace vantle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class HostingViewTest : public CardFixture {
protected:
    void showAndListen(const std::vector<CapturePointer>& captures) {
        show(captures);
        makeCard();
        panel->onMarquee = [this](const auto& rect) { marquees.push_back(rect); };
        panel->onBackgroundClick = [this] { ++backgroundClicks; };
    }
    void showTwo() { showAndListen({capture("a"), capture("b")}); }

    /// Returns a place on the card where nothing takes a click.
    QPointF background() const { return glassFrame().bottomLeft() + QPointF(100, -6); }
    void press(const QPointF& point) {
        QTest::mousePress(&window(), Qt::LeftButton, {}, point.toPoint());
    }
    void move(const QPointF& point) { QTest::mouseMove(&window(), point.toPoint()); }
    void release(const QPointF& point) {
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, point.toPoint());
    }

    std::vector<std::optional<Rect>> marquees;
    int backgroundClicks = 0;
};

TEST_F(HostingViewTest, EveryClickPassesThroughWithoutGlass) {
    state.visible.set(false);
    showAndListen({});
    const PassthroughContainerView container(window());
    for (const QPointF point : {QPointF(0, 0), QPointF(400, 160), QPointF(780, 310)})
        EXPECT_EQ(container.hitTest(point), nullptr);
}

TEST_F(HostingViewTest, AClickPassesThroughOnlyBesideTheGlass) {
    showTwo();
    const PassthroughContainerView container(window());
    const QRectF glass = glassFrame();
    EXPECT_EQ(container.hitTest(glass.topLeft() - QPointF(1, 1)), nullptr);
    EXPECT_EQ(container.hitTest({5, 5}), nullptr);
    EXPECT_NE(container.hitTest(background()), nullptr);
    EXPECT_NE(container.hitTest(glass.center()), nullptr);
    press(glass.topLeft() - QPointF(20, 20));
    release(glass.topLeft() - QPointF(20, 20));
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, TheWindowIsClearBesideTheCard) {
    showTwo();
    EXPECT_TRUE(QQuickWindow::hasDefaultAlphaBuffer());
    EXPECT_EQ(window().color(), QColor(Qt::transparent));
    EXPECT_EQ(QQuickWindow::textRenderType(), QQuickWindow::NativeTextRendering);
}

TEST_F(HostingViewTest, HitsAreLoggedWhileDebugging) {
    showTwo();
    fakes::CapturedLog log;
    Debug::set(true);
    click(QPointF(5, 6));
    click(frame(*tile(0)).center());
    hover(*tile(0));
    click(*item("CloseButton", tile(0)));
    Debug::set(false);
    EXPECT_THAT(
        log.lines(),
        Contains(testing::MatchesRegex("Vantle\\[hit\\]: \\{[0-9.]+, [0-9.]+\\} -> PressArea")));
    EXPECT_THAT(log.lines(),
                Contains("Vantle[hit]: pass-through at {5, 6} (card {{348, 146}, {438, 170}})"));
    EXPECT_THAT(log.lines(),
                Contains(testing::MatchesRegex(
                    "Vantle\\[hit\\]: \\{[0-9.]+, [0-9.]+\\} -> vantle::DragThumbnailView")));
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb mouseDown a.png"));
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb mouseUp dragging=false"));
}

TEST_F(HostingViewTest, AClickOnTheBackgroundIsReportedWhenItEnds) {
    showTwo();
    press(background());
    EXPECT_EQ(backgroundClicks, 0);
    release(background());
    EXPECT_EQ(backgroundClicks, 1);
    EXPECT_THAT(marquees, IsEmpty());
}

TEST_F(HostingViewTest, APressThatMovesExactlySixPointsIsABackgroundClick) {
    showTwo();
    press(background());
    move(background() + QPointF(6, 0));
    release(background() + QPointF(6, 0));
    EXPECT_THAT(marquees, IsEmpty());
    EXPECT_EQ(backgroundClicks, 1);
}

TEST_F(HostingViewTest, APressThatMovesMoreThanSixPointsDrawsAMarquee) {
    showTwo();
    const QPointF from = background();
    press(from);
    move(from + QPointF(5, -5));
    const Rect expected{{from.x(), from.y() - 5}, {5, 5}};
    EXPECT_THAT(marquees, ElementsAre(Optional(expected)));
    move(from + QPointF(-2, -1));
    EXPECT_EQ(marquees.back(), (Rect{{from.x() - 2, from.y() - 1}, {2, 1}}))
        << "a marquee stays one when it shrinks";
    release(from);
    EXPECT_EQ(marquees.back(), std::nullopt);
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, ALittleFurtherThanSixPointsIsEnoughForAMarquee) {
    showTwo();
    press(background());
    move(background() + QPointF(-6, -2));
    EXPECT_EQ(marquees.size(), 1u);
    release(background());
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, AMarqueeEndsWithTheCard) {
    showTwo();
    press(background());
    move(background() + QPointF(40, -40));
    state.visible.set(false);
    EXPECT_EQ(marquees.back(), std::nullopt);
    const auto told = marquees.size();
    move(background() + QPointF(60, -60));
    release(background() + QPointF(60, -60));
    EXPECT_EQ(marquees.size(), told);
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, APressWithoutAReleaseDrawsNoMarquee) {
    showTwo();
    press(background());
    // The window was not on the screen at the release, so the button is up without an event.
    const QPointF to = background() + QPointF(60, -60);
    QMouseEvent moved(QEvent::MouseMove, to, window().mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &moved);
    EXPECT_THAT(marquees, IsEmpty());
    release(to);
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, ALeavingCardTakesNoClick) {
    showTwo();
    const QPointF onTile = frame(*tile(0)).center();
    const QPointF onBackground = background();
    state.visible.set(false);
    for (const QPointF& point : {onTile, onBackground}) {
        press(point);
        release(point);
    }
    frames.advance(50);
    for (const QPointF& point : {onTile, onBackground}) {
        press(point);
        release(point);
    }
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, APressOnAControlOrATileIsNotOnTheBackground) {
    showTwo();
    hover(*tile(0));
    for (const QPointF& point :
         {frame(*button("Copy to clipboard", tile(0))).center(), frame(*tile(0)).center()}) {
        press(point);
        move(point + QPointF(30, -10));
        release(point + QPointF(30, -10));
    }
    EXPECT_THAT(marquees, IsEmpty());
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, OtherButtonsDrawNoMarquee) {
    showTwo();
    QTest::mousePress(&window(), Qt::RightButton, {}, background().toPoint());
    move(background() + QPointF(40, -40));
    QTest::mouseRelease(&window(), Qt::RightButton, {}, background().toPoint());
    EXPECT_THAT(marquees, IsEmpty());
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(HostingViewTest, AClickOnATileOpensItAndWithAModifierSelectsIt) {
    showTwo();
    click(frame(*tile(0)).center());
    click(frame(*tile(1)).center(), Qt::ControlModifier);
    click(frame(*tile(1)).center(), Qt::ShiftModifier);
    EXPECT_THAT(asked, ElementsAre("open a.png", "toggle select b.png", "toggle select b.png"));
}

TEST_F(HostingViewTest, VisibleThumbnailsAreCutToTheRow) {
    std::vector<CapturePointer> many;
    for (int i = 0; i < 12; ++i) many.push_back(capture(std::to_string(i)));
    showAndListen(many);
    const auto thumbnails = panel->visibleThumbnails();
    ASSERT_EQ(thumbnails.size(), 12u);
    EXPECT_EQ(thumbnails[0].captureID, many[0]->id());
    EXPECT_LE(thumbnails[0].frame.size.width, 0);
    EXPECT_EQ(thumbnails[11].frame.size, (Size{160, 100}));
    const QRectF row = frame(*item("TileRow"));
    for (const auto& [id, seen] : thumbnails) {
        if (seen.size.width > 0) {
            EXPECT_GE(seen.minX(), row.left());
        }
    }
}

}  // namespace
}  // namespace vantle
