#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakePanelWindow.h"
#include "panel/CardLayout.h"

namespace vantle {

/// Each desk has a panel that was not shown yet, and gives it captures to show.
struct RecordedPanel {
    fakes::FakePanelWindow::Record record;
    fakes::FakePanelWindow panel{record};

    void showCaptures(std::size_t count) {
        record.thumbnails.assign(count, {UUID(), {{20, 40}, {100, 80}}});
    }
    bool isShown() const { return record.isOnScreen; }
    bool hasKeyboard() const { return record.timesKeyboardTaken > 0; }
};

template <typename Desk>
class PanelWindowContract : public testing::Test {
protected:
    static Rect frameAt(double x, double y) { return {{x, y}, CardLayout::windowSize}; }
    static Rect content() { return {{}, CardLayout::windowSize}; }

    Desk desk;
};

TYPED_TEST_SUITE_P(PanelWindowContract);

TYPED_TEST_P(PanelWindowContract, IsOnTheScreenUntilItIsOrderedOut) {
    auto& panel = this->desk.panel;
    EXPECT_FALSE(this->desk.isShown());
    panel.setFrame(this->frameAt(40, 60));
    panel.orderFrontRegardless();
    EXPECT_TRUE(this->desk.isShown());
    panel.orderOut();
    EXPECT_FALSE(this->desk.isShown());
    panel.releaseResources();
    panel.orderFrontRegardless();
    EXPECT_TRUE(this->desk.isShown());
}

TYPED_TEST_P(PanelWindowContract, StandsWhereItsFrameIs) {
    auto& panel = this->desk.panel;
    panel.setFrame(this->frameAt(40, 60));
    panel.orderFrontRegardless();
    EXPECT_EQ(panel.onScreen(this->content()), this->frameAt(40, 60));
    panel.setFrame(this->frameAt(10, 20));
    EXPECT_EQ(panel.onScreen(this->content()), this->frameAt(10, 20));
}

TYPED_TEST_P(PanelWindowContract, APlaceFromTheTopOfItsContentIsOneFromTheBottomOfTheScreen) {
    auto& panel = this->desk.panel;
    panel.setFrame(this->frameAt(40, 60));
    panel.orderFrontRegardless();
    const double top = 60 + CardLayout::windowSize.height;
    EXPECT_EQ(panel.onScreen({{5, 10}, {20, 30}}), (Rect{{45, top - 40}, {20, 30}}));
}

TYPED_TEST_P(PanelWindowContract, HasAThumbnailInsideItForEachCapture) {
    this->desk.showCaptures(3);
    this->desk.panel.setFrame(this->frameAt(40, 60));
    this->desk.panel.orderFrontRegardless();
    const auto thumbnails = this->desk.panel.visibleThumbnails();
    ASSERT_EQ(thumbnails.size(), 3u);
    for (const VisibleThumbnail& thumbnail : thumbnails) {
        EXPECT_GE(thumbnail.frame.minX(), 0);
        EXPECT_GE(thumbnail.frame.minY(), 0);
        EXPECT_LE(thumbnail.frame.maxX(), CardLayout::windowSize.width);
        EXPECT_LE(thumbnail.frame.maxY(), CardLayout::windowSize.height);
    }
}

TYPED_TEST_P(PanelWindowContract, TakesNoKeyboardWhileItIsNotOnTheScreen) {
    this->desk.panel.takeKeyboard();
    EXPECT_FALSE(this->desk.hasKeyboard());
}

REGISTER_TYPED_TEST_SUITE_P(PanelWindowContract, IsOnTheScreenUntilItIsOrderedOut,
                            StandsWhereItsFrameIs,
                            APlaceFromTheTopOfItsContentIsOneFromTheBottomOfTheScreen,
                            HasAThumbnailInsideItForEachCapture,
                            TakesNoKeyboardWhileItIsNotOnTheScreen);

}  // namespace vantle
