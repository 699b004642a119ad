#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fakes/FakeStatusItem.h"

namespace vantle {

/// The fake as a tray. A tray can appear and go, opens the item's menu and returns it as people see
/// it (a separator is "-"), and chooses from it.
struct RecordedTray {
    fakes::FakeStatusItem item;

    std::vector<std::string> open() { return item.open(); }
    void choose(const std::string& title) { item.choose(title); }
    bool isDimmed() const { return item.appearsDisabled; }
    void start() { item.hasTray = true; }
    void stop() { item.hasTray = false; }
    bool showsItem(bool shown) const { return item.isShown() == shown; }
    static bool runUntil(const std::function<bool()>& condition) { return condition(); }
};

template <typename Tray>
class StatusItemContract : public testing::Test {
protected:
    StatusItemContract() {
        EXPECT_TRUE(tray.item.setImage("photo.on.rectangle.angled", "Program"));
        tray.item.setAutosaveName("ProgramItem");
        tray.item.menuNeedsUpdate = [this] { return Menu{"Program", lines}; };
    }

    std::vector<MenuItem> lines{{.title = "Heading", .isEnabled = false},
                                {.kind = MenuItem::Kind::separator},
                                {.title = "one_two", .action = [this] { ++timesChosen; }}};
    int timesChosen = 0;
    Tray tray;
};

TYPED_TEST_SUITE_P(StatusItemContract);

TYPED_TEST_P(StatusItemContract, IsInTheTrayAfterItIsShown) {
    this->tray.start();
    EXPECT_FALSE(this->tray.item.isShown());
    this->tray.item.show();
    EXPECT_TRUE(this->tray.showsItem(true));
}

TYPED_TEST_P(StatusItemContract, APictureThatDoesNotExistChangesNothing) {
    EXPECT_FALSE(this->tray.item.setImage("nonsense", "Other"));
    this->tray.start();
    this->tray.item.show();
    EXPECT_TRUE(this->tray.showsItem(true));
}

TYPED_TEST_P(StatusItemContract, FollowsATrayThatAppearsLaterAndRestarts) {
    this->tray.stop();
    this->tray.item.show();
    EXPECT_TRUE(this->tray.showsItem(false));
    for (int round = 0; round < 2; ++round) {
        this->tray.start();
        EXPECT_TRUE(this->tray.showsItem(true));
        this->tray.stop();
        EXPECT_TRUE(this->tray.showsItem(false));
    }
}

TYPED_TEST_P(StatusItemContract, TheMenuIsMadeAtEachOpening) {
    this->tray.start();
    this->tray.item.show();
    ASSERT_TRUE(this->tray.showsItem(true));
    EXPECT_THAT(this->tray.open(), testing::ElementsAre("Heading", "-", "one_two"));
    this->lines = {{.title = "Other"}};
    EXPECT_THAT(this->tray.open(), testing::ElementsAre("Other"));
}

TYPED_TEST_P(StatusItemContract, ChoosingRunsTheActionOfTheLine) {
    this->lines.push_back({.title = "Plain", .action = [this] { this->timesChosen += 10; }});
    this->tray.start();
    this->tray.item.show();
    ASSERT_TRUE(this->tray.showsItem(true));
    this->tray.open();
    this->tray.choose("Heading");
    this->tray.choose("Plain");
    EXPECT_TRUE(this->tray.runUntil([&] { return this->timesChosen > 0; }));
    EXPECT_EQ(this->timesChosen, 10);
}

TYPED_TEST_P(StatusItemContract, IsDimmedAndBackAgain) {
    this->tray.start();
    this->tray.item.show();
    ASSERT_TRUE(this->tray.showsItem(true));
    EXPECT_FALSE(this->tray.isDimmed());
    this->tray.item.setAppearsDisabled(true);
    EXPECT_TRUE(this->tray.isDimmed());
    this->tray.item.setAppearsDisabled(false);
    EXPECT_FALSE(this->tray.isDimmed());
}

REGISTER_TYPED_TEST_SUITE_P(StatusItemContract, IsInTheTrayAfterItIsShown,
                            APictureThatDoesNotExistChangesNothing,
                            FollowsATrayThatAppearsLaterAndRestarts, TheMenuIsMadeAtEachOpening,
                            ChoosingRunsTheActionOfTheLine, IsDimmedAndBackAgain);

}  // namespace vantle
