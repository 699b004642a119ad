#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "capture/CaptureWatcher.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/VirtualTime.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using testing::ElementsAre;
using testing::IsEmpty;

const Url folder = Url::file("/shots");

class CaptureWatcherTest : public testing::Test {
protected:
    CaptureWatcherTest() {
        (void)files.createDirectory(folder);
        watcher = CaptureWatcher::create(
            {scheduler, queue, servers, files, files, media, clock, additionalExtensions});
        watcher->onCapture = [this](const CapturePointer& capture) {
            captured.push_back(capture->fileName());
        };
        watcher->onError = [this](const WatchError& error) { errors.push_back(error.text()); };
    }

    Url url(std::string_view name) const { return folder.appending(name); }
    void save(std::string_view name, std::int64_t size = 1000) {
        files.write(url(name), size, clock.now());
    }
    void start() {
        ASSERT_EQ(watcher->start(folder), std::nullopt);
        time.settle();
    }
    void wait(double seconds) { time.advance(Seconds(seconds)); }

    static constexpr std::array<std::string_view, 1> moreVideos{"webm"};
    static constexpr CaptureExtensions additionalExtensions{{}, moreVideos};

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::ManualQueue queue{time};
    fakes::ManualQueue servers{time};
    fakes::VirtualClock clock{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakeMediaLoader media;
    std::shared_ptr<CaptureWatcher> watcher;
    std::vector<std::string> captured;
    std::vector<std::string> errors;
};

TEST_F(CaptureWatcherTest, FilesPresentAtTheStartAreNeverReported) {
    save("old.png");
    save("notes.txt");
    (void)files.createDirectory(url("folder.png"));
    start();
    files.touch(folder);
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, AFileWithAnExtensionThatTheSystemAddsIsReported) {
    start();
    save("clip.webm");
    save("clip.ogv");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("clip.webm"));
}

TEST_F(CaptureWatcherTest, ANewFileIsReportedAQuarterSecondAfterItsSizeSettles) {
    start();
    save("new.png", 500);
    wait(0.1);
    files.change(url("new.png"), [](auto& entry) { entry.size = 1000; });
    wait(0.15);
    EXPECT_THAT(captured, IsEmpty());  // 0.25 s: the size differs from the first reading
    wait(0.24);
    EXPECT_THAT(captured, IsEmpty());
    wait(0.01);
    EXPECT_THAT(captured, ElementsAre("new.png"));
    wait(60);
    EXPECT_THAT(captured, ElementsAre("new.png"));
}

TEST_F(CaptureWatcherTest, FurtherEventsWhileAFileIsPendingStartNoSecondChain) {
    start();
    save("new.png");
    time.settle();
    const auto waiting = time.pending();
    files.touch(folder);
    time.settle();
    EXPECT_EQ(time.pending(), waiting);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("new.png"));
}

TEST_F(CaptureWatcherTest, AFileThreeMinutesOldIsKnownSilently) {
    start();
    files.write(url("copied.png"), 1000, clock.now() - std::chrono::minutes(3));
    wait(10);
    files.change(url("copied.png"), [this](auto& entry) { entry.modified = clock.now(); });
    wait(10);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, AFileOfTwoMinutesIsOldAndAYoungerOneIsNew) {
    start();
    files.write(url("old.png"), 1000, clock.now() - std::chrono::seconds(120));
    files.write(url("new.png"), 1000, clock.now() - std::chrono::milliseconds(119'999));
    wait(1);
    EXPECT_THAT(captured, ElementsAre("new.png"));
}

TEST_F(CaptureWatcherTest, AFileDatedInTheFutureIsNew) {
    start();
    files.write(url("future.png"), 1000, clock.now() + std::chrono::hours(24));
    wait(1);
    EXPECT_THAT(captured, ElementsAre("future.png"));
}

TEST_F(CaptureWatcherTest, TheCreationDateCountsWithoutAModificationDate) {
    start();
    save("undated.png");
    files.change(url("undated.png"), [this](auto& entry) {
        entry.modified.reset();
        entry.created = clock.now() - std::chrono::minutes(3);
    });
    save("dateless.png");
    files.change(url("dateless.png"), [](auto& entry) { entry.modified.reset(); });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("dateless.png"));
}

TEST_F(CaptureWatcherTest, HiddenFilesAndOtherExtensionsAreNeverReportedAndNeverKnown) {
    start();
    save(".hidden.png");
    save("notes.txt");
    wait(1);
    EXPECT_THAT(captured, IsEmpty());
    // Because they are not known, the same files are new under names of captures.
    (void)files.rename(url(".hidden.png"), url("shown.png"));
    (void)files.rename(url("notes.txt"), url("notes.png"));
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shown.png", "notes.png"));
}

TEST_F(CaptureWatcherTest, ADeletedFileSavedAgainIsReportedAgain) {
    start();
    save("shot.png");
    wait(1);
    files.remove(url("shot.png"));
    wait(1);
    save("shot.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shot.png", "shot.png"));
}

