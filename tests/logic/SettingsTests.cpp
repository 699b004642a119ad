#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/VirtualTime.h"
#include "settings/Settings.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using Policy = Application::ActivationPolicy;

class SettingsTest : public testing::Test {
protected:
    Settings make() {
        return Settings(defaults, SystemScreenshotPrefs(files, domain, launcher), loginItem,
                        application);
    }

    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakePreferencesDomain domain;
    fakes::FakeProcessLauncher launcher;
    fakes::FakeUserDefaults defaults;
    fakes::FakeLoginItem loginItem;
    fakes::FakeApplication application;
};

TEST_F(SettingsTest, AFreshAccountHasTheDefaults) {
    const Settings settings = make();
    EXPECT_EQ(settings.dismissAfter.value(), 0.0);
    EXPECT_TRUE(settings.showRecordings.value());
    EXPECT_FALSE(settings.copyOnCapture.value());
    EXPECT_FALSE(settings.playSound.value());
    EXPECT_TRUE(settings.removeAfterUse.value());
    EXPECT_FALSE(settings.deleteAfterUse.value());
    EXPECT_FALSE(settings.showInDock.value());
    EXPECT_EQ(settings.corner.value(), PanelCorner::bottomRight);
    EXPECT_FALSE(settings.hasCompletedOnboarding.value());
    EXPECT_TRUE(defaults.stored.empty());
}

TEST_F(SettingsTest, StoredValuesAreReadAtCreation) {
    defaults.stored = {{"hasCompletedOnboarding", true},
                       {"dismissAfter", 12.5},
                       {"corner", std::string("topRight")},
                       {"showRecordings", false},
                       {"copyOnCapture", true},
                       {"playSound", true},
                       {"removeAfterUse", false},
                       {"deleteAfterUse", true},
                       {"showInDock", true}};
    const Settings settings = make();
    EXPECT_TRUE(settings.hasCompletedOnboarding.value());
    EXPECT_EQ(settings.dismissAfter.value(), 12.5);
    EXPECT_EQ(settings.corner.value(), PanelCorner::topRight);
    EXPECT_FALSE(settings.showRecordings.value());
    EXPECT_TRUE(settings.copyOnCapture.value());
    EXPECT_TRUE(settings.playSound.value());
    EXPECT_FALSE(settings.removeAfterUse.value());
    EXPECT_TRUE(settings.deleteAfterUse.value());
    EXPECT_TRUE(settings.showInDock.value());
}

TEST_F(SettingsTest, ACornerInAnotherCaseIsReadAsBottomRight) {
    defaults.stored["corner"] = std::string("topleft");
    EXPECT_EQ(make().corner.value(), PanelCorner::bottomRight);
}

TEST_F(SettingsTest, SettingTheCornerStoresItsText) {
    Settings settings = make();
    settings.corner.set(PanelCorner::topLeft);
    EXPECT_EQ(defaults.stored.at("corner"), PreferenceValue(std::string("topLeft")));
}

TEST_F(SettingsTest, ANegativeDismissAfterIsStoredUnchanged) {
    Settings settings = make();
    settings.dismissAfter.set(-3);
    EXPECT_EQ(defaults.stored.at("dismissAfter"), PreferenceValue(-3.0));
    EXPECT_EQ(make().dismissAfter.value(), -3);
}

TEST_F(SettingsTest, EachSettingIsStoredUnderItsKey) {
    Settings settings = make();
    settings.hasCompletedOnboarding.set(true);
    settings.showRecordings.set(false);
    settings.copyOnCapture.set(true);
    settings.playSound.set(true);
    settings.removeAfterUse.set(false);
    settings.deleteAfterUse.set(true);
    for (const char* key :
         {"hasCompletedOnboarding", "copyOnCapture", "playSound", "deleteAfterUse"})
        EXPECT_EQ(defaults.stored.at(key), PreferenceValue(true)) << key;
    for (const char* key : {"showRecordings", "removeAfterUse"})
        EXPECT_EQ(defaults.stored.at(key), PreferenceValue(false)) << key;
}

TEST_F(SettingsTest, ObserversAreNotifiedBeforeTheStoreIsWritten) {
    Settings settings = make();
    bool storedBefore = true;
    const auto subscription = settings.playSound.observeChanges(
        [&](bool) { storedBefore = defaults.stored.contains("playSound"); });
    settings.playSound.set(true);
    EXPECT_FALSE(storedBefore);
}

TEST_F(SettingsTest, ObserversOfAllAreToldOfEveryChangeBeforeItIsStored) {
    Settings settings = make();
    std::vector<std::size_t> stored;
    const auto subscriptions =
        settings.observeChanges([&] { stored.push_back(defaults.stored.size()); });
    settings.corner.set(PanelCorner::topLeft);
    settings.dismissAfter.set(12);
    settings.playSound.set(true);
    settings.launchAtLogin.set(true);
    settings.screenshotFolder.set(Url::file("/elsewhere"));
    EXPECT_THAT(stored, ElementsAre(0, 1, 2, 3, 3));
}

TEST_F(SettingsTest, TheSummaryTellsEachChoiceAndNoPath) {
    Settings settings = make();
    settings.dismissAfter.set(25);
    settings.corner.set(PanelCorner::topLeft);
    settings.hideSystemThumbnail.set(true);
    settings.screenshotFolder.set(Url::file("/private"));
    for (const char* told : {"corner topLeft", "dismissAfter 25", "showRecordings yes",
                             "launchAtLogin no", "hideSystemThumbnail yes"})
        EXPECT_THAT(settings.summary(), testing::HasSubstr(told));
    EXPECT_THAT(settings.summary(), testing::Not(testing::HasSubstr("/")));
}

