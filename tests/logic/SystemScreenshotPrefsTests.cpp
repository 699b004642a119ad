#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "capture/SystemScreenshotPrefs.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/VirtualTime.h"

namespace vantle {
namespace {

const Url desktop = Url::file("/home/user/Desktop");
const Url screenshots = Url::file("/home/user/Pictures/Screenshots");

class SystemScreenshotPrefsTest : public testing::Test {
protected:
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakePreferencesDomain domain;
    fakes::FakeProcessLauncher launcher;
    SystemScreenshotPrefs prefs{files, domain, launcher};
};

TEST_F(SystemScreenshotPrefsTest, IsTheDesktopWithoutAStoredLocation) {
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, IsDesktopInTheHomeDirectoryWithoutADesktopFolder) {
    files.setDesktop(std::nullopt);
    EXPECT_EQ(prefs.location(), desktop);
    files.setDesktop(Url::file("/home/user/Bureau"));
    EXPECT_EQ(prefs.location(), Url::file("/home/user/Bureau"));
}

TEST_F(SystemScreenshotPrefsTest, ALeadingTildeIsTheHomeDirectory) {
    (void)files.createDirectory(screenshots);
    domain.values["location"] = std::string("~/Pictures/Screenshots");
    EXPECT_EQ(prefs.location(), screenshots);
}

TEST_F(SystemScreenshotPrefsTest, ATildeAloneOrWithAUserIsAHomeDirectory) {
    const Url home = files.homeDirectory();
    for (const Url& folder : {home, Url::file("/home/other/Shots")})
        (void)files.createDirectory(folder);
    domain.values["location"] = std::string("~");
    EXPECT_EQ(prefs.location(), home);
    domain.values["location"] = std::string("~/");
    EXPECT_EQ(prefs.location(), home);
    domain.values["location"] = std::string("~other/Shots");
    EXPECT_EQ(prefs.location(), Url::file("/home/other/Shots"));
    domain.values["location"] = std::string("~nobody/Shots");
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, ADeletedFolderFallsBackToTheDesktop) {
    domain.values["location"] = std::string("~/Pictures/Screenshots");
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, DoesNotAskAServerForTheFolder) {
    files.makeRemote(Url::file("/server/shots"));
    domain.values["location"] = std::string("/server/shots");
    EXPECT_EQ(prefs.location(), Url::file("/server/shots"));
}

TEST_F(SystemScreenshotPrefsTest, AFileInTheFoldersPlaceFallsBackToTheDesktop) {
    files.write(screenshots, 1, Date{});
    domain.values["location"] = screenshots.path();
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, AnEmptyTextOrANumberMeansTheDesktop) {
    domain.values["location"] = std::string();
    EXPECT_EQ(prefs.location(), desktop);
    domain.values["location"] = 5.0;
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, TheThumbnailIsShownUnlessStoredAsFalse) {
    EXPECT_TRUE(prefs.showsThumbnail());
    domain.values["show-thumbnail"] = std::string("false");
    EXPECT_TRUE(prefs.showsThumbnail());
    domain.values["show-thumbnail"] = false;
    EXPECT_FALSE(prefs.showsThumbnail());
}

TEST_F(SystemScreenshotPrefsTest, ReportsTheOriginOfTheLocation) {
    EXPECT_EQ(prefs.locationOrigin(), "the default (the Desktop), because no folder is set");
    domain.values["location"] = screenshots.path();
    EXPECT_EQ(prefs.locationOrigin(),
              "the default (the Desktop), because a setting in memory does not name a folder");
    (void)files.createDirectory(screenshots);
    EXPECT_EQ(prefs.locationOrigin(), "a setting in memory");
}

TEST_F(SystemScreenshotPrefsTest, SettingALocationCreatesItStoresItAndRestartsTheServiceOnce) {
    prefs.setLocation(screenshots);
    EXPECT_EQ(files.existence(screenshots), FileManager::Existence::directory);
    EXPECT_EQ(domain.values.at("location"), PreferenceValue(screenshots.path()));
    EXPECT_EQ(domain.synchronizations, 1);
    ASSERT_EQ(launcher.launched.size(), 1u);
    EXPECT_EQ(launcher.launched[0].executable, "/usr/bin/killall");
    EXPECT_THAT(launcher.launched[0].arguments, testing::ElementsAre("SystemUIServer"));
}

TEST_F(SystemScreenshotPrefsTest, AFolderThatCannotBeMadeIsStoredAnyway) {
    files.makeReadOnly(Url::file("/"));
    prefs.setLocation(screenshots);
    EXPECT_EQ(domain.values.at("location"), PreferenceValue(screenshots.path()));
    EXPECT_EQ(prefs.location(), desktop);
}

TEST_F(SystemScreenshotPrefsTest, SettingTheThumbnailStoresItAndRestartsTheServiceOnce) {
    prefs.setShowsThumbnail(false);
    EXPECT_EQ(domain.values.at("show-thumbnail"), PreferenceValue(false));
    EXPECT_EQ(domain.synchronizations, 1);
    EXPECT_EQ(launcher.launched.size(), 1u);
}

TEST_F(SystemScreenshotPrefsTest, AServiceThatCannotBeRestartedIsIgnored) {
    launcher.failure = Failure{.code = 2, .message = "No such file or directory"};
    prefs.setShowsThumbnail(true);
    EXPECT_TRUE(prefs.showsThumbnail());
}

TEST_F(SystemScreenshotPrefsTest, ReportsTheObstaclesOfTheDomain) {
    EXPECT_EQ(prefs.locationObstacle(), "");
    EXPECT_EQ(prefs.thumbnailObstacle(), "");
    domain.obstacles = {{"location", "It stays."}, {"show-thumbnail", "It shows."}};
    EXPECT_EQ(prefs.locationObstacle(), "It stays.");
    EXPECT_EQ(prefs.thumbnailObstacle(), "It shows.");
}

TEST_F(SystemScreenshotPrefsTest, ThePreviousLocationIsRestoredAndTheServiceRestartedOnce) {
    EXPECT_EQ(prefs.previousLocation(), std::nullopt);
    domain.previousValues["location"] = std::string("~/Pictures/Screenshots");
    (void)files.createDirectory(screenshots);
    EXPECT_EQ(prefs.previousLocation(), screenshots);
    prefs.restoreLocation();
    EXPECT_EQ(prefs.location(), screenshots);
    EXPECT_EQ(prefs.previousLocation(), std::nullopt);
    EXPECT_EQ(launcher.launched.size(), 1u);
}

}  // namespace
}  // namespace vantle