TEST_F(CaptureWatcherTest, AnEmptiedFolderForgetsEverything) {
    save("old.png");
    start();
    files.remove(url("old.png"));
    time.settle();
    save("old.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("old.png"));
}

TEST_F(CaptureWatcherTest, AMissingFolderReplacesThePreviousOne) {
    start();
    EXPECT_EQ(watcher->start(Url::file("/none")), WatchError::missing());
    EXPECT_FALSE(watcher->isWatching());
    EXPECT_EQ(files.openSources(), 0u);
    save("new.png");
    wait(1);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, OneByteIsEnough) {
    start();
    save("small.png", 1);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("small.png"));
}

TEST_F(CaptureWatcherTest, AZeroByteFileIsDroppedForGood) {
    start();
    save("empty.png", 0);
    wait(10.3);
    EXPECT_EQ(time.pending(), 0u);
    files.change(url("empty.png"), [](auto& entry) { entry.size = 1000; });
    wait(10);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, AFileThatKeepsGrowingIsReportedAtThe42ndReading) {
    start();
    save("growing.png", 1);
    time.settle();
    for (int reading = 2; reading <= 41; ++reading) {
        files.change(url("growing.png"), [](auto& entry) { entry.size += 1; });
        wait(0.25);
    }
    EXPECT_THAT(captured, IsEmpty());
    files.change(url("growing.png"), [](auto& entry) { entry.size += 1; });
    wait(0.25);
    EXPECT_THAT(captured, ElementsAre("growing.png"));
}

TEST_F(CaptureWatcherTest, AFileThatGrowsWithoutEventsIsReportedWhenItIsComplete) {
    start();
    save("quiet.png");
    for (int part = 2; part <= 8; ++part) {
        wait(0.2);
        files.changeSilently(url("quiet.png"), [part](auto& entry) { entry.size = 1000 * part; });
    }
    EXPECT_THAT(captured, IsEmpty());
    wait(1);
    EXPECT_THAT(captured, ElementsAre("quiet.png"));
}

TEST_F(CaptureWatcherTest, AFileDeletedWhilePendingIsForgotten) {
    start();
    save("gone.png");
    time.settle();
    files.remove(url("gone.png"));
    wait(10.3);
    EXPECT_EQ(time.pending(), 0u);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, AFileThatComesBackWhilePendingIsReportedOnce) {
    start();
    save("back.png");
    time.settle();
    files.remove(url("back.png"));
    wait(3);
    save("back.png", 2000);
    wait(10);
    EXPECT_THAT(captured, ElementsAre("back.png"));
}

TEST_F(CaptureWatcherTest, AnUnreadableSizeIsPolledAgain) {
    start();
    save("locked.png");
    files.change(url("locked.png"), [](auto& entry) { entry.sizeIsReadable = false; });
    wait(5);
    EXPECT_THAT(captured, IsEmpty());
    files.change(url("locked.png"), [](auto& entry) { entry.sizeIsReadable = true; });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("locked.png"));
}

TEST_F(CaptureWatcherTest, AFileOfUnknownTypeIsCheckedAgain) {
    start();
    save("recording.mp4");
    files.change(url("recording.mp4"), [](auto& entry) { entry.isRegularFile.reset(); });
    wait(30);
    EXPECT_THAT(captured, IsEmpty());
    files.change(url("recording.mp4"), [this](auto& entry) {
        entry.isRegularFile = true;
        entry.modified = clock.now();
    });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("recording.mp4"));
}

TEST_F(CaptureWatcherTest, AFileThatItsWriterClosesWithoutAnEventIsReported) {
    start();
    save("recording.mp4");
    files.change(url("recording.mp4"), [](auto& entry) { entry.isRegularFile.reset(); });
    time.settle();
    // No event reports this change.
    files.changeSilently(url("recording.mp4"), [](auto& entry) { entry.isRegularFile = true; });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("recording.mp4"));
}

