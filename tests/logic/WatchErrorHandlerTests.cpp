#include "AppFixture.h"
#include "fakes/CapturedLog.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WatchErrorHandlerTest : public AppFixture {
protected:
    void report(const WatchError& error) { delegate->handleWatchError(error); }

    /// Answers alerts with the button of that title from now on.
    void answer(const std::string& title) {
        alerts->answer = [this, title](const Alert& alert) {
            events.push_back("alert");
            const auto found = std::ranges::find(alert.buttons, title);
            EXPECT_NE(found, alert.buttons.end()) << title;
            return Alerts::firstButton + static_cast<int>(found - alert.buttons.begin());
        };
    }

    std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const auto& alert : alerts->shown) texts.push_back(alert.messageText);
        return texts;
    }

    fakes::CapturedLog log;
};

constexpr auto cannotWatch = "Vantle can't watch your screenshot folder";

TEST_F(WatchErrorHandlerTest, DeniedAccessIsExplained) {
    launch();
    report(WatchError::accessDenied());
    ASSERT_EQ(alerts->shown.size(), 1u);
    const Alert& alert = alerts->shown.front();
    EXPECT_EQ(alert.style, Alert::Style::warning);
    EXPECT_EQ(alert.messageText, "Vantle needs access to your screenshot folder");
    EXPECT_THAT(alert.buttons, ElementsAre("Open Privacy Settings", "Retry", "Later"));
    EXPECT_EQ(application->activations, 1);
}

TEST_F(WatchErrorHandlerTest, ThePrivacyAlertNamesTheFolderBetweenItsTexts) {
    launch();
    delegate->settings().screenshotFolder.set(Url::file("/home/user/Pictures/Screenshots"));
    report(WatchError::accessDenied());
    EXPECT_EQ(alerts->shown.back().informativeText,
              "macOS is blocking Vantle from reading Screenshots. Allow Vantle under System "
              "Settings → Privacy & Security → Files and Folders, then click Retry.");
}

TEST_F(WatchErrorHandlerTest, ASecondDenialAlertsOnlyAfterARetry) {
    launch();
    report(WatchError::accessDenied());
    report(WatchError::accessDenied());
    EXPECT_EQ(alerts->shown.size(), 1u);
    report(WatchError::other("x"));
    answer("Retry");
    report(WatchError::accessDenied());
    EXPECT_EQ(alerts->shown.size(), 3u);
    report(WatchError::accessDenied());
    EXPECT_EQ(alerts->shown.size(), 4u);
}

TEST_F(WatchErrorHandlerTest, RetryWatchesTheFolderAgain) {
    launch();
    delegate->statusBar().onPause(true);
    ASSERT_FALSE(delegate->watcher().isWatching());
    answer("Retry");
    report(WatchError::accessDenied());
    EXPECT_TRUE(delegate->watcher().isWatching());
    EXPECT_EQ(delegate->watcher().folder(), folder);
}

TEST_F(WatchErrorHandlerTest, ARetryThatFailsAlertsAgain) {
    launch();
    files->failOpening(folder, EACCES);
    int alertsLeft = 2;
    alerts->answer = [&](const Alert&) {
        return Alerts::firstButton + (alertsLeft-- > 0 ? 1 : 2);  // Retry, Retry, Later
    };
    report(WatchError::accessDenied());
    time.settle();
    EXPECT_EQ(alerts->shown.size(), 3u);
    time.advance(Seconds(3600));
    EXPECT_EQ(alerts->shown.size(), 3u);
}

TEST_F(WatchErrorHandlerTest, OpenPrivacySettingsOpensThemAndRemembersTheError) {
    launch();
    answer("Open Privacy Settings");
    report(WatchError::accessDenied());
    report(WatchError::accessDenied());
    EXPECT_THAT(privacySettings->opened, ElementsAre(folder));
    EXPECT_EQ(alerts->shown.size(), 1u);
}

