#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeFolderChooser.h"
#include "fakes/SettingsOnFakes.h"
#include "screens/FolderPicker.h"

namespace vantle {
namespace {

using testing::ElementsAre;

class FolderPickerTest : public testing::Test, protected fakes::SettingsOnFakes {
protected:
    void choose(const std::string& title) {
        for (const MenuItem& item : picker.menu().items)
            if (item.title == title) return item.action();
        FAIL() << "there is no " << title;
    }
    std::string folder() const { return settings.screenshotFolder.value().path(); }

    fakes::ManualScheduler scheduler{time};
    fakes::FakeFolderChooser chooser{scheduler};
    FolderPicker picker{{settings, files, chooser, application}};
};

TEST_F(FolderPickerTest, TheMenuOffersThePlacesAndTheChooser) {
    std::vector<std::string> titles;
    for (const MenuItem& item : picker.menu().items)
        titles.push_back(item.kind == MenuItem::Kind::separator ? "-" : item.title);
    EXPECT_EQ(picker.menu().title, "Change");
    EXPECT_THAT(titles, ElementsAre("Desktop (macOS default)", "~/Pictures/Screenshots",
                                    "~/Screenshots", "-", "Choose…"));
}

TEST_F(FolderPickerTest, AFolderThatDoesNotExistIsSelectedAndCreated) {
    const Url screenshots = Url::file("/home/user/Screenshots");
    EXPECT_EQ(files.existence(screenshots), FileManager::Existence::none);
    choose("~/Screenshots");
    EXPECT_EQ(folder(), "/home/user/Screenshots");
    EXPECT_EQ(files.existence(screenshots), FileManager::Existence::directory);
}

TEST_F(FolderPickerTest, EachPlaceHasItsPath) {
    choose("~/Pictures/Screenshots");
    EXPECT_EQ(folder(), "/home/user/Pictures/Screenshots");
    choose("Desktop (macOS default)");
    EXPECT_EQ(folder(), "/home/user/Desktop");
}

TEST_F(FolderPickerTest, TheChooserStartsInTheCurrentFolderInFrontOfOtherPrograms) {
    choose("~/Screenshots");
    choose("Choose…");
    ASSERT_EQ(chooser.requests.size(), 1u);
    const FolderRequest& request = chooser.requests.front();
    EXPECT_EQ(request.directory, Url::file("/home/user/Screenshots"));
    EXPECT_EQ(request.acceptLabel, "Use This Folder");
    EXPECT_EQ(request.message, "Choose where macOS should save screenshots and screen recordings.");
    EXPECT_EQ(application.activations, 1);
}

TEST_F(FolderPickerTest, UsesTheChosenFolder) {
    picker.choose();
    chooser.close(Url::file("/data/shots"));
    EXPECT_EQ(folder(), "/data/shots");
}

TEST_F(FolderPickerTest, ACancelledChooserLeavesTheFolder) {
    choose("~/Screenshots");
    picker.choose();
    chooser.close(std::nullopt);
    EXPECT_EQ(folder(), "/home/user/Screenshots");
}

TEST_F(FolderPickerTest, OpensNoSecondChooser) {
    picker.choose();
    picker.choose();
    time.settle();
    EXPECT_EQ(chooser.requests.size(), 1u);
    EXPECT_TRUE(chooser.isOpen());
}

TEST_F(FolderPickerTest, PathsInTheHomeDirectoryAreShort) {
    const auto name = [&](const char* path) { return picker.displayName(Url::file(path)); };
    EXPECT_EQ(name("/home/user/Desktop"), "~/Desktop");
    EXPECT_EQ(name("/home/user"), "~");
    EXPECT_EQ(name("/home/username/Desktop"), "/home/username/Desktop");
    EXPECT_EQ(name("/media/disk"), "/media/disk");
    files.setHome(Url::file("/"));
    EXPECT_EQ(name("/media/disk"), "/media/disk");
}

TEST_F(FolderPickerTest, TheLastEntryRestoresTheSystemsFolder) {
    (void)files.createDirectory(Url::file("/home/user/Bilder"));
    domain.previousValues["location"] = std::string("/home/user/Bilder");
    ASSERT_EQ(picker.menu().items.size(), 7u);
    EXPECT_EQ(picker.menu().items[5].kind, MenuItem::Kind::separator);
    EXPECT_EQ(picker.menu().items[6].title, "Restore ~/Bilder");
    choose("Restore ~/Bilder");
    EXPECT_EQ(folder(), "/home/user/Bilder");
    EXPECT_EQ(picker.menu().items.size(), 5u);
}

}  // namespace
}  // namespace vantle