TEST_F(CaptureWatcherTest, AFileThatStaysOpenIsNotCheckedForEver) {
    start();
    save("recording.mp4");
    files.change(url("recording.mp4"), [](auto& entry) { entry.isRegularFile.reset(); });
    wait(60);
    EXPECT_EQ(time.pending(), 0u);
}

TEST_F(CaptureWatcherTest, FilesWhoseValuesCannotBeReadAreCheckedAgain) {
    start();
    save("shy.png");
    files.change(url("shy.png"), [](auto& entry) { entry.valuesAreReadable = false; });
    wait(5);
    EXPECT_THAT(captured, IsEmpty());
    files.change(url("shy.png"), [](auto& entry) { entry.valuesAreReadable = true; });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shy.png"));
}

TEST_F(CaptureWatcherTest, FilesThatSettleTogetherArriveInListingOrder) {
    start();
    for (const char* name : {"c.png", "a.png", "b.png"}) save(name);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("c.png", "a.png", "b.png"));
}

TEST_F(CaptureWatcherTest, OtherWorkRunsBetweenFilesThatSettleTogether) {
    start();
    watcher->onCapture = [this](const CapturePointer& capture) {
        captured.push_back(capture->fileName());
        scheduler.async([this] { captured.push_back("another"); });
    };
    for (const char* name : {"a.png", "b.png", "c.png"}) save(name);
    wait(0.3);
    EXPECT_THAT(captured, ElementsAre("a.png", "another", "b.png", "another", "c.png", "another"));
}

TEST_F(CaptureWatcherTest, PicturesAreLoadedOnlyAsTheMainThreadTakesThem) {
    start();
    std::size_t farthestAhead = 0;
    watcher->onCapture = [&](const CapturePointer& capture) {
        captured.push_back(capture->fileName());
        farthestAhead = std::max(farthestAhead, media.drawnSizes.size() - captured.size());
    };
    for (int i = 10; i < 60; ++i) {
        const std::string name = std::to_string(i) + ".png";
        media.addImage(url(name), Size{640, 400}, {640, 400});
        save(name);
    }
    wait(0.3);
    EXPECT_EQ(captured.size(), 50u);
    EXPECT_TRUE(std::ranges::is_sorted(captured));
    EXPECT_LE(farthestAhead, 3u);
}

TEST_F(CaptureWatcherTest, FilesThatSettleApartArriveAsTheySettle) {
    start();
    save("slow.png", 1);
    save("fast.png");
    wait(0.1);
    files.change(url("slow.png"), [](auto& entry) { entry.size = 2; });
    wait(1);
    EXPECT_THAT(captured, ElementsAre("fast.png", "slow.png"));
}

TEST_F(CaptureWatcherTest, ADeliveredCaptureHasItsThumbnailAndTheFilesDate) {
    start();
    media.addImage(url("shot.png"), Size{1600, 1000}, {1600, 1000});
    CapturePointer delivered;
    watcher->onCapture = [&](const CapturePointer& capture) { delivered = capture; };
    const Date saved = clock.now() - std::chrono::seconds(5);
    files.write(url("shot.png"), 1000, saved);
    wait(1);
    ASSERT_NE(delivered, nullptr);
    EXPECT_EQ(delivered->date(), saved);
    EXPECT_EQ(delivered->pixelSize(), (Size{1600, 1000}));
    EXPECT_EQ(delivered->thumbnail()->size, (Size{800, 500}));
}

TEST_F(CaptureWatcherTest, NamesOfAnyBytesAreReported) {
    start();
    const std::string longName = std::string(251, 'x') + ".png";
    for (const std::string& name : {std::string("new\nline.png"), std::string("100% sure.png"),
                                    std::string("\xff\xfe.png"), longName})
        save(name);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("new\nline.png", "100% sure.png", "\xff\xfe.png", longName));
}

