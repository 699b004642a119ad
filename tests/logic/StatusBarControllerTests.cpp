#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "app/StatusBarController.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/SettingsOnFakes.h"

namespace vantle {
namespace {

using testing::ElementsAre;

class StatusBarControllerTest : public testing::Test {
protected:
    StatusBarController& make() {
        controller = std::make_unique<StatusBarController>(item, opener, application, settings);
        controller->recent = [this] { return captures; };
        return *controller;
    }

    /// Adds a capture whose thumbnail has that size, or a capture without a thumbnail if it is
    /// empty.
    CapturePointer add(const std::string& name, Size size = {}) {
        const Url url = Url::file("/shots/" + name);
        if (size != Size{}) media.addImage(url, size, size);
        const auto capture = Capture::create(url, Date{});
        capture->loadThumbnail(media, std::max(size.width, size.height));
        captures.push_back(capture);
        return capture;
    }

    const MenuItem& line(const std::string& title) const {
        return *std::ranges::find(item.menu.items, title, &MenuItem::title);
    }

    fakes::FakeStatusItem item;
    fakes::FakeFileOpener opener;
    fakes::FakeApplication application;
    fakes::FakeMediaLoader media;
    fakes::SettingsOnFakes onFakes;
    Settings& settings = onFakes.settings;
    std::vector<CapturePointer> captures;
    std::unique_ptr<StatusBarController> controller;
};

TEST_F(StatusBarControllerTest, TheItemIsInTheTrayFromTheBeginning) {
    make();
    EXPECT_TRUE(item.isShown());
    EXPECT_EQ(item.image, "photo.on.rectangle.angled");
    EXPECT_EQ(item.description, "Vantle");
    EXPECT_EQ(item.title, "");
    EXPECT_EQ(item.autosaveName, "VantleStatusItem");
    EXPECT_FALSE(controller->paused());
}

TEST_F(StatusBarControllerTest, TheItemShowsALetterWithoutThePicture) {
    item.pictures.clear();
    make();
    EXPECT_EQ(item.image, "");
    EXPECT_EQ(item.title, "V");
}

TEST_F(StatusBarControllerTest, TheMenuSaysThatThereAreNoCaptures) {
    make();
    EXPECT_THAT(item.open(), ElementsAre("No captures yet", "-", "Pause Vantle", "Settings…",
                                         "Check for Updates…", "-", "Quit Vantle"));
    EXPECT_FALSE(line("No captures yet").isEnabled);
}

TEST_F(StatusBarControllerTest, TheMenuListsCapturesAndTheirFolder) {
    make();
    add("b.png");
    add("a.png");
    EXPECT_THAT(item.open(), ElementsAre("Recent Captures", "b.png", "a.png", "-",
                                         "Open Screenshots Folder", "-", "Pause Vantle",
                                         "Settings…", "Check for Updates…", "-", "Quit Vantle"));
    EXPECT_FALSE(line("Recent Captures").isEnabled);
}

TEST_F(StatusBarControllerTest, TheMenuListsThe10NewestOf25CapturesInOrder) {
    make();
    std::vector<std::string> expected;
    for (int i = 1; i <= 25; ++i) {
        add(std::to_string(i) + ".png");
        if (i <= 10) expected.push_back(std::to_string(i) + ".png");
    }
    const auto titles = item.open();
    EXPECT_EQ(titles.front(), "Recent Captures");
    EXPECT_EQ(std::vector(titles.begin() + 1, titles.begin() + 11), expected);
    EXPECT_EQ(titles[11], "-");
}

TEST_F(StatusBarControllerTest, AThumbnailIsFittedAndCentred) {
    make();
    add("wide.png", {1920, 1080});
    add("high.png", {1000, 2000});
    add("none.png");
    item.open();
    const auto& wide = line("wide.png").image;
    ASSERT_TRUE(wide);
    EXPECT_EQ(wide->size, (Size{36, 24}));
    EXPECT_EQ(wide->frame, (Rect{{0, 1.875}, {36, 20.25}}));
    EXPECT_EQ(wide->picture, captures[0]->thumbnail());
    const auto& high = line("high.png").image;
    ASSERT_TRUE(high);
    EXPECT_EQ(high->frame, (Rect{{12, 0}, {12, 24}}));
    EXPECT_FALSE(line("none.png").image);
}

TEST_F(StatusBarControllerTest, OnlySettingsAndQuitHaveShortcuts) {
    make();
    add("a.png");
    item.open();
    for (const auto& each : item.menu.items) {
        const std::string key = each.title == "Settings…"     ? ","
                                : each.title == "Quit Vantle" ? "q"
                                                              : "";
        EXPECT_EQ(each.keyEquivalent, key) << each.title;
    }
}

TEST_F(StatusBarControllerTest, PausingChangesTheItemAndTheMenu) {
    make();
    std::vector<bool> told;
    controller->onPause = [&](bool paused) { told.push_back(paused); };
    item.open();
    EXPECT_TRUE(item.choose("Pause Vantle"));
    EXPECT_TRUE(controller->paused());
    EXPECT_TRUE(item.appearsDisabled);
    EXPECT_EQ(item.menuChanges, 1);
    EXPECT_THAT(told, ElementsAre(true));

    EXPECT_THAT(item.open(), testing::Contains("Resume Vantle"));
    EXPECT_TRUE(item.choose("Resume Vantle"));
    EXPECT_FALSE(controller->paused());
    EXPECT_FALSE(item.appearsDisabled);
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST_F(StatusBarControllerTest, ALineShowsTheCaptureThatItWasMadeFor) {
    make();
    std::vector<CapturePointer> shown;
    controller->onShow = [&](const CapturePointer& capture) { shown.push_back(capture); };
    const auto first = add("a.png");
    item.open();
    // A capture that arrives while the menu is open.
    captures.insert(captures.begin(), Capture::create(Url::file("/shots/b.png"), Date{}));
    EXPECT_TRUE(item.choose("a.png"));
    EXPECT_THAT(shown, ElementsAre(first));
}

TEST_F(StatusBarControllerTest, TheOtherLinesRunTheirActions) {
    make();
    int settingsAsked = 0;
    int updatesAsked = 0;
    controller->onSettings = [&] { ++settingsAsked; };
    controller->onCheckForUpdates = [&] { ++updatesAsked; };
    add("a.png");
    item.open();
    EXPECT_TRUE(item.choose("Open Screenshots Folder"));
    EXPECT_THAT(opener.opened, ElementsAre(settings.screenshotFolder.value()));
    EXPECT_TRUE(item.choose("Settings…"));
    EXPECT_EQ(settingsAsked, 1);
    EXPECT_TRUE(item.choose("Check for Updates…"));
    EXPECT_EQ(updatesAsked, 1);
    EXPECT_TRUE(item.choose("Quit Vantle"));
    EXPECT_EQ(application.terminations, 1);
    EXPECT_FALSE(item.choose("Recent Captures"));
}

}  // namespace
}  // namespace vantle
