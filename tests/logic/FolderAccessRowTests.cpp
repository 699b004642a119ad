#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "fakes/FakePrivacySettings.h"
#include "fakes/SettingsOnFakes.h"
#include "screens/FolderAccessRow.h"

namespace vantle {
namespace {

using testing::ElementsAre;

class FolderAccessRowTest : public testing::Test, protected fakes::SettingsOnFakes {
protected:
    FolderAccessRowTest() { (void)files.createDirectory(desktop); }

    AccessState checked() {
        row->check();
        time.settle();
        return row->state.value();
    }
    FolderAccessRow::Contents contents() const {
        return FolderAccessRow::contents(row->state.value());
    }
    std::vector<std::string> buttons() const {
        std::vector<std::string> titles;
        for (const auto& button : contents().buttons) titles.push_back(button.title);
        return titles;
    }
    void press(std::size_t button) {
        (row.get()->*contents().buttons[button].action)();
        time.settle();
    }

    const Url desktop = Url::file("/home/user/Desktop");
    fakes::ManualScheduler scheduler{time};
    fakes::FakePrivacySettings privacySettings;
    std::shared_ptr<FolderAccessRow> row =
        FolderAccessRow::create({settings, files, queue, scheduler, privacySettings});
};

constexpr auto permissionExplanation =
    "macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.";

TEST_F(FolderAccessRowTest, AtFirstNothingIsKnown) {
    EXPECT_EQ(row->state.value(), AccessState::unknown);
    EXPECT_EQ(contents().symbol, "lock.circle");
    EXPECT_EQ(contents().title, "Folder access");
    EXPECT_EQ(contents().caption, permissionExplanation);
    EXPECT_THAT(buttons(), ElementsAre("Grant access"));
}

TEST_F(FolderAccessRowTest, AFolderThatCanBeListedIsGranted) {
    EXPECT_EQ(checked(), AccessState::granted);
    EXPECT_EQ(contents().symbol, "checkmark.circle.fill");
    EXPECT_EQ(contents().title, "Vantle can read this folder");
    EXPECT_EQ(contents().caption, permissionExplanation);
    EXPECT_THAT(buttons(), ElementsAre("Check again"));
}

TEST_F(FolderAccessRowTest, AFolderThatIsRefusedIsDenied) {
    files.failListing(desktop, EACCES);
    EXPECT_EQ(checked(), AccessState::denied);
    EXPECT_EQ(contents().symbol, "exclamationmark.triangle.fill");
    EXPECT_EQ(contents().title, "macOS is blocking access to this folder");
    EXPECT_EQ(contents().caption,
              "Allow Vantle under Privacy & Security → Files and Folders, then check again.");
    EXPECT_THAT(buttons(), ElementsAre("Open Privacy Settings", "Grant access"));
}

TEST_F(FolderAccessRowTest, AFolderThatNoLongerExistsIsDenied) {
    files.removeDirectory(desktop);
    EXPECT_EQ(checked(), AccessState::denied);
}

TEST_F(FolderAccessRowTest, ItsButtonsCheckAndOpenThePrivacySettings) {
    files.failListing(desktop, EACCES);
    press(0);
    EXPECT_EQ(row->state.value(), AccessState::denied);
    press(0);
    EXPECT_THAT(privacySettings.opened, ElementsAre(desktop));
    files.failListing(desktop, 0);
    press(1);
    EXPECT_EQ(row->state.value(), AccessState::granted);
    files.removeDirectory(desktop);
    press(0);
    EXPECT_EQ(row->state.value(), AccessState::denied);
}

TEST_F(FolderAccessRowTest, ItChecksWheneverTheFolderChanges) {
    settings.setScreenshotFolder(Url::file("/home/user/Screenshots"));
    time.settle();
    EXPECT_EQ(row->state.value(), AccessState::granted);
    settings.screenshotFolder.set(Url::file("/nowhere"));
    time.settle();
    EXPECT_EQ(row->state.value(), AccessState::denied);
}

TEST_F(FolderAccessRowTest, ADestroyedRowIsNotUpdated) {
    row->check();
    row.reset();
    time.settle();
    EXPECT_EQ(time.pending(), 0u);
}

}  // namespace
}  // namespace vantle
