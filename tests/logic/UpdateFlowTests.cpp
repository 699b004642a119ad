#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "app/UpdaterDelegate.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeUpdateEngine.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/FakeWindow.h"
#include "fakes/VirtualTime.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using testing::ElementsAre;
using testing::IsEmpty;
using Stage = UpdateState::Stage;

const UpdateItem item{.version = "12",
                      .displayVersion = "1.2",
                      .notes = "<p>New</p>",
                      .page = "https://vantle.example/1.2",
                      .address = "https://vantle.example/1.2.tar.zst",
                      .length = 1000,
                      .signature = "signature",
                      .installation = UpdateItem::Installation::tree};

class UpdateFlowTest : public testing::Test {
protected:
    UpdateFlow& make() {
        flow = std::make_unique<UpdateFlow>(
            UpdateFlow::Context{.scheduler = scheduler,
                                .clock = clock,
                                .defaults = defaults,
                                .application = application,
                                .opener = opener,
                                .observer = observer,
                                .engine = std::make_unique<fakes::FakeUpdateEngine>(engine),
                                .version = "1.0",
                                .makeWindow = [this](UpdateFlow&) {
                                    return std::make_unique<fakes::FakeWindow>(
                                        fakes::FakeWindow::Record{window, sizes}, "update");
                                }});
        return *flow;
    }
    /// Sets the defaults of a second launch: a check is due a minute later.
    void beDue() { defaults.stored[UpdateSchedule::lastCheck] = 1.0; }
    void report(const UpdateReport& told) {
        // A copy, because the report may start something that replaces the handler.
        const auto onReport = engine.onReport;
        ASSERT_TRUE(onReport);
        onReport(told);
        time.settle();
    }
    void find() {
        make().checkForUpdates();
        report(report::UpdateFound{item});
    }
    Stage stage() const { return flow->state.value().stage; }

    fakes::FakeEnvironment environment;
    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::VirtualClock clock{time};
    fakes::FakeUserDefaults defaults;
    fakes::FakeApplication application;
    fakes::FakeFileOpener opener;
    UpdaterDelegate observer{environment};
    fakes::FakeUpdateEngine::Record engine;
    std::vector<std::string> window;
    std::vector<Size> sizes;
    CapturedLog log{CapturedLog::DebugSwitch::on};
    std::unique_ptr<UpdateFlow> flow;
};

TEST_F(UpdateFlowTest, UsesTheConfiguredFeedWithoutAnOverride) {
    make().checkForUpdates();
    ASSERT_EQ(engine.checks.size(), 1u);
    EXPECT_EQ(engine.checks[0].feed, std::nullopt);
    EXPECT_EQ(engine.checks[0].version, "1.0");
}

TEST_F(UpdateFlowTest, UsesExactlyTheValueOfAnOverride) {
    for (const auto* value : {"https://vantle.example/feed.xml", ""}) {
        environment["VANTLE_FEED_URL"] = value;
        make().checkForUpdates();
        EXPECT_EQ(engine.checks.back().feed, value);
    }
}

TEST_F(UpdateFlowTest, ACheckThatFindsNothingWritesOneLine) {
    make().checkForUpdates();
    report(report::NothingFound{"Vantle 1.0 is the latest version."});
    EXPECT_THAT(log.lines(),
                ElementsAre("Vantle[dbg]: sparkle: no update: Vantle 1.0 is the latest version."));
}

TEST_F(UpdateFlowTest, AnAppcastWithThreeItemsIsLogged) {
    make().checkForUpdates();
    report(report::FeedLoaded{3, 100});
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: sparkle: appcast loaded, 3 item(s)"));
}

TEST_F(UpdateFlowTest, AnUpdateIsLoggedFromTheCheckToTheInstallation) {
    find();
    flow->install();
    report(report::Installing{});
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: sparkle: found 1.2 (12)",
                                         "Vantle[dbg]: sparkle: installing 1.2"));
}

TEST_F(UpdateFlowTest, FailuresAreLogged) {
    make().checkForUpdates();
    report(report::Failed{"No route.", ""});
    find();
    flow->install();
    report(report::Failed{"Too slow.", ""});
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: sparkle: aborted: No route.",
                                         "Vantle[dbg]: sparkle: found 1.2 (12)",
                                         "Vantle[dbg]: sparkle: download failed: Too slow.",
                                         "Vantle[dbg]: sparkle: aborted: Too slow."));
}

