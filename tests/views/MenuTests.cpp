#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QTest>
#include <optional>

#include "ManualFrames.h"
#include "menus/MenuWindow.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

const MenuItem rule{MenuItem::Kind::separator, "", ""};

class MenuTest : public testing::Test {
protected:
    void open(const std::vector<MenuItem>& lines, const QRect& anchor = {300, 200, 28, 28}) {
        window.open({"Menu", lines}, {anchor}, [this](std::optional<int> line) {
            ++timesEnded;
            chosen = line;
        });
        // Rendering lays the lines out.
        window.grabWindow();
    }
    void press(Qt::Key key) { QTest::keyClick(&window, key); }
    /// Returns the menu's area on the screen, without its shadow.
    QRect plate() {
        const int margin = qRound(window.rootObject()->property("margin").toReal());
        return window.geometry().marginsRemoved({margin, margin, margin, margin});
    }
    QPoint inLine(int line) {
        int lines = 0;
        for (const auto* page : window.rootObject()->childItems().back()->childItems()) {
            if (!page->isVisible()) continue;
            for (const auto* item : page->childItems())
                if (item->property("isSeparator").isValid() && lines++ == line)
                    return item->mapToScene(item->boundingRect().center()).toPoint();
        }
        ADD_FAILURE() << "there is no line " << line;
        return {};
    }
    int current() { return window.model().current(); }

    const std::vector<MenuItem> menu{{.title = "Mail…", .symbol = "envelope"},
                                     {.title = "Phone", .symbol = "phone"},
                                     rule,
                                     {.title = "Copy file", .symbol = "doc.on.doc"},
                                     {.title = "Reveal", .symbol = "folder"}};
    MenuWindow window;
    int timesEnded = 0;
    std::optional<int> chosen;
};

TEST_F(MenuTest, AClickChoosesAndCloses) {
    open(menu);
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(3));
    EXPECT_EQ(chosen, 3);
    EXPECT_EQ(timesEnded, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MenuTest, AClickOnASeparatorDoesNothing) {
    open(menu);
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(2));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MenuTest, APressBesideItClosesItWithoutAChoice) {
    open(menu);
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(-200, 40));
    EXPECT_EQ(timesEnded, 1);
    EXPECT_EQ(chosen, std::nullopt);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MenuTest, APressOnItsShadowClosesIt) {
    open(menu);
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(timesEnded, 1);
}

TEST_F(MenuTest, EscapeClosesItWithoutAChoice) {
    open(menu);
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_EQ(timesEnded, 1);
    EXPECT_EQ(chosen, std::nullopt);
}

TEST_F(MenuTest, ArrowsWrapAroundAndSkipSeparators) {
    open(menu);
    EXPECT_EQ(current(), MenuModel::none);
    for (const int line : {0, 1, 3, 4, 0}) {
        press(Qt::Key_Down);
        EXPECT_EQ(current(), line);
    }
    for (const int line : {4, 3, 1}) {
        press(Qt::Key_Up);
        EXPECT_EQ(current(), line);
    }
    press(Qt::Key_Home);
    EXPECT_EQ(current(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(current(), 4);
}

TEST_F(MenuTest, ALetterGoesToTheNextLineThatBeginsWithIt) {
    open(menu);
    press(Qt::Key_R);
    EXPECT_EQ(current(), 4);
    press(Qt::Key_X);
    EXPECT_EQ(current(), 4);
    press(Qt::Key_C);
    EXPECT_EQ(current(), 3);
}

TEST_F(MenuTest, ReturnChoosesTheCurrentLine) {
    open(menu);
    press(Qt::Key_Return);
    EXPECT_EQ(timesEnded, 0) << "there is none yet";
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, 1);
}

TEST_F(MenuTest, ADisabledLineCannotBeChosen) {
    open({{.title = "Recent Captures", .isEnabled = false}, {.title = "a.png"}});
    press(Qt::Key_Down);
    EXPECT_EQ(current(), 1);
    QTest::mouseMove(&window, inLine(0));
    EXPECT_NE(current(), 0);
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(0));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MenuTest, AShortcutChoosesItsLine) {
    const std::vector<MenuItem> lines{{.title = "Quick"},
                                      {.title = "Settings…", .keyEquivalent = ","},
                                      {.title = "Quit", .keyEquivalent = "q"}};
    open(lines);
    QTest::keyClick(&window, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(timesEnded, 0);
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(chosen, 2);
    open(lines);
    QTest::keyClick(&window, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(chosen, 1);
}

TEST_F(MenuTest, ALinesActionRunsAfterTheMenuHasClosed) {
    std::vector<std::string> told;
    window.open({"Menu",
                 {{.title = "One",
                   .action = [&] { told.push_back(window.isVisible() ? "open" : "closed"); }}}},
                {{300, 200, 1, 1}}, [&](auto) { told.emplace_back("ended"); });
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(told, (std::vector<std::string>{"ended", "closed"}));
}

TEST_F(MenuTest, StaysAboveTheDesktopPanelThatItWasOpenedFrom) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    open(menu, {300, room.bottom() + 20, 1, 1});
    EXPECT_LE(plate().bottom(), room.bottom());
}

TEST_F(MenuTest, ThePointerSelectsALine) {
    open(menu);
    QTest::mouseMove(&window, inLine(4));
    EXPECT_EQ(current(), 4);
    QTest::mouseMove(&window, inLine(2));
    EXPECT_EQ(current(), MenuModel::none);
}

TEST_F(MenuTest, AnotherMenuClosesTheFirstAndHasNoCurrentLine) {
    open(menu);
    press(Qt::Key_Down);
    open({{.title = "Other"}});
    EXPECT_EQ(timesEnded, 1);
    EXPECT_EQ(current(), MenuModel::none);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(timesEnded, 2);
    EXPECT_EQ(chosen, 0);
}

TEST_F(MenuTest, OpensBelowItsAnchor) {
    open(menu, {300, 200, 28, 28});
    EXPECT_EQ(plate().topLeft(), QPoint(300, 200 + 28 + 4));
}

TEST_F(MenuTest, OpensAboveIfThereIsNoRoomBelow) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    open(menu, {300, room.bottom() - 40, 28, 28});
    EXPECT_EQ(plate().bottom() + 1 + 4, room.bottom() - 40);
}

