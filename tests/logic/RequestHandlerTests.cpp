#include "AppFixture.h"
#include "fakes/CapturedLog.h"
#include "support/Version.h"

namespace vantle {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class RequestHandlerTest : public AppFixture {
protected:
    /// Returns the answer, or "failed: " and the reason.
    std::string ask(const std::string& action, std::vector<std::string> arguments = {}) {
        const auto answer = application->onRequest({action, std::move(arguments)});
        time.settle();
        return answer ? answer.value() : "failed: " + answer.failure().message;
    }

    const fakes::CapturedLog log;
};

TEST_F(RequestHandlerTest, PausesAndResumesRepeatedly) {
    launch();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(ask("pause"), "");
        EXPECT_TRUE(delegate->statusBar().paused());
        EXPECT_FALSE(delegate->watcher().isWatching());
    }
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(ask("resume"), "");
        EXPECT_FALSE(delegate->statusBar().paused());
        EXPECT_TRUE(delegate->watcher().isWatching());
    }
}

TEST_F(RequestHandlerTest, ShowsFilesWithoutMakingThemRecent) {
    launch();
    files->write(Url::file("/pictures/a.png"), 1, Date{});
    files->write(Url::file("/pictures/b.mov"), 1, Date{});
    EXPECT_EQ(ask("show", {"/pictures/a.png", "/pictures/b.mov"}), "");
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 2u);
    EXPECT_THAT(recentNames(), IsEmpty());
}

TEST_F(RequestHandlerTest, ShowsFilesWithAnExtensionThatTheSystemAdds) {
    static constexpr std::array<std::string_view, 1> images{"webp"};
    platform.additionalExtensions.image = images;
    launch();
    files->write(Url::file("/pictures/a.webp"), 1, Date{});
    EXPECT_EQ(ask("show", {"/pictures/a.webp"}), "");
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 1u);
}

TEST_F(RequestHandlerTest, ShowsValidFilesAndNamesTheOthers) {
    launch();
    files->write(Url::file("/pictures/a.png"), 1, Date{});
    files->write(Url::file("/pictures/letter.txt"), 1, Date{});
    EXPECT_EQ(ask("show", {"/pictures/none.png", "/pictures/a.png", "/pictures/letter.txt"}),
              "failed: no such file: /pictures/none.png\n"
              "not a supported image or recording: /pictures/letter.txt");
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 1u);
}

TEST_F(RequestHandlerTest, DismissesTheCard) {
    launch();
    save("shot.png");
    EXPECT_EQ(ask("dismiss"), "");
    EXPECT_FALSE(delegate->panel().isVisible());
    EXPECT_EQ(ask("dismiss"), "");
}

TEST_F(RequestHandlerTest, GivesThePanelTheKeyboardIfThereIsOne) {
    launch();
    EXPECT_EQ(ask("focus-panel"), "failed: the card is not visible");
    EXPECT_EQ(panel.timesKeyboardTaken, 0);
    save("shot.png");
    EXPECT_EQ(ask("focus-panel"), "");
    EXPECT_EQ(panel.timesKeyboardTaken, 1);
}

TEST_F(RequestHandlerTest, OpensSettingsAndFolderAndShowsSamplesAndQuits) {
    offerWindows();
    launch();
    EXPECT_EQ(ask("settings"), "");
    EXPECT_EQ(events.back(), "settings to front");
    EXPECT_EQ(ask("open-folder"), "");
    EXPECT_THAT(opener->opened, ElementsAre(folder));
    EXPECT_EQ(ask("sample"), "");
    EXPECT_EQ(canvas->drawn.size(), 2u);
    EXPECT_EQ(ask("quit"), "");
    EXPECT_EQ(application->terminations, 1);
}

TEST_F(RequestHandlerTest, ReportsItsState) {
    launch();
    save("shot.png");
    EXPECT_EQ(ask("status"), "version: " + std::string(version) +
                                 "\nstate: watching\nfolder: /home/user/Desktop\ncaptures: 1");
    platform.displayServer = [] { return "a window system"; };
    EXPECT_THAT(ask("status"), HasSubstr("\ncaptures: 1\ndisplay server: a window system"));
    ask("pause");
    EXPECT_THAT(ask("status"), HasSubstr("state: paused"));
    ask("resume");
    files->failOpening(folder, EACCES);
    delegate->settings().setScreenshotFolder(Url::file("/nowhere"));
    files->failOpening(Url::file("/nowhere"), EACCES);
    ask("pause");
    ask("resume");
    EXPECT_THAT(ask("status"), HasSubstr("state: not watching"));
}

TEST_F(RequestHandlerTest, TheVerboseStatusHasTheFactsOfAFaultReportButNoPath) {
    platform.environmentReport = [] { return std::vector<ReportLine>{{"tray", "D-Bus"}}; };
    domain->values["location"] = std::string("/home/user/Clients");
    (void)files->createDirectory(Url::file("/home/user/Clients"));
    launch();
    systemLog("Vantle: cannot open /home/user/Clients/Acme.png", "Permission denied");
    const std::string report = ask("status", {"verbose"});
    EXPECT_THAT(report,
                AllOf(HasSubstr("version: " + std::string(version)),
                      HasSubstr("\nfolder: in the home directory\n"),
                      HasSubstr("\nfolder set by: a setting in memory\n"),
                      HasSubstr("\nsettings: corner bottomRight"), HasSubstr("\ntray: D-Bus\n"),
                      HasSubstr(" Vantle: cannot open (path): Permission denied")));
    EXPECT_THAT(report, Not(HasSubstr("Clients")));
    EXPECT_THAT(
        ask("status", {"verbose", "with-paths"}),
        AllOf(HasSubstr("\nfolder: /home/user/Clients\n"),
              HasSubstr(" Vantle: cannot open /home/user/Clients/Acme.png: Permission denied")));
}

TEST_F(RequestHandlerTest, TheVerboseStatusSaysWhyTheFolderIsNotWatched) {
    launch();
    files->makeReadOnly(Url::file("/home/user"));
    files->removeDirectory(folder);
    time.settle();
    EXPECT_THAT(ask("status", {"verbose"}), HasSubstr(" Vantle: cannot watch (path): missing"));
}

TEST_F(RequestHandlerTest, AnUnknownRequestIsRefused) {
    launch();
    EXPECT_EQ(ask("dance"), "failed: unknown action \"dance\"");
}

TEST_F(RequestHandlerTest, ASecondCopyHandsItsRequestToTheFirst) {
    application->otherCopyRuns = true;
    const ApplicationRequest request{"show", {"/pictures/a.png"}};
    application->answer = std::string("done");
    const auto answer = make().applicationWillFinishLaunching(request);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->value(), "done");
    EXPECT_THAT(application->asked, ElementsAre(request));
    EXPECT_EQ(application->otherCopyActivations, 0);
    EXPECT_EQ(application->terminations, 1);
}

TEST_F(RequestHandlerTest, TheSecondCopyFailsWithTheFailureOfTheFirst) {
    application->otherCopyRuns = true;
    application->answer = Failure{EIO, "it is shutting down", {}};
    const auto answer = make().applicationWillFinishLaunching(ApplicationRequest{"status", {}});
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->failure().message, "it is shutting down");
}

}  // namespace
}  // namespace vantle