TEST_F(UpdateFlowTest, LogsNothingWithoutTheDebugSwitch) {
    const CapturedLog quiet(CapturedLog::DebugSwitch::off);
    make().checkForUpdates();
    report(report::NothingFound{"nothing"});
    EXPECT_THAT(quiet.lines(), IsEmpty());
}

TEST_F(UpdateFlowTest, ACheckByTheUserIsVisibleAtOnce) {
    make().checkForUpdates();
    EXPECT_EQ(stage(), Stage::checking);
    EXPECT_THAT(window, ElementsAre("update made", "update to front"));
    report(report::NothingFound{"newest"});
    EXPECT_EQ(stage(), Stage::upToDate);
    EXPECT_EQ(flow->state.value().message, "newest");
}

TEST_F(UpdateFlowTest, AnotherCheckBringsTheWindowForward) {
    find();
    flow->checkForUpdates();
    EXPECT_EQ(engine.checks.size(), 1u);
    EXPECT_EQ(stage(), Stage::found);
    EXPECT_THAT(window, ElementsAre("update made", "update to front", "update to front"));
}

TEST_F(UpdateFlowTest, AnOutcomeAllowsTheNextCheck) {
    make().checkForUpdates();
    report(report::NothingFound{"newest"});
    flow->checkForUpdates();
    EXPECT_EQ(engine.checks.size(), 2u);
    EXPECT_EQ(stage(), Stage::checking);
}

TEST_F(UpdateFlowTest, AClosedWindowIsDestroyed) {
    make().checkForUpdates();
    report(report::NothingFound{"newest"});
    flow->close();
    EXPECT_THAT(window, ElementsAre("update made", "update to front", "update closed"));
    time.settle();
    EXPECT_THAT(window,
                ElementsAre("update made", "update to front", "update closed", "update gone"));
}

TEST_F(UpdateFlowTest, AWindowThatIsOpenedAgainAtOnceStays) {
    make().checkForUpdates();
    report(report::NothingFound{"newest"});
    flow->close();
    flow->checkForUpdates();
    time.settle();
    EXPECT_THAT(window,
                ElementsAre("update made", "update to front", "update closed", "update to front"));
}

TEST_F(UpdateFlowTest, ClosingEndsACheck) {
    make().checkForUpdates();
    flow->close();
    EXPECT_EQ(engine.cancelled, 1);
    EXPECT_EQ(stage(), Stage::closed);
    flow->checkForUpdates();
    EXPECT_EQ(engine.checks.size(), 2u);
}

TEST_F(UpdateFlowTest, AScheduledCheckIsInvisibleUnlessItFindsSomething) {
    for (const UpdateReport& told :
         {UpdateReport(report::NothingFound{"newest"}), UpdateReport(report::Failed{"no", ""})}) {
        beDue();
        make();
        time.advance(Seconds(60));
        report(told);
        EXPECT_EQ(stage(), Stage::closed);
    }
    EXPECT_THAT(window, IsEmpty());
}

TEST_F(UpdateFlowTest, AScheduledCheckShowsAnUpdateWithoutTakingTheKeyboard) {
    beDue();
    make();
    time.advance(Seconds(60));
    report(report::UpdateFound{item});
    EXPECT_EQ(stage(), Stage::found);
    EXPECT_THAT(window, ElementsAre("update made", "update shown"));
}

TEST_F(UpdateFlowTest, ASkippedVersionIsNotOfferedByTheSchedule) {
    find();
    flow->skip();
    EXPECT_EQ(stage(), Stage::closed);
    beDue();
    make();
    window.clear();
    time.advance(Seconds(60));
    report(report::UpdateFound{item});
    EXPECT_EQ(stage(), Stage::closed);
    EXPECT_THAT(window, IsEmpty());
}

TEST_F(UpdateFlowTest, ASkippedVersionIsShownByACheckOfTheUser) {
    find();
    flow->skip();
    flow->checkForUpdates();
    report(report::UpdateFound{item});
    EXPECT_EQ(stage(), Stage::found);
}

