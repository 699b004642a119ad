#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeWindow.h"

namespace vantle {

/// Each desk has a window that was not shown yet, and sees what the user sees of it.
struct RecordedWindow {
    std::vector<std::string> events;
    std::vector<Size> sizes;
    fakes::FakeWindow window{{events, sizes}, "it"};

    bool isShown() const { return events.back() == "it to front" || events.back() == "it shown"; }
    bool hasKeyboard() const { return events.back() == "it to front"; }
    Size contentSize() const { return sizes.back(); }
};

template <typename Desk>
class WindowContract : public testing::Test {
protected:
    Desk desk;
};

TYPED_TEST_SUITE_P(WindowContract);

TYPED_TEST_P(WindowContract, IsHiddenUntilItIsOrderedToTheFront) {
    EXPECT_FALSE(this->desk.isShown());
    this->desk.window.makeKeyAndOrderFront();
    EXPECT_TRUE(this->desk.isShown());
    EXPECT_TRUE(this->desk.hasKeyboard());
}

TYPED_TEST_P(WindowContract, CanBeShownWithoutBeingOrderedToTheFront) {
    for (int i = 0; i < 2; ++i) {
        this->desk.window.orderFront();
        EXPECT_TRUE(this->desk.isShown());
    }
}

TYPED_TEST_P(WindowContract, ComesBackAfterItWasClosed) {
    this->desk.window.makeKeyAndOrderFront();
    this->desk.window.close();
    EXPECT_FALSE(this->desk.isShown());
    this->desk.window.makeKeyAndOrderFront();
    EXPECT_TRUE(this->desk.isShown());
}

TYPED_TEST_P(WindowContract, HasTheSizeThatItIsGiven) {
    for (const Size size : {Size{480, 640}, Size{320, 200}}) {
        this->desk.window.setContentSize(size);
        EXPECT_EQ(this->desk.contentSize(), size);
    }
}

TYPED_TEST_P(WindowContract, CanBeDrawnWhetherOrNotItIsShown) {
    this->desk.window.setContentSize({480, 640});
    EXPECT_TRUE(this->desk.window.snapshot(1));
    this->desk.window.makeKeyAndOrderFront();
    EXPECT_TRUE(this->desk.window.snapshot(1));
}

REGISTER_TYPED_TEST_SUITE_P(WindowContract, IsHiddenUntilItIsOrderedToTheFront,
                            CanBeShownWithoutBeingOrderedToTheFront, ComesBackAfterItWasClosed,
                            HasTheSizeThatItIsGiven, CanBeDrawnWhetherOrNotItIsShown);

}  // namespace vantle
