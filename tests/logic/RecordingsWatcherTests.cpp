#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "capture/RecordingsWatcher.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/VirtualTime.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using State = RecordingsWatcher::State;

const Url home = Url::file("/home/user");
const Url videos = home.appending("Videos");
const Url folder = videos.appending("Screencasts");

class RecordingsWatcherTest : public testing::Test {
protected:
    RecordingsWatcherTest() {
        (void)files.createDirectory(home);
        watcher->onRecording = [this](const CapturePointer& capture) {
            captured.push_back(capture->fileName());
        };
    }

    void save(const std::string& name, const Url& where = folder) {
        files.write(where.appending(name), 1000, clock.now());
        time.advance(Seconds(1));
    }
    void make(const Url& url) {
        (void)files.createDirectory(url);
        time.settle();
    }
    void start(const Url& url = folder) {
        watcher->start(url);
        time.settle();
    }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::ManualQueue queue{time};
    fakes::ManualQueue servers{time};
    fakes::VirtualClock clock{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakeMediaLoader media;
    std::shared_ptr<RecordingsWatcher> watcher =
        RecordingsWatcher::create({scheduler, queue, servers, files, files, media, clock});
    std::vector<std::string> captured;
    CapturedLog log;
};

TEST_F(RecordingsWatcherTest, ARecordingInAnExistingFolderIsReportedOnce) {
    make(folder);
    save("old.mp4");
    start();
    EXPECT_EQ(watcher->state(), State::watching);
    save("new.mp4");
    EXPECT_THAT(captured, ElementsAre("new.mp4"));
}

TEST_F(RecordingsWatcherTest, AFolderThatAppearsLaterIsAwaitedSilently) {
    start();
    EXPECT_EQ(watcher->state(), State::waiting);
    make(videos);
    EXPECT_EQ(watcher->state(), State::waiting);
    save("film.mp4", videos);
    make(folder);
    EXPECT_EQ(watcher->state(), State::watching);
    save("new.mp4");
    EXPECT_THAT(captured, ElementsAre("new.mp4"));
    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_EQ(files.openSources(), 1u);
}

TEST_F(RecordingsWatcherTest, AFileThatArrivesWithTheFolderIsNew) {
    start();
    (void)files.createDirectory(folder);
    files.write(folder.appending("first.mp4"), 1000, clock.now());
    files.write(folder.appending("old.mp4"), 1000, clock.now() - std::chrono::seconds(300));
    time.advance(Seconds(1));
    EXPECT_THAT(captured, ElementsAre("first.mp4"));
}

TEST_F(RecordingsWatcherTest, AFolderThatIsRemovedAndMadeAgainIsWatchedAgain) {
    make(folder);
    start();
    save("a.mp4");
    files.removeDirectory(folder);
    time.settle();
    EXPECT_EQ(watcher->state(), State::waiting);
    make(folder);
    save("a.mp4");
    EXPECT_THAT(captured, ElementsAre("a.mp4", "a.mp4"));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(RecordingsWatcherTest, ARenamedFolderIsAwaitedUnderItsOldName) {
    make(folder);
    start();
    const Url other = videos.appending("Other");
    files.moveDirectory(folder, other);
    time.settle();
    save("a.mp4", other);
    EXPECT_EQ(watcher->state(), State::waiting);
    EXPECT_THAT(captured, IsEmpty());
    time.advance(Seconds(200));
    files.moveDirectory(other, folder);
    time.settle();
    save("b.mp4");
    EXPECT_THAT(captured, ElementsAre("b.mp4"));
}

TEST_F(RecordingsWatcherTest, TheFolderAboveMayVanishAndComeBack) {
    make(videos);
    start();
    files.removeDirectory(videos);
    time.settle();
    EXPECT_EQ(watcher->state(), State::waiting);
    (void)files.createDirectory(folder);
    time.settle();
    EXPECT_EQ(watcher->state(), State::watching);
}

TEST_F(RecordingsWatcherTest, TheFolderAboveMayBeReplacedAtOnce) {
    make(videos);
    start();
    files.removeDirectory(videos);
    (void)files.createDirectory(videos);
    time.settle();
    make(folder);
    EXPECT_EQ(watcher->state(), State::watching);
}

TEST_F(RecordingsWatcherTest, AFileOfThatNameIsNotTheFolder) {
    make(videos);
    files.write(folder, 10, clock.now());
    start();
    EXPECT_EQ(watcher->state(), State::waiting);
    files.remove(folder);
    make(folder);
    EXPECT_EQ(watcher->state(), State::watching);
}

TEST_F(RecordingsWatcherTest, PicturesBesideRecordingsAreNotReported) {
    make(folder);
    start();
    save("cover.png");
    save("new.mov");
    EXPECT_THAT(captured, ElementsAre("new.mov"));
}

TEST_F(RecordingsWatcherTest, NothingIsOpenAfterAStop) {
    make(folder);
    start();
    watcher->stop();
    EXPECT_EQ(watcher->state(), State::stopped);
    EXPECT_EQ(files.openSources(), 0u);
    start(home.appending("gone"));
    watcher->stop();
    time.settle();
    EXPECT_EQ(files.openSources(), 0u);
    make(home.appending("gone"));
    EXPECT_EQ(watcher->state(), State::stopped);
    save("new.mp4");
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RecordingsWatcherTest, AFolderThatAppearsJustBeforeAStopIsNotWatched) {
    start();
    // What the queue has noticed is still on its way to the main thread.
    (void)files.createDirectory(folder);
    scheduler.async([this] { watcher->stop(); });
    time.settle();
    EXPECT_EQ(watcher->state(), State::stopped);
    EXPECT_EQ(files.openSources(), 0u);
}

TEST_F(RecordingsWatcherTest, AnAwaitedFolderReplacesTheWatchedOne) {
    make(folder);
    start();
    start(home.appending("Later"));
    EXPECT_EQ(watcher->state(), State::waiting);
    save("new.mp4");
    EXPECT_THAT(captured, IsEmpty());
    EXPECT_EQ(files.openSources(), 1u);
}

TEST_F(RecordingsWatcherTest, AnotherFolderReplacesTheAwaitedOne) {
    start();
    const Url other = home.appending("Clips");
    make(other);
    start(other);
    make(folder);
    save("a.mp4");
    save("b.mp4", other);
    EXPECT_THAT(captured, ElementsAre("b.mp4"));
}

TEST_F(RecordingsWatcherTest, ARemoteFolderIsSearchedInTheBackground) {
    files.makeRemote(folder);
    watcher->start(folder);
    EXPECT_EQ(files.openSources(), 0u);
    EXPECT_EQ(watcher->state(), State::waiting);
    time.settle();
    EXPECT_EQ(files.openSources(), 1u);
    make(folder);
    EXPECT_EQ(watcher->state(), State::watching);
    save("cast.mp4");
    EXPECT_THAT(captured, ElementsAre("cast.mp4"));
    watcher->start(Url::file("/far"));
    files.makeRemote(Url::file("/far"));
    watcher->stop();
    time.settle();
    EXPECT_EQ(watcher->state(), State::stopped);
    EXPECT_EQ(files.openSources(), 0u);
}

TEST_F(RecordingsWatcherTest, StartingAgainChangesNothing) {
    make(folder);
    start();
    files.write(folder.appending("a.mp4"), 1000, clock.now());
    start();
    time.advance(Seconds(1));
    EXPECT_THAT(captured, ElementsAre("a.mp4"));
}

TEST_F(RecordingsWatcherTest, AnUnreadableFolderIsLoggedAndTriedAgainOnRequest) {
    make(folder);
    files.failListing(folder, EACCES);
    start();
    time.advance(Seconds(60));
    EXPECT_EQ(watcher->state(), State::failed);
    EXPECT_THAT(log.lines(),
                ElementsAre("Vantle: cannot watch " + folder.path() + ": accessDenied"));
    files.failListing(folder, 0);
    start();
    EXPECT_EQ(watcher->state(), State::watching);
}

TEST_F(RecordingsWatcherTest, LogsThatAFolderCannotBeAwaited) {
    files.failOpening(home, EACCES);
    start();
    EXPECT_EQ(watcher->state(), State::failed);
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("Vantle: cannot watch for " + folder.path() +
                                                   " to be created: ")));
}

TEST_F(RecordingsWatcherTest, ARenamedRecordingIsNotReportedAgain) {
    make(folder);
    start();
    save("a.mp4");
    const Url from = folder.appending("a.mp4");
    const Url to = folder.appending("b.mp4");
    watcher->willMove(to);
    watcher->didMove(from, to, !files.rename(from, to).has_value());
    time.advance(Seconds(60));
    EXPECT_THAT(captured, ElementsAre("a.mp4"));
}

}  // namespace
}  // namespace vantle