TEST_F(CaptureWatcherTest, AFileSavedBetweenListingAndOpeningIsNotMissed) {
    ASSERT_EQ(watcher->start(folder), std::nullopt);
    save("between.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("between.png"));
}

TEST_F(CaptureWatcherTest, AKnownFileIsNotReadAgain) {
    for (int i = 0; i < 100; ++i) save(std::to_string(i) + ".png");
    start();
    const int before = files.inspections();
    files.touch(folder);
    time.settle();
    EXPECT_EQ(files.inspections(), before);
}

TEST_F(CaptureWatcherTest, AnOverflowLeadsToARescan) {
    start();
    save("shot.png");
    files.overflow(folder);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shot.png"));
}

TEST_F(CaptureWatcherTest, MovingTheFolderReportsItMissingOnceWithoutALogLine) {
    CapturedLog log;
    start();
    files.moveDirectory(folder, Url::file("/elsewhere"));
    wait(1);
    EXPECT_THAT(errors, ElementsAre("missing"));
    EXPECT_FALSE(watcher->isWatching());
    EXPECT_EQ(files.openSources(), 0u);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(CaptureWatcherTest, DeletingTheFolderReportsItMissingOnce) {
    start();
    save("shot.png");
    files.removeDirectory(folder);
    wait(20);
    EXPECT_THAT(errors, ElementsAre("missing"));
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, UnmountingTheFolderReportsItMissingOnce) {
    start();
    files.revoke(folder);
    wait(1);
    EXPECT_THAT(errors, ElementsAre("missing"));
}

TEST_F(CaptureWatcherTest, AnEventInAMissingFolderReportsItMissing) {
    const Url deep = Url::file("/above/shots");
    (void)files.createDirectory(deep);
    ASSERT_EQ(watcher->start(deep), std::nullopt);
    time.settle();
    // Only the folder above gets an event for this move.
    files.moveDirectory(Url::file("/above"), Url::file("/elsewhere"));
    files.touch(deep);
    wait(1);
    EXPECT_THAT(errors, ElementsAre("missing"));
    EXPECT_FALSE(watcher->isWatching());
}

TEST_F(CaptureWatcherTest, ALossReportedAfterAnotherFolderWasChosenIsIgnored) {
    start();
    const Url other = Url::file("/other");
    (void)files.createDirectory(other);
    files.removeDirectory(folder);
    // The queue has noticed the loss, but the main thread does not know of it yet.
    queue.async([&] { EXPECT_EQ(watcher->start(other), std::nullopt); });
    wait(1);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_TRUE(watcher->isWatching());
}

TEST_F(CaptureWatcherTest, AFileOfTheSameNameInAnotherFolderIsAnotherFile) {
    start();
    save("same.png");
    time.settle();
    const Url other = Url::file("/other");
    (void)files.createDirectory(other);
    ASSERT_EQ(watcher->start(other), std::nullopt);
    time.settle();
    files.write(other.appending("same.png"), 1000, clock.now());
    wait(1);
    EXPECT_THAT(captured, ElementsAre("same.png", "same.png"));
}

TEST_F(CaptureWatcherTest, AFolderLostAfterAnotherWasChosenIsIgnored) {
    start();
    files.removeDirectory(folder);
    const Url other = Url::file("/other");
    (void)files.createDirectory(other);
    EXPECT_EQ(watcher->start(other), std::nullopt);
    wait(1);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_TRUE(watcher->isWatching());
}

TEST_F(CaptureWatcherTest, ARemoteFolderIsOpenedInTheBackground) {
    files.makeRemote(folder);
    save("old.png");
    const int listings = files.listings();
    EXPECT_EQ(watcher->start(folder), std::nullopt);
    EXPECT_EQ(files.listings(), listings);
    EXPECT_TRUE(watcher->isOpening());
    EXPECT_FALSE(watcher->isWatching());
    EXPECT_EQ(watcher->start(folder), std::nullopt) << "asked already";
    time.settle();
    EXPECT_FALSE(watcher->isOpening());
    EXPECT_TRUE(watcher->isWatching());
    EXPECT_EQ(files.openSources(), 1u);
    save("shot.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shot.png"));
}

TEST_F(CaptureWatcherTest, ARemoteFolderThatAnswersTooLateIsNotWatched) {
    files.makeRemote(folder);
    const Url other = Url::file("/other");
    (void)files.createDirectory(other);
    EXPECT_EQ(watcher->start(folder), std::nullopt);
    EXPECT_EQ(watcher->start(other), std::nullopt);
    time.settle();
    EXPECT_EQ(files.openSources(), 1u);
    save("shot.png");
    wait(1);
    EXPECT_THAT(captured, IsEmpty());
    EXPECT_EQ(watcher->start(folder), std::nullopt);
    watcher->stop();
    time.settle();
    EXPECT_FALSE(watcher->isWatching());
    EXPECT_EQ(files.openSources(), 0u);
}

TEST_F(CaptureWatcherTest, AFailureOfARemoteFolderIsReportedLater) {
    const Url none = Url::file("/none");
    files.makeRemote(none);
    EXPECT_EQ(watcher->start(none), std::nullopt);
    time.settle();
    EXPECT_THAT(errors, ElementsAre("missing"));
    EXPECT_FALSE(watcher->isOpening());
}

TEST_F(CaptureWatcherTest, AMissingFolderIsReturnedLoggedAndReportedLater) {
    CapturedLog log;
    EXPECT_EQ(watcher->start(Url::file("/none")), WatchError::missing());
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: cannot watch /none: missing"));
    EXPECT_THAT(errors, IsEmpty());
    time.settle();
    EXPECT_THAT(errors, ElementsAre("missing"));
    EXPECT_EQ(watcher->folder(), Url::file("/none"));
    EXPECT_FALSE(watcher->isWatching());
}

TEST_F(CaptureWatcherTest, AFileInPlaceOfTheFolderCountsAsMissing) {
    files.write(Url::file("/file"), 10, clock.now());
    EXPECT_EQ(watcher->start(Url::file("/file")), WatchError::missing());
}

TEST_F(CaptureWatcherTest, ARefusedListingIsAccessDenied) {
    CapturedLog log;
    for (const int error : {EPERM, EACCES}) {
        files.failListing(folder, error);
        EXPECT_EQ(watcher->start(folder), WatchError::accessDenied());
    }
    EXPECT_EQ(log.lines().back(), "Vantle: cannot watch /shots: accessDenied");
}

TEST_F(CaptureWatcherTest, AnyOtherFailedListingCarriesTheReason) {
    CapturedLog log;
    files.failListing(folder, EIO);
    EXPECT_EQ(watcher->start(folder), WatchError::other("Input/output error"));
    EXPECT_THAT(log.lines(),
                ElementsAre("Vantle: cannot watch /shots: other(\"Input/output error\")"));
    time.settle();
    EXPECT_THAT(errors, ElementsAre("other(\"Input/output error\")"));
}

TEST_F(CaptureWatcherTest, AFolderThatCannotBeOpenedIsReportedByItsErrorNumber) {
    CapturedLog log;
    files.failOpening(folder, EACCES);
    EXPECT_EQ(watcher->start(folder), WatchError::accessDenied());
    files.failOpening(folder, ENOSPC);
    EXPECT_EQ(watcher->start(folder), WatchError::other("No space left on device"));
}

TEST_F(CaptureWatcherTest, AFailedListingDuringAScanIsSilent) {
    CapturedLog log;
    start();
    files.failListing(folder, EIO);
    save("shot.png");
    wait(1);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
    files.failListing(folder, 0);
    files.touch(folder);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shot.png"));
}

TEST_F(CaptureWatcherTest, StartingTwiceOnTheSameFolderIsHarmless) {
    ASSERT_EQ(watcher->start(folder), std::nullopt);
    start();
    EXPECT_EQ(files.openSources(), 1u);
    save("shot.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("shot.png"));
}

TEST_F(CaptureWatcherTest, AFileSavedBetweenTwoStartsIsNotLost) {
    save("old.png");
    ASSERT_EQ(watcher->start(folder), std::nullopt);
    save("between.png");
    start();
    wait(1);
    EXPECT_THAT(captured, ElementsAre("between.png"));
    start();
    wait(1);
    EXPECT_EQ(captured.size(), 1u) << "what was reported stays known";
}

TEST_F(CaptureWatcherTest, AStoppedWatcherReportsOnlyFilesThatWereSettling) {
    start();
    save("settling.png");
    time.settle();
    watcher->stop();
    watcher->stop();
    save("later.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("settling.png"));
    EXPECT_EQ(files.openSources(), 0u);
}

TEST_F(CaptureWatcherTest, FilesSavedWhileStoppedAreOldAtTheNextStart) {
    start();
    watcher->stop();
    save("meanwhile.png");
    start();
    wait(1);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(CaptureWatcherTest, AReleasedWatcherStopsAllWork) {
    start();
    save("shot.png");
    time.settle();
    watcher.reset();
    wait(20);
    EXPECT_THAT(captured, IsEmpty());
    EXPECT_EQ(files.openSources(), 0u);
}

TEST_F(CaptureWatcherTest, LogsTheWatchedFolderWhenDebugging) {
    CapturedLog log(CapturedLog::DebugSwitch::on);
    save("old.png");
    start();
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: watching /shots (fd 3, 1 existing files)"));
}

TEST_F(CaptureWatcherTest, ANewFileUnderTheNameOfARenamedOlderOneIsReported) {
    save("old.png");
    start();
    watcher->willMove(url("b.png"));
    watcher->didMove(url("old.png"), url("b.png"),
                     !files.rename(url("old.png"), url("b.png")).has_value());
    wait(1);
    save("old.png");
    wait(1);
    EXPECT_THAT(captured, ElementsAre("old.png"));
}

/// A capture that was reported, and that the user renames.
class RenamingTest : public CaptureWatcherTest {
protected:
    RenamingTest() {
        start();
        save("a.png");
        wait(1);
        EXPECT_THAT(captured, ElementsAre("a.png"));
        captured.clear();
    }
    void begin() { watcher->willMove(url("b.png")); }
    bool rename() { return !files.rename(url("a.png"), url("b.png")).has_value(); }
    void end(bool isSuccess) { watcher->didMove(url("a.png"), url("b.png"), isSuccess); }
};

TEST_F(RenamingTest, TheNewNameIsNotReported) {
    begin();
    end(rename());
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
    files.touch(folder);
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, ARenamingThatNobodyAnnouncedIsReported) {
    rename();
    wait(1);
    EXPECT_THAT(captured, ElementsAre("b.png"));
}

TEST_F(RenamingTest, AScanBeforeTheRenamingDoesNotForgetTheNewName) {
    begin();
    files.touch(folder);
    time.settle();
    end(rename());
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, AScanBeforeTheEndOfTheRenamingReportsNothing) {
    begin();
    const bool isSuccess = rename();
    wait(10);
    end(isSuccess);
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, AScanThatFindsTheNewNameBeforeItIsAnnouncedReportsNothing) {
    // The event is handled first, but the scan lists the folder after the renaming.
    files.touch(folder);
    begin();
    const bool isSuccess = rename();
    wait(10);
    end(isSuccess);
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, ThatScanReportsNothingAfterAQuickRenamingEither) {
    files.touch(folder);
    begin();
    end(rename());
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, AnotherFileUnderTheNewNameIsReportedIfTheRenamingFails) {
    begin();
    save("b.png");
    time.settle();
    const bool isSuccess = rename();
    EXPECT_FALSE(isSuccess);
    end(isSuccess);
    wait(1);
    EXPECT_THAT(captured, ElementsAre("b.png"));
    wait(60);
    EXPECT_THAT(captured, ElementsAre("b.png"));
}

TEST_F(RenamingTest, ANewFileUnderTheOldNameIsReported) {
    begin();
    const bool isSuccess = rename();
    save("a.png");
    end(isSuccess);
    wait(60);
    EXPECT_THAT(captured, ElementsAre("a.png"));
}

TEST_F(RenamingTest, ALaterFileUnderTheNewNameIsReportedOnceTheOldOneIsGone) {
    begin();
    end(rename());
    wait(1);
    files.remove(url("b.png"));
    wait(1);
    save("b.png");
    wait(60);
    EXPECT_THAT(captured, ElementsAre("b.png"));
}

TEST_F(RenamingTest, AFileThatIsRemovedAtOnceAndReplacedIsReportedOnce) {
    files.touch(folder);
    begin();
    end(rename());
    time.settle();
    files.remove(url("b.png"));
    time.settle();
    save("b.png");
    wait(60);
    EXPECT_THAT(captured, ElementsAre("b.png"));
}

TEST_F(RenamingTest, ARenamedFileCanBeRenamedBack) {
    begin();
    end(rename());
    watcher->willMove(url("a.png"));
    watcher->didMove(url("b.png"), url("a.png"),
                     !files.rename(url("b.png"), url("a.png")).has_value());
    wait(60);
    EXPECT_THAT(captured, IsEmpty());
}

TEST_F(RenamingTest, AFileOfAnotherFolderChangesNothing) {
    const Url other = Url::file("/other");
    watcher->willMove(other.appending("b.png"));
    watcher->didMove(other.appending("a.png"), other.appending("b.png"), true);
    save("b.png");
    wait(60);
    EXPECT_THAT(captured, ElementsAre("b.png"));
}

}  // namespace
}  // namespace vantle
