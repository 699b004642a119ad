// Clicks in quick succession while the target under the pointer changes.

#include <gmock/gmock.h>

#include "CardFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PressFilterTest : public CardFixture {
protected:
    CapturePointer a = capture("a");
    CapturePointer b = capture("b");
    CapturePointer c = capture("c");

    void showThree() {
        // In this corner the next tile moves to the place of the first.
        state.corner = PanelCorner::bottomLeft;
        show({a, b, c});
        makeCard();
    }
    void wait(double seconds) {
        time.advance(Seconds(seconds));
        frames.advance(static_cast<int>(seconds * 1000));
    }
    /// Removes the capture, as if it was used or dismissed.
    void take(const CapturePointer& taken) {
        auto left = state.captures.value();
        std::erase(left, taken);
        state.captures.set(left);
    }
    void clickHere() { QTest::mouseClick(&window(), Qt::LeftButton, {}, pointer.toPoint()); }
    /// Returns a place on the first tile's picture, above its buttons.
    QPointF onFirst() const { return frame(*tile(0)).topLeft() + QPointF(60, 30); }
    void moveTo(const QPointF& point) {
        pointer = point;
        hover(point);
        asked.clear();
    }

    QPointF pointer;
};

TEST_F(PressFilterTest, ADoubleClickActsOnOneCapture) {
    for (const double gap : {0.2, 0.3, 0.4, 0.5}) {
        SCOPED_TRACE(gap);
        showThree();
        moveTo(onFirst());
        clickHere();
        take(a);
        wait(gap);
        clickHere();
        EXPECT_THAT(asked, ElementsAre("open a.png"));
    }
}

TEST_F(PressFilterTest, ADoubleClickOnACloseButtonClosesOneCapture) {
    for (const double gap : {0.2, 0.3, 0.4, 0.5}) {
        SCOPED_TRACE(gap);
        showThree();
        moveTo(onFirst());
        moveTo(frame(*item("CloseButton", tile(0))).center() + QPointF(4, 4));
        clickHere();
        take(a);
        wait(gap);
        clickHere();
        EXPECT_THAT(asked, ElementsAre("close a.png"));
    }
}

TEST_F(PressFilterTest, TheNeighbourTakesTheClickAfterThePointerHasMoved) {
    showThree();
    moveTo(onFirst());
    clickHere();
    take(a);
    wait(0.5);
    moveTo(pointer + QPointF(8, 0));
    clickHere();
    EXPECT_THAT(asked, ElementsAre("open b.png"));
}

TEST_F(PressFilterTest, TheNeighbourTakesTheClickAfterTheTimeOfADoubleClick) {
    showThree();
    moveTo(onFirst());
    clickHere();
    take(a);
    wait(1.5);
    clickHere();
    EXPECT_THAT(asked, ElementsAre("open a.png", "open b.png"));
}

TEST_F(PressFilterTest, ADoubleClickOnATileThatStaysOpensItOnce) {
    showThree();
    moveTo(onFirst());
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, pointer.toPoint());
    EXPECT_THAT(asked, ElementsAre("open a.png"));
}

TEST_F(PressFilterTest, TheLastCaptureIsOpenedOnceWithReducedMotion) {
    show({a});
    makeCard();
    moveTo(onFirst());
    clickHere();
    state.captures.set({});
    state.visible.set(false);
    clickHere();
    wait(0.3);
    clickHere();
    EXPECT_THAT(asked, ElementsAre("open a.png"));
}

TEST_F(PressFilterTest, NeitherKeysNorAssistiveProgramsReachALeavingCard) {
    show({a, b});
    makeCard();
    panel->takeKeyboard();
    state.visible.set(false);
    for (const auto key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Space, Qt::Key_Escape})
        QTest::keyClick(&window(), key);
    auto* model = item("CaptureCardView")->property("panel").value<PanelModel*>();
    model->trash(QString::fromStdString(a->id().text()));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(PressFilterTest, ATargetThatSlidesUnderAPressGetsNoRelease) {
    showThree();
    moveTo(onFirst());
    QTest::mousePress(&window(), Qt::LeftButton, {}, pointer.toPoint());
    take(a);
    wait(0.5);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, pointer.toPoint());
    EXPECT_THAT(asked, IsEmpty());
}

}  // namespace
}  // namespace vantle