TEST_F(WatchErrorHandlerTest, LaterDoesNothingAndRemembersTheError) {
    offerWindows();
    launch();
    delegate->statusBar().onPause(true);
    events.clear();
    report(WatchError::accessDenied());
    report(WatchError::accessDenied());
    EXPECT_EQ(alerts->shown.size(), 1u);
    EXPECT_FALSE(delegate->watcher().isWatching());
    EXPECT_THAT(privacySettings->opened, IsEmpty());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(WatchErrorHandlerTest, OtherErrorsAlertOncePerMessage) {
    launch();
    report(WatchError::other("too many watches"));
    report(WatchError::other("too many watches"));
    EXPECT_EQ(alerts->shown.size(), 1u);
    report(WatchError::other("not supported"));
    ASSERT_EQ(alerts->shown.size(), 2u);
    EXPECT_THAT(messages(), ElementsAre(cannotWatch, cannotWatch));
    EXPECT_EQ(alerts->shown[0].informativeText, "too many watches");
    EXPECT_EQ(alerts->shown[1].informativeText, "not supported");
    EXPECT_THAT(alerts->shown[1].buttons, ElementsAre("Open Settings", "Later"));
    EXPECT_EQ(alerts->shown[1].style, Alert::Style::warning);
}

TEST_F(WatchErrorHandlerTest, OpenSettingsShowsThem) {
    offerWindows();
    launch();
    events.clear();
    answer("Open Settings");
    report(WatchError::other("x"));
    EXPECT_THAT(events, ElementsAre("alert", "settings made", "settings to front"));
}

TEST_F(WatchErrorHandlerTest, AnotherErrorLetsTheFirstOneAlertAgain) {
    launch();
    report(WatchError::other("a"));
    report(WatchError::other("b"));
    report(WatchError::other("a"));
    EXPECT_EQ(alerts->shown.size(), 3u);
}

TEST_F(WatchErrorHandlerTest, AMissingFolderIsMadeAgainSilently) {
    launch();
    for (int round = 0; round < 2; ++round) {  // the first loss is forgotten
        files->removeDirectory(folder);
        time.settle();
        EXPECT_EQ(files->existence(folder), FileManager::Existence::directory);
        EXPECT_TRUE(delegate->watcher().isWatching());
    }
    save("shot.png");
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_THAT(alerts->shown, IsEmpty());
}

TEST_F(WatchErrorHandlerTest, AMissingFolderOnAServerIsMadeInTheBackground) {
    files->makeRemote(folder);
    launch();
    time.settle();
    for (int round = 0; round < 2; ++round) {
        files->removeDirectory(folder);
        time.settle();
        EXPECT_TRUE(delegate->watcher().isWatching());
    }
    save("shot.png");
    EXPECT_TRUE(panel.isOnScreen);
    EXPECT_THAT(alerts->shown, IsEmpty());
    files->makeReadOnly(folder.deletingLastPathComponent());
    files->removeDirectory(folder);
    time.settle();
    EXPECT_EQ(alerts->shown.size(), 1u);
}

TEST_F(WatchErrorHandlerTest, AMissingFolderThatCannotBeMadeIsNamed) {
    launch();
    files->makeReadOnly(Url::file("/home/user"));
    files->removeDirectory(folder);
    time.settle();
    EXPECT_FALSE(delegate->watcher().isWatching());
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: cannot watch /home/user/Desktop: missing"));
    ASSERT_EQ(alerts->shown.size(), 1u);
    EXPECT_EQ(alerts->shown[0].messageText, "Vantle can't find your screenshot folder");
    EXPECT_EQ(alerts->shown[0].informativeText,
              "/home/user/Desktop is missing and could not be recreated. Choose another folder in "
              "Settings.");
    EXPECT_THAT(alerts->shown[0].buttons, ElementsAre("Open Settings", "Later"));
    report(WatchError::missing());
    EXPECT_EQ(alerts->shown.size(), 1u);
}

TEST_F(WatchErrorHandlerTest, TheProgramIsActivatedBeforeEachAlert) {
    launch();
    std::vector<int> activationsAtAlert;
    alerts->answer = [&](const Alert& alert) {
        activationsAtAlert.push_back(application->activations);
        return Alerts::firstButton + static_cast<int>(alert.buttons.size()) - 1;
    };
    report(WatchError::accessDenied());
    report(WatchError::other("x"));
    files->makeReadOnly(Url::file("/home/user"));
    files->removeDirectory(folder);
    time.settle();
    EXPECT_THAT(activationsAtAlert, ElementsAre(1, 2, 3));
}

TEST_F(WatchErrorHandlerTest, AnAnswerAfterTheDelegateHasGoneIsSkipped) {
    offerWindows();
    launch();
    for (const auto& error :
         {WatchError::accessDenied(), WatchError::other("x"), WatchError::missing()}) {
        launch();
        files->makeReadOnly(Url::file("/home/user"));
        if (error.kind() == WatchError::Kind::missing) files->removeDirectory(folder);
        time.settle();
        events.clear();
        alerts->answer = [this](const Alert&) {
            delegate.reset();
            return Alerts::firstButton;
        };
        // `delegate` must stay the only reference: a second one would keep the object.
        if (delegate) delegate->handleWatchError(error);
        EXPECT_EQ(delegate, nullptr);
        EXPECT_THAT(events, IsEmpty());
    }
    EXPECT_THAT(privacySettings->opened, IsEmpty());
}

}  // namespace
}  // namespace vantle