TEST_F(MenuTest, StaysOffTheSidesOfTheScreen) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    open(menu, {room.right() - 20, 200, 28, 28});
    EXPECT_EQ(plate().right(), room.right() - 6);
    open(menu, {room.left() - 20, 200, 28, 28});
    EXPECT_EQ(plate().left(), room.left() + 6);
}

TEST_F(MenuTest, IsAsLargeAsItsLinesAndCutsALongOne) {
    open(menu);
    EXPECT_EQ(plate().height(), 4 * 28 + 9 + 2 * 5);
    EXPECT_EQ(plate().width(), 170 + 2 * 5);
    open({{.title = "A telephone with a name that somebody wrote a small novel into, and more"}});
    EXPECT_EQ(plate().height(), 28 + 2 * 5);
    EXPECT_EQ(plate().width(), 380 + 2 * 5);
}

/// A menu with a submenu that is higher than the menu itself.
class MenuPageTest : public MenuTest {
protected:
    std::vector<std::string> titles() {
        std::vector<std::string> titles;
        for (const QVariant& line : window.model().lines())
            titles.push_back(line.toMap()[QStringLiteral("title")].toString().toStdString());
        return titles;
    }
    QRectF plateFrame() { return window.rootObject()->property("plateFrame").toRectF(); }
    std::function<void()> tell(const std::string& what) {
        return [this, what] { performed.push_back(what); };
    }

    std::vector<std::string> performed;
    const std::vector<MenuItem> pages{
        {.title = "Open", .action = tell("open")},
        {.title = "Open With",
         .items = {{.title = "Viewer", .action = tell("viewer")},
                   {.title = "Editor", .action = tell("editor")},
                   rule,
                   {.title = "More", .items = {{.title = "Deep", .action = tell("deep")}}},
                   {.title = "Other…", .action = tell("other")}}},
        {.title = "Copy", .action = tell("copy")}};
};

TEST_F(MenuPageTest, RightEntersAndSelectsTheFirstLineAfterTheWayBack) {
    open(pages);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(window.model().page(), 0) << "this line leads nowhere";
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_THAT(titles(),
                testing::ElementsAre("Open With", "Viewer", "Editor", "", "More", "Other…"));
    EXPECT_EQ(window.model().title(), QStringLiteral("Open With"));
    EXPECT_EQ(current(), 1);
}

TEST_F(MenuPageTest, ReturnEntersAndChooses) {
    open(pages);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_THAT(performed, testing::ElementsAre("editor"));
    EXPECT_EQ(chosen, 1) << "the line that leads to the page";
}

