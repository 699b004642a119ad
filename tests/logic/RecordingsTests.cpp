// The folder of the desktop's recorder, tested in the whole program.

#include "AppFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using State = RecordingsWatcher::State;

const Url casts = Url::file("/home/user/Videos/Screencasts");

class RecordingsTest : public AppFixture {
protected:
    RecordingsTest() {
        (void)files->createDirectory(casts);
        platform.recordingsFolder = [this] { return recordingsFolder; };
    }

    void record(const std::string& name, const Url& where = casts) {
        files->write(where.appending(name), 1000, clock->now());
        time.advance(Seconds(0.3));
    }
    State state() const { return delegate->recordings().state(); }
    std::string status() const {
        const auto answer = application->onRequest({"status", {}});
        return answer ? answer.value() : answer.failure().message;
    }

    Url recordingsFolder = casts;
};

TEST_F(RecordingsTest, ARecordingInItsOwnFolderIsShownTheSameWay) {
    defaults->stored["playSound"] = true;
    launch();
    events.clear();
    save("shot.png");
    record("cast.mp4");
    save("second.png");
    EXPECT_THAT(recentNames(), ElementsAre("second.png", "cast.mp4", "shot.png"));
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 3u);
    EXPECT_EQ(std::ranges::count(events, "sound Pop"), 3);
}

TEST_F(RecordingsTest, CapturesOfBothFoldersAppearInTheOrderInWhichTheySettled) {
    launch();
    files->write(casts.appending("a.mp4"), 1000, clock->now());
    time.advance(Seconds(0.1));
    files->write(folder.appending("b.png"), 1000, clock->now());
    time.advance(Seconds(0.1));
    files->write(casts.appending("c.mp4"), 1000, clock->now());
    time.advance(Seconds(1));
    EXPECT_THAT(recentNames(), ElementsAre("c.mp4", "b.png", "a.mp4"));
}

TEST_F(RecordingsTest, TheFolderIsWatchedWhileRecordingsAreOn) {
    defaults->stored["showRecordings"] = false;
    launch();
    EXPECT_EQ(state(), State::stopped);
    record("a.mp4");
    delegate->settings().showRecordings.set(true);
    time.settle();
    record("b.mp4");
    delegate->settings().showRecordings.set(false);
    time.settle();
    EXPECT_EQ(state(), State::stopped);
    record("c.mp4");
    EXPECT_THAT(recentNames(), ElementsAre("b.mp4"));
}

TEST_F(RecordingsTest, APauseStopsBothWatchers) {
    launch();
    delegate->statusBar().togglePause();
    EXPECT_EQ(state(), State::stopped);
    delegate->settings().showRecordings.set(false);
    delegate->settings().showRecordings.set(true);
    time.settle();
    EXPECT_EQ(state(), State::stopped);
    record("a.mp4");
    delegate->statusBar().togglePause();
    time.settle();
    record("b.mp4");
    EXPECT_THAT(recentNames(), ElementsAre("b.mp4"));
}

TEST_F(RecordingsTest, ItIsNotWatchedBeforeTheOnboardingHasEnded) {
    defaults->stored["hasCompletedOnboarding"] = false;
    offerWindows();
    launch();
    EXPECT_EQ(state(), State::stopped);
    finishOnboarding();
    time.settle();
    EXPECT_EQ(state(), State::watching);
}

TEST_F(RecordingsTest, TheSameFolderForBothGivesOneTile) {
    recordingsFolder = folder;
    launch();
    EXPECT_EQ(state(), State::stopped);
    record("cast.mp4", folder);
    EXPECT_THAT(recentNames(), ElementsAre("cast.mp4"));
    EXPECT_EQ(delegate->panel().state().captures.value().size(), 1u);
    EXPECT_THAT(status(), Not(HasSubstr("recordings")));
}

TEST_F(RecordingsTest, NestedFoldersGiveOneTileForEachFile) {
    recordingsFolder = folder.appending("Screencasts");
    launch();
    (void)files->createDirectory(recordingsFolder);
    time.settle();
    record("cast.mp4", recordingsFolder);
    save("shot.png");
    EXPECT_THAT(recentNames(), ElementsAre("shot.png", "cast.mp4"));
}

TEST_F(RecordingsTest, TheChoiceOfAFolderForScreenshotsDecidesWhetherThereAreTwo) {
    launch();
    delegate->settings().setScreenshotFolder(casts);
    time.settle();
    EXPECT_EQ(state(), State::stopped);
    record("a.mp4");
    delegate->settings().setScreenshotFolder(folder);
    time.settle();
    EXPECT_EQ(state(), State::watching);
    record("b.mp4");
    EXPECT_THAT(recentNames(), ElementsAre("b.mp4", "a.mp4"));
}

TEST_F(RecordingsTest, AChangedFolderOfTheRecorderCountsWhenTheSettingsOpen) {
    offerWindows();
    launch();
    recordingsFolder = Url::file("/home/user/Clips");
    (void)files->createDirectory(recordingsFolder);
    delegate->showSettings();
    time.settle();
    record("a.mp4", recordingsFolder);
    record("b.mp4");
    EXPECT_THAT(recentNames(), ElementsAre("a.mp4"));
}

TEST_F(RecordingsTest, FailuresThereShowNoAlert) {
    files->failListing(casts, EACCES);
    launch();
    time.advance(Seconds(1));
    EXPECT_EQ(state(), State::failed);
    EXPECT_THAT(status(), HasSubstr("\nrecordings: not watched\n"));
    files->failListing(casts, 0);
    files->removeDirectory(casts);
    delegate->statusBar().togglePause();
    delegate->statusBar().togglePause();
    time.advance(Seconds(1));
    EXPECT_EQ(state(), State::waiting);
    EXPECT_THAT(alerts->shown, IsEmpty());
    EXPECT_EQ(files->existence(casts), FileManager::Existence::none) << "it is not ours to make";
}

TEST_F(RecordingsTest, TheStatusNamesTheWatchedFolder) {
    launch();
    EXPECT_THAT(status(), HasSubstr("\nrecordings: watched\nrecordings folder: " + casts.path()));
    files->removeDirectory(casts);
    time.settle();
    EXPECT_THAT(status(), HasSubstr("\nrecordings: waiting for the folder\n"));
    delegate->settings().showRecordings.set(false);
    time.settle();
    EXPECT_THAT(status(), HasSubstr("\nrecordings: not watched\n"));
    platform.recordingsFolder = nullptr;
    EXPECT_THAT(status(), Not(HasSubstr("recordings")));
}

}  // namespace
}  // namespace vantle