TEST_F(SettingsTest, ShowInDockIsStoredAndAppliedAtOnce) {
    Settings settings = make();
    EXPECT_TRUE(application.policies.empty());
    settings.showInDock.set(true);
    EXPECT_EQ(defaults.stored.at("showInDock"), PreferenceValue(true));
    EXPECT_THAT(application.policies, ElementsAre(Policy::regular));
    settings.showInDock.set(false);
    EXPECT_THAT(application.policies, ElementsAre(Policy::regular, Policy::accessory));
}

TEST_F(SettingsTest, ApplyingThePolicyKeepsTheSetting) {
    Settings settings = make();
    Settings::applyActivationPolicy(application, true);
    EXPECT_THAT(application.policies, ElementsAre(Policy::regular));
    EXPECT_FALSE(settings.showInDock.value());
}

TEST_F(SettingsTest, SystemStateIsMirroredAtCreation) {
    (void)files.createDirectory(Url::file("/shots"));
    domain.values = {{"location", std::string("/shots")}, {"show-thumbnail", false}};
    loginItem.current = LoginItem::Status::enabled;
    const Settings settings = make();
    EXPECT_EQ(settings.screenshotFolder.value(), Url::file("/shots"));
    EXPECT_TRUE(settings.hideSystemThumbnail.value());
    EXPECT_TRUE(settings.launchAtLogin.value());
}

TEST_F(SettingsTest, SettingAMirrorDirectlyChangesNothingInTheSystem) {
    Settings settings = make();
    settings.screenshotFolder.set(Url::file("/elsewhere"));
    settings.hideSystemThumbnail.set(true);
    settings.launchAtLogin.set(true);
    EXPECT_TRUE(domain.values.empty());
    EXPECT_TRUE(defaults.stored.empty());
    EXPECT_EQ(loginItem.current, LoginItem::Status::notRegistered);
}

TEST_F(SettingsTest, TheScreenshotFolderIsReadBackFromTheSystem) {
    Settings settings = make();
    settings.setScreenshotFolder(Url::file("/home/user/Shots"));
    EXPECT_EQ(settings.screenshotFolder.value(), Url::file("/home/user/Shots"));

    files.makeReadOnly(Url::file("/"));
    settings.setScreenshotFolder(Url::file("/cannot/be/made"));
    EXPECT_EQ(settings.screenshotFolder.value(), Url::file("/home/user/Desktop"));
}

TEST_F(SettingsTest, HidingTheSystemThumbnailChangesTheSystem) {
    Settings settings = make();
    settings.setHideSystemThumbnail(true);
    EXPECT_EQ(domain.values.at("show-thumbnail"), PreferenceValue(false));
    EXPECT_TRUE(settings.hideSystemThumbnail.value());
}

TEST_F(SettingsTest, AThumbnailThatCannotBeHiddenIsShownAfterTheSystemIsRead) {
    Settings settings = make();
    domain.obstacles["show-thumbnail"] = "It shows.";
    settings.setHideSystemThumbnail(true);
    EXPECT_TRUE(settings.hideSystemThumbnail.value()) << "as it was asked for";
    settings.refreshFromSystem();
    EXPECT_FALSE(settings.hideSystemThumbnail.value());
}

TEST_F(SettingsTest, AFailedRegistrationIsLoggedAndShowsTheRealState) {
    fakes::CapturedLog log;
    loginItem.failure = Failure{.code = 30, .message = "Read-only file system"};
    Settings settings = make();
    settings.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.launchAtLogin.value());
    EXPECT_THAT(log.lines(), ElementsAre("Launch at login failed: Read-only file system"));
}

TEST_F(SettingsTest, LaunchAtLoginFollowsTheSystem) {
    Settings settings = make();
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin.value());
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(settings.launchAtLogin.value());
    EXPECT_EQ(loginItem.current, LoginItem::Status::notRegistered);
}

TEST_F(SettingsTest, RecommendedDefaultsKeepOtherSettings) {
    defaults.stored = {{"dismissAfter", 30.0},    {"removeAfterUse", false},
                       {"deleteAfterUse", true},  {"corner", std::string("topLeft")},
                       {"showRecordings", false}, {"copyOnCapture", true},
                       {"playSound", true},       {"showInDock", true}};
    Settings settings = make();
    settings.applyRecommendedDefaults();
    EXPECT_EQ(settings.dismissAfter.value(), 0.0);
    EXPECT_TRUE(settings.removeAfterUse.value());
    EXPECT_FALSE(settings.deleteAfterUse.value());
    EXPECT_EQ(settings.corner.value(), PanelCorner::bottomRight);
    EXPECT_TRUE(settings.showRecordings.value());
    EXPECT_TRUE(settings.hideSystemThumbnail.value());
    EXPECT_TRUE(settings.launchAtLogin.value());
    EXPECT_EQ(domain.values.at("show-thumbnail"), PreferenceValue(false));
    EXPECT_EQ(defaults.stored.at("dismissAfter"), PreferenceValue(0.0));

    EXPECT_TRUE(settings.copyOnCapture.value());
    EXPECT_TRUE(settings.playSound.value());
    EXPECT_TRUE(settings.showInDock.value());
    EXPECT_FALSE(domain.values.contains("location"));
}

TEST_F(SettingsTest, RecommendedDefaultsKeepALoginItemThatTheUserSwitchedOff) {
    Settings settings = make();
    loginItem.current = LoginItem::Status::refused;
    settings.applyRecommendedDefaults();
    EXPECT_FALSE(settings.launchAtLogin.value());
    EXPECT_EQ(loginItem.current, LoginItem::Status::refused);
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin.value()) << "the switch decides";
}

}  // namespace
}  // namespace vantle