TEST_F(MenuPageTest, LeftBackspaceAndEscapeGoBackToTheLineThatWasEntered) {
    open(pages);
    for (const auto key : {Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Escape}) {
        window.open({"Menu", pages, 1}, {{300, 200, 28, 28}});
        press(Qt::Key_Right);
        ASSERT_EQ(window.model().page(), 1);
        press(key);
        EXPECT_EQ(window.model().page(), 0);
        EXPECT_EQ(current(), 1);
        EXPECT_TRUE(window.isVisible());
    }
    press(Qt::Key_Left);
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MenuPageTest, AClickEntersGoesBackAndChooses) {
    open(pages);
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(1));
    EXPECT_EQ(window.model().page(), 1);
    // Qt 6.8 tells at once that the pointer is on the second line, Qt 6.4 when the pointer moves.
    EXPECT_THAT(current(), testing::AnyOf(MenuModel::none, 1));
    window.grabWindow();
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(0));
    EXPECT_EQ(window.model().page(), 0);
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(1));
    window.grabWindow();
    QTest::mouseClick(&window, Qt::LeftButton, {}, inLine(1));
    EXPECT_THAT(performed, testing::ElementsAre("viewer"));
}

TEST_F(MenuPageTest, APageMayHavePages) {
    open(pages);
    for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down,
                           Qt::Key_Right, Qt::Key_Return})
        press(key);
    EXPECT_THAT(performed, testing::ElementsAre("deep"));
    EXPECT_EQ(chosen, 1);
}

TEST_F(MenuPageTest, TheWindowHasRoomForTheLargestPageAndThePlateForTheCurrentOne) {
    open(pages);
    const QSize size = window.size();
    EXPECT_EQ(plate().height(), 5 * 28 + 9 + 2 * 5);
    EXPECT_EQ(plateFrame().height(), 3 * 28 + 2 * 5);
    EXPECT_EQ(plateFrame().top(), window.rootObject()->property("margin").toReal());
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    EXPECT_EQ(plateFrame().height(), 5 * 28 + 9 + 2 * 5);
    EXPECT_EQ(window.size(), size);
}

TEST_F(MenuPageTest, ThePlateGrowsToThePageLikeASpring) {
    ManualFrames frames;
    open(pages, {300, 200, 28, 28});
    const auto height = [this] { return window.rootObject()->property("drawnHeight").toDouble(); };
    EXPECT_EQ(height(), 3 * 28 + 2 * 5);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    frames.advance(60);
    EXPECT_GT(height(), 3 * 28 + 2 * 5);
    EXPECT_LT(height(), 5 * 28 + 9 + 2 * 5);
    frames.settle();
    EXPECT_EQ(height(), 5 * 28 + 9 + 2 * 5);
}

TEST_F(MenuPageTest, ThePlateChangesAtOnceForAUserWhoPrefersLessMotion) {
    DesktopAppearance desktop;
    desktop.look.set({.reducesMotion = true});
    Appearance::follow(&desktop);
    {
        MenuWindow calm;
        calm.open({"Menu", pages, 1}, {{300, 200, 28, 28}});
        QTest::keyClick(&calm, Qt::Key_Right);
        EXPECT_EQ(calm.rootObject()->property("drawnHeight").toDouble(), 5 * 28 + 9 + 2 * 5);
    }
    Appearance::follow(nullptr);
}

TEST_F(MenuPageTest, StaysBesideAnAnchorBelowIt) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    open(pages, {300, room.bottom() - 40, 28, 28});
    const double bottom = window.y() + plateFrame().bottom();
    EXPECT_EQ(bottom + 4, room.bottom() - 40);
}

TEST_F(MenuPageTest, APressBesideTheCurrentPageCloses) {
    open(pages);
    QTest::mousePress(&window, Qt::LeftButton, {},
                      QPoint(window.width() / 2, qRound(plateFrame().bottom()) + 12));
    EXPECT_EQ(timesEnded, 1);
}

TEST_F(MenuPageTest, AnotherMenuBeginsAtItsFirstPage) {
    open(pages);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    open(pages);
    EXPECT_EQ(window.model().page(), 0);
    EXPECT_EQ(current(), MenuModel::none);
}

TEST_F(MenuPageTest, AnIconLeavesTheLineAsHighAsTheOthers) {
    const auto picture = std::make_shared<Image>(Image{1, 1, {20, 20}, {255, 0, 0, 255}});
    const MenuImage icon{picture, {20, 20}, {{0, 0}, {20, 20}}};
    open({{.title = "Viewer", .image = icon}, {.title = "Other…"}});
    EXPECT_EQ(plate().height(), 2 * 28 + 2 * 5);
}

}  // namespace
}  // namespace vantle
