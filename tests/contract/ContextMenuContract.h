#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fakes/FakeContextMenu.h"

namespace vantle {

struct PretendedContextMenu {
    fakes::FakeContextMenu menu;
    void chooseFirst() { menu.choose({0}); }
    /// Chooses the first item of the submenu of the second item.
    void chooseInSubmenu() { menu.choose({1, 0}); }
    void dismiss() { menu.close(); }
};

template <typename Desk>
class ContextMenuContract : public testing::Test {
protected:
    std::function<void()> tell(const std::string& what) {
        return [this, what] { told.push_back(what); };
    }
    void show(const std::string& closed = "closed") {
        const Menu menu{
            "Capture",
            {{.title = "Open", .action = tell("open")},
             {.title = "Open With", .items = {{.title = "Viewer", .action = tell("viewer")}}}}};
        desk.menu.show(menu, Rect{{300, 300}, {28, 28}}, tell(closed));
    }

    Desk desk;
    std::vector<std::string> told;
};

TYPED_TEST_SUITE_P(ContextMenuContract);

TYPED_TEST_P(ContextMenuContract, PerformsTheChosenActionAfterItHasClosed) {
    this->show();
    EXPECT_THAT(this->told, testing::IsEmpty());
    this->desk.chooseFirst();
    EXPECT_THAT(this->told, testing::ElementsAre("closed", "open"));
}

TYPED_TEST_P(ContextMenuContract, PerformsTheActionOfASubmenu) {
    this->show();
    this->desk.chooseInSubmenu();
    EXPECT_THAT(this->told, testing::ElementsAre("closed", "viewer"));
}

TYPED_TEST_P(ContextMenuContract, ReportsOnceThatItClosedWithoutAChoice) {
    this->show();
    this->desk.dismiss();
    EXPECT_THAT(this->told, testing::ElementsAre("closed"));
    this->desk.menu.close();
    EXPECT_EQ(this->told.size(), 1u);
}

TYPED_TEST_P(ContextMenuContract, CanBeClosedByItsOpener) {
    this->desk.menu.close();
    this->show();
    this->desk.menu.close();
    EXPECT_THAT(this->told, testing::ElementsAre("closed"));
}

TYPED_TEST_P(ContextMenuContract, ASecondMenuClosesTheFirst) {
    this->show("first");
    this->show("second");
    EXPECT_THAT(this->told, testing::ElementsAre("first"));
    this->desk.chooseFirst();
    EXPECT_THAT(this->told, testing::ElementsAre("first", "second", "open"));
}

REGISTER_TYPED_TEST_SUITE_P(ContextMenuContract, PerformsTheChosenActionAfterItHasClosed,
                            PerformsTheActionOfASubmenu, ReportsOnceThatItClosedWithoutAChoice,
                            CanBeClosedByItsOpener, ASecondMenuClosesTheFirst);

}  // namespace vantle
