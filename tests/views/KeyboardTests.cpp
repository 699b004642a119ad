// What keys do while the panel has the keyboard focus, and what assistive programs find.

#include <gmock/gmock.h>

#include <QAccessible>

#include "CardFixture.h"
#include "fakes/CapturedLog.h"

namespace vantle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class KeyboardTest : public CardFixture {
protected:
    void showThree() {
        show({capture("a"), b, capture("c")});
        makeCard();
        panel->takeKeyboard();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window(), key, modifiers);
    }
    /// Returns the position of the tile that has the keyboard focus, or -1 if none has.
    int focused() const {
        const auto tiles = items("CaptureTile");
        for (std::size_t i = 0; i < tiles.size(); ++i)
            if (tiles[i]->hasActiveFocus()) return static_cast<int>(i);
        return -1;
    }

    CapturePointer b = capture("b");
};

TEST_F(KeyboardTest, TheNewestTileHasTheFocusFirst) {
    showThree();
    EXPECT_EQ(focused(), 2);
}

TEST_F(KeyboardTest, ArrowsMoveBetweenTilesAndStopAtTheEnds) {
    showThree();
    key(Qt::Key_Right);
    EXPECT_EQ(focused(), 2);
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), 1);
    key(Qt::Key_Home);
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(focused(), 2);
}

TEST_F(KeyboardTest, ACardWithTheFocusCountsAsHovered) {
    showThree();
    EXPECT_TRUE(state.hovering.value());
    EXPECT_TRUE(flag(item("ClearAllPill"), "isShown"));
}

TEST_F(KeyboardTest, ReturnOpensSpacePreviewsDeleteTrashes) {
    showThree();
    key(Qt::Key_Left);
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    key(Qt::Key_Space, Qt::ControlModifier);
    key(Qt::Key_Delete);
    EXPECT_THAT(asked,
                ElementsAre("open b.png", "preview b.png", "toggle select b.png", "trash b.png"));
}

TEST_F(KeyboardTest, SpaceIsMeantForTheTileUnderThePointer) {
    showThree();
    hover(*tile(0));
    key(Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("preview a.png"));
}

TEST_F(KeyboardTest, AHeldSpaceBarPreviewsOnce) {
    showThree();
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(&window(), &again);
    EXPECT_THAT(asked, IsEmpty()) << "it is held since it closed the preview";
    key(Qt::Key_Space);
    QCoreApplication::sendEvent(&window(), &again);
    EXPECT_THAT(asked, ElementsAre("preview c.png"));
}

TEST_F(KeyboardTest, DeleteOnASelectedTileTrashesTheSelection) {
    showThree();
    state.selected.set({b->id()});
    key(Qt::Key_Left);
    key(Qt::Key_Delete);
    EXPECT_THAT(asked, ElementsAre("trash selected"));
}

TEST_F(KeyboardTest, ControlAndZUndo) {
    showThree();
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(asked, ElementsAre("undo"));
}

TEST_F(KeyboardTest, ATrashedTileKeepsTheFocusAndIsUndoneByReturnOrSpace) {
    showThree();
    key(Qt::Key_Left);
    trash(b);
    EXPECT_EQ(focused(), 1);
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    key(Qt::Key_Delete);
    const std::string undone = "undo trash " + b->id().text();
    EXPECT_THAT(asked, ElementsAre(undone, undone));
}

TEST_F(KeyboardTest, EscapeIsNotLoggedAsATap) {
    fakes::CapturedLog log{fakes::CapturedLog::DebugSwitch::on};
    show({capture("a"), capture("b")});
    makeCard();
    panel->takeKeyboard();
    rest();
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_THAT(asked, testing::ElementsAre("close all"));
    EXPECT_THAT(log.lines(), testing::Not(testing::Contains("Vantle[dbg]: tap Clear all")));
}

TEST_F(KeyboardTest, EscapeClearsTheSelectionAndThenDismisses) {
    showThree();
    state.selected.set({b->id()});
    key(Qt::Key_Escape);
    EXPECT_THAT(asked, ElementsAre("clear selection"));
    state.selected.set({});
    key(Qt::Key_Escape);
    EXPECT_THAT(asked, ElementsAre("clear selection", "close all"));
}