TEST_F(UpdateFlowTest, ALaterVersionThanTheSkippedOneIsOffered) {
    find();
    flow->skip();
    beDue();
    make();
    time.advance(Seconds(60));
    UpdateItem later = item;
    later.version = "13";
    report(report::UpdateFound{later});
    EXPECT_EQ(stage(), Stage::found);
}

TEST_F(UpdateFlowTest, APostponedUpdateIsOfferedAgainTheNextDay) {
    find();
    flow->close();
    time.advance(std::chrono::hours(25));
    EXPECT_EQ(engine.checks.size(), 2u);
    report(report::UpdateFound{item});
    EXPECT_EQ(stage(), Stage::found);
}

TEST_F(UpdateFlowTest, ACheckDuringAScheduledOneShowsItsOutcome) {
    beDue();
    make();
    time.advance(Seconds(60));
    flow->checkForUpdates();
    EXPECT_EQ(engine.checks.size(), 1u);
    EXPECT_EQ(stage(), Stage::checking);
    report(report::NothingFound{"newest"});
    EXPECT_EQ(stage(), Stage::upToDate);
}

TEST_F(UpdateFlowTest, TheScheduleDoesNotDisturbWhatIsShown) {
    find();
    flow->install();
    time.advance(std::chrono::hours(48));
    EXPECT_EQ(engine.checks.size(), 1u);
    EXPECT_EQ(stage(), Stage::downloading);
}

TEST_F(UpdateFlowTest, InstallsAndRelaunches) {
    find();
    flow->install();
    EXPECT_THAT(engine.prepared, ElementsAre(item));
    EXPECT_EQ(stage(), Stage::downloading);
    report(report::Progress{100});
    EXPECT_EQ(flow->state.value().received, 100u);
    report(report::Installing{});
    EXPECT_EQ(stage(), Stage::installing);
    EXPECT_EQ(application.terminations, 0);
    report(report::Ready{});
    EXPECT_THAT(engine.relaunched, ElementsAre(item));
    EXPECT_EQ(application.terminations, 1);
}

TEST_F(UpdateFlowTest, ARelaunchThatCannotBeginIsAFailureAndVantleStays) {
    engine.relaunchFailure = Failure{2, "No such file", ""};
    find();
    flow->install();
    report(report::Ready{});
    EXPECT_EQ(application.terminations, 0);
    EXPECT_EQ(stage(), Stage::failed);
    EXPECT_EQ(flow->state.value().message, "No such file");
}

TEST_F(UpdateFlowTest, TheSpeedIsMeasuredOverTheLastSeconds) {
    find();
    flow->install();
    report(report::Progress{0});
    EXPECT_EQ(flow->state.value().speed, std::nullopt);
    for (int second = 1; second <= 10; ++second) {
        time.advance(Seconds(1));
        report(report::Progress{
            static_cast<std::uint64_t>(second <= 5 ? second * 1000 : 5000 + (second - 5) * 10)});
    }
    EXPECT_DOUBLE_EQ(flow->state.value().speed.value(), 10);
}

TEST_F(UpdateFlowTest, ADownloadCanBeCancelled) {
    find();
    flow->install();
    flow->close();
    EXPECT_EQ(engine.cancelled, 1);
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateFlowTest, AnInstallationCannotBeCancelled) {
    find();
    flow->install();
    report(report::Installing{});
    flow->close();
    EXPECT_EQ(engine.cancelled, 0);
    EXPECT_EQ(stage(), Stage::installing);
}

TEST_F(UpdateFlowTest, AFailureIsShownWithThePageIfThereIsOne) {
    find();
    flow->install();
    report(report::Failed{"Too slow.", "https://vantle.example/download"});
    EXPECT_EQ(stage(), Stage::failed);
    EXPECT_EQ(flow->state.value().message, "Too slow.");
    flow->openPage();
    EXPECT_THAT(opener.pages, ElementsAre("https://vantle.example/download"));
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateFlowTest, AnUpdateThatCannotBeInstalledHereOpensItsPage) {
    make().checkForUpdates();
    UpdateItem elsewhere = item;
    elsewhere.installation = UpdateItem::Installation::page;
    report(report::UpdateFound{elsewhere});
    flow->install();
    EXPECT_THAT(engine.prepared, IsEmpty());
    EXPECT_THAT(opener.pages, ElementsAre(item.page));
}

