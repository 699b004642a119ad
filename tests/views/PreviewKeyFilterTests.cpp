// Which tile the space bar previews while a window of another program has the keyboard.

#include <gmock/gmock.h>

#include "CardFixture.h"
#include "panel/PreviewKeyRule.h"
#include "platform/qt/DisplayServer.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A space bar that is pressed by the test.
class FakeSpaceBar final : public BorrowedSpaceBar {
public:
    explicit FakeSpaceBar(FakeSpaceBar*& current) : current_(current) { current_ = this; }
    ~FakeSpaceBar() override { current_ = nullptr; }

    void take() override { isTaken = true; }
    void giveBack() override { isTaken = false; }

    bool isTaken = false;

private:
    FakeSpaceBar*& current_;
};

class ServerWithSpaceBar final : public DisplayServer {
public:
    explicit ServerWithSpaceBar(FakeSpaceBar*& current) : current_(current) {}
    std::unique_ptr<BorrowedSpaceBar> makeBorrowedSpaceBar() override {
        return std::make_unique<FakeSpaceBar>(current_);
    }

private:
    FakeSpaceBar*& current_;
};

class PreviewKeyFilterTest : public CardFixture {
protected:
    PreviewKeyFilterTest() {
        show({capture("a"), capture("b")});
        makeCard();
        QTest::mouseMove(&window(), {1, 1});
    }
    // The filter goes before the display server.
    ~PreviewKeyFilterTest() override { panel.reset(); }

    void pointAt(const QQuickItem& item) {
        QTest::mouseMove(&window(), frame(item).center().toPoint());
        frames.settle();
    }
    bool isTaken() const { return key->isTaken; }

    FakeSpaceBar* key = nullptr;
    const DisplayServer::Choice server{std::make_unique<ServerWithSpaceBar>(key)};
};

TEST_F(PreviewKeyFilterTest, APointerOnATileTakesTheKeyWhichPreviewsThatTile) {
    EXPECT_FALSE(isTaken());
    pointAt(*tile(0));
    EXPECT_TRUE(isTaken());
    key->onPress();
    EXPECT_THAT(asked, ElementsAre("preview a.png"));
    EXPECT_FALSE(isTaken());
}

TEST_F(PreviewKeyFilterTest, AKeyThatRepeatsItselfPreviewsOnce) {
    pointAt(*tile(0));
    key->onPress();
    key->onPress();
    EXPECT_THAT(asked, ElementsAre("preview a.png"));
}

TEST_F(PreviewKeyFilterTest, ThePointerGoesOnToTheNextTile) {
    pointAt(*tile(0));
    pointAt(*tile(1));
    key->onPress();
    EXPECT_THAT(asked, ElementsAre("preview b.png"));
}

TEST_F(PreviewKeyFilterTest, APointerBesideTheTilesTakesNothing) {
    pointAt(*tile(0));
    QTest::mouseMove(&window(), (glassFrame().bottomLeft() + QPointF(100, -3)).toPoint());
    EXPECT_FALSE(isTaken());
    key->onPress();
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(PreviewKeyFilterTest, APointerThatRestsGivesTheKeyBack) {
    pointAt(*tile(0));
    time.advance(PreviewKeyRule::validity);
    EXPECT_FALSE(isTaken());
}

TEST_F(PreviewKeyFilterTest, TheButtonsOfATileBelongToIt) {
    pointAt(*tile(0));
    time.advance(PreviewKeyRule::validity);
    pointAt(*button("Copy to clipboard", tile(0)));
    key->onPress();
    EXPECT_THAT(asked, ElementsAre("preview a.png"));
}

TEST_F(PreviewKeyFilterTest, APressAndADragGiveTheKeyBack) {
    pointAt(*tile(0));
    const QPoint place = frame(*tile(0)).center().toPoint();
    QTest::mousePress(&window(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(isTaken());
    const QPointF there = place + QPoint(20, 0);
    QMouseEvent drag(QEvent::MouseMove, there, window().mapToGlobal(there), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &drag);
    EXPECT_FALSE(isTaken());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, there.toPoint());
}

TEST_F(PreviewKeyFilterTest, ACardThatHasTheKeyboardNeedsNoOtherKey) {
    pointAt(*tile(0));
    panel->takeKeyboard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_FALSE(isTaken());
    pointAt(*tile(1));
    EXPECT_FALSE(isTaken());
}

TEST_F(PreviewKeyFilterTest, ATileThatLeavesGivesTheKeyBack) {
    pointAt(*tile(1));
    EXPECT_TRUE(isTaken());
    state.captures.set({state.captures.value().front()});
    EXPECT_FALSE(isTaken());
}

TEST_F(PreviewKeyFilterTest, ANoticeOfTheTrashTakesNothing) {
    pointAt(*tile(0));
    trash(state.captures.value().front());
    EXPECT_FALSE(isTaken());
}

TEST_F(PreviewKeyFilterTest, ACardThatLeavesGivesTheKeyBack) {
    pointAt(*tile(0));
    state.visible.set(false);
    EXPECT_FALSE(isTaken());
}

}  // namespace
}  // namespace vantle