TEST_F(KeyboardTest, ATileWithTheKeyboardIsScrolledIntoSight) {
    std::vector<CapturePointer> many;
    for (int i = 0; i < 12; ++i) many.push_back(capture(std::to_string(i)));
    show(many);
    makeCard();
    panel->takeKeyboard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    key(Qt::Key_Home);
    rest();
    EXPECT_EQ(frameIn(*tile(0), *item("TileRow")).left(), 10);
}

TEST_F(KeyboardTest, TabReachesTheButtonsOfATileAndSpacePressesThem) {
    showThree();
    rest();
    key(Qt::Key_Tab);
    QQuickItem* first = window().activeFocusItem();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(text(first, "name"), "Copy to clipboard");
    key(Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("copy c.png"));
}

TEST_F(KeyboardTest, TheNeighbourOfARemovedTileGetsTheFocus) {
    showThree();
    auto left = state.captures.value();
    left.pop_back();
    show(left);
    EXPECT_EQ(focused(), 1);
    left.erase(left.begin());
    show(left);
    EXPECT_EQ(focused(), 0);
}

class AccessibilityTest : public CardFixture {
protected:
    /// Appends "role name" of everything below the window, depth first.
    static void describe(QAccessibleInterface* item, std::vector<std::string>& lines) {
        for (int i = 0; i < item->childCount(); ++i) {
            QAccessibleInterface* child = item->child(i);
            const char* role = child->role() == QAccessible::Button     ? "button "
                               : child->role() == QAccessible::List     ? "list "
                               : child->role() == QAccessible::ListItem ? "item "
                                                                        : nullptr;
            if (role) lines.push_back(role + child->text(QAccessible::Name).toStdString());
            describe(child, lines);
        }
    }
    QAccessibleInterface* find(QAccessibleInterface* item, const QString& name) {
        for (int i = 0; i < item->childCount(); ++i) {
            QAccessibleInterface* child = item->child(i);
            if (child->text(QAccessible::Name) == name) return child;
            if (auto* found = find(child, name)) return found;
        }
        return nullptr;
    }
    QAccessibleInterface* root() { return QAccessible::queryAccessibleInterface(&window()); }
};

TEST_F(AccessibilityTest, EveryControlHasARoleAndAName) {
    settings.dismissAfter.set(10);
    show({capture("a"), recording("b", 65)});
    makeCard();
    hover(*tile(0));
    hover(*tile(1));
    std::vector<std::string> lines;
    describe(root(), lines);
    EXPECT_THAT(lines, testing::IsSupersetOf(
                           {"list Captures", "item a.png", "item b.mov, recording, 1:05",
                            "button Pin (ignore the timer)", "button Copy to clipboard",
                            "button Share", "button Reveal in Finder", "button Move to Trash",
                            "button Dismiss", "button Clear all", "button Copy selected",
                            "button Move selected to Trash", "button Dismiss selected"}));
}

TEST_F(AccessibilityTest, ActionsDoWhatTheMouseDoes) {
    show({capture("a"), capture("b")});
    makeCard();
    hover(*tile(0));
    const auto act = [&](const char* name, const QString& action) {
        QAccessibleInterface* found = find(root(), QString::fromUtf8(name));
        ASSERT_NE(found, nullptr) << name;
        ASSERT_NE(found->actionInterface(), nullptr) << name;
        EXPECT_THAT(found->actionInterface()->actionNames(), Contains(action)) << name;
        found->actionInterface()->doAction(action);
    };
    act("a.png", QAccessibleActionInterface::pressAction());
    act("a.png", QAccessibleActionInterface::toggleAction());
    act("Copy to clipboard", QAccessibleActionInterface::pressAction());
    act("Dismiss", QAccessibleActionInterface::pressAction());
    act("Clear all", QAccessibleActionInterface::pressAction());
    EXPECT_THAT(asked, ElementsAre("open a.png", "toggle select a.png", "copy a.png", "close a.png",
                                   "close all"));
}

}  // namespace
}  // namespace vantle