TEST_F(UpdateFlowTest, OnlySecureLinksAreOpened) {
    find();
    for (const auto* address : {"http://vantle.example", "file:///etc/passwd", "javascript:x"})
        flow->openLink(address);
    EXPECT_THAT(opener.pages, IsEmpty());
    flow->openLink("https://vantle.example");
    EXPECT_THAT(opener.pages, ElementsAre("https://vantle.example"));
}

TEST_F(UpdateFlowTest, TheDateOfTheNewestFeedIsKept) {
    make().checkForUpdates();
    report(report::FeedLoaded{1, 1'700'000'123});
    make().checkForUpdates();
    EXPECT_EQ(engine.checks.back().newestFeed, 1'700'000'123);
}

TEST_F(UpdateFlowTest, TheDateOfTheNewestFeedNeverGoesBack) {
    defaults.stored["newestUpdateFeed"] = 1'800'000'500.0;
    make().checkForUpdates();
    // The clock of this machine is earlier than both dates.
    report(report::FeedLoaded{1, 1'800'000'900});
    make().checkForUpdates();
    EXPECT_EQ(engine.checks.back().newestFeed, 1'800'000'500);
}

TEST_F(UpdateFlowTest, AnInvalidDateIsIgnored) {
    for (const PreferenceValue& nonsense :
         {PreferenceValue(-7.0), PreferenceValue(1e300), PreferenceValue(std::string("nan"))}) {
        defaults.stored["newestUpdateFeed"] = nonsense;
        make().checkForUpdates();
        EXPECT_EQ(engine.checks.back().newestFeed, 0);
    }
}

TEST_F(UpdateFlowTest, RequestsTheChannelOfTheSettings) {
    defaults.stored["updateChannel"] = std::string("beta");
    make().checkForUpdates();
    EXPECT_EQ(engine.checks[0].channel, "beta");
}

TEST_F(UpdateFlowTest, AStartOnTrialIsConfirmedAfterAWhile) {
    engine.isStartConfirmationPending = true;
    make();
    time.advance(Seconds(1.9));
    EXPECT_EQ(engine.confirmed, 0);
    time.advance(Seconds(0.2));
    EXPECT_EQ(engine.confirmed, 1);
}

TEST_F(UpdateFlowTest, AnOrdinaryStartConfirmsNothing) {
    make();
    time.advance(Seconds(10));
    EXPECT_EQ(engine.confirmed, 0);
}

TEST_F(UpdateFlowTest, ARolledBackVersionIsReportedAndNotOfferedAgainByTheSchedule) {
    engine.rolledBack = report::RolledBack{"12", "It crashed."};
    make();
    time.settle();
    EXPECT_EQ(stage(), Stage::failed);
    EXPECT_EQ(flow->state.value().message, "It crashed.");
    EXPECT_THAT(window, ElementsAre("update made", "update shown"));
    EXPECT_EQ(defaults.text("skippedUpdate"), "12");
}

TEST_F(UpdateFlowTest, AnUntriedVersionIsOfferedAgain) {
    engine.rolledBack = report::RolledBack{"", "The update could not be installed."};
    make();
    time.settle();
    EXPECT_EQ(stage(), Stage::failed);
    EXPECT_EQ(defaults.text("skippedUpdate"), std::nullopt);
}

TEST_F(UpdateFlowTest, AFeedFromTheFutureDoesNotLockOutTheNext) {
    make().checkForUpdates();
    report(report::FeedLoaded{1, 4'000'000'000});
    make().checkForUpdates();
    EXPECT_EQ(engine.checks.back().newestFeed, 1'800'000'000);
}

TEST_F(UpdateFlowTest, ARestartedDownloadHasASpeedAgain) {
    find();
    flow->install();
    report(report::Progress{5000});
    time.advance(Seconds(1));
    report(report::Progress{100});
    time.advance(Seconds(1));
    report(report::Progress{300});
    EXPECT_DOUBLE_EQ(flow->state.value().speed.value(), 200);
}

TEST_F(UpdateFlowTest, EndingDuringAnUpdateIsHarmless) {
    find();
    flow->install();
    flow.reset();
    EXPECT_EQ(time.pending(), 0u);
}

}  // namespace
}  // namespace vantle
