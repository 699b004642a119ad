#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "contract/ContextMenuContract.h"
#include "menus/MenuContextMenu.h"

namespace vantle {
namespace {

struct DrawnContextMenu {
    MenuContextMenu menu{[] { return nullptr; }};

    void press(Qt::Key key) { QTest::keyClick(menu.window(), key); }
    void chooseFirst() {
        press(Qt::Key_Down);
        press(Qt::Key_Return);
    }
    void chooseInSubmenu() {
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
    }
    void dismiss() { press(Qt::Key_Escape); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(MenuContextMenu, ContextMenuContract, DrawnContextMenu);

TEST(MenuContextMenuTest, BeginsAtTheCurrentItem) {
    DrawnContextMenu desk;
    desk.menu.show({"Capture", {{.title = "Open"}}, 0}, Rect{{300, 300}, {28, 28}}, [] {});
    EXPECT_EQ(desk.menu.window()->model().current(), 0);
}

}  // namespace
}  // namespace vantle
