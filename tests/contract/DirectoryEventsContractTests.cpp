#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "Disks.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

/// What one source told. Any thread.
class ChangeRecord {
public:
    DirectoryEvents::Handler handler() {
        return [this](DirectoryChange change) {
            const std::lock_guard lock(mutex_);
            ++calls_;
            seen_.contents |= change.contents;
            seen_.lost |= change.lost;
            losses_ += change.lost ? 1 : 0;
        };
    }
    int calls() const {
        const std::lock_guard lock(mutex_);
        return calls_;
    }
    int losses() const {
        const std::lock_guard lock(mutex_);
        return losses_;
    }
    DirectoryChange seen() const {
        const std::lock_guard lock(mutex_);
        return seen_;
    }
    /// What was told since the last call of this.
    DirectoryChange take() {
        const std::lock_guard lock(mutex_);
        return std::exchange(seen_, {});
    }

private:
    mutable std::mutex mutex_;
    int calls_ = 0;
    int losses_ = 0;
    DirectoryChange seen_;
};

template <typename Disk>
class DirectoryEventsContract : public testing::Test {
protected:
    std::shared_ptr<DirectoryEventSource> open(const Url& folder, ChangeRecord& into) {
        auto source = disk.events.open(folder, into.handler());
        return source ? source.value() : nullptr;
    }
    std::shared_ptr<DirectoryEventSource> watch(const Url& folder, ChangeRecord& into) {
        auto source = open(folder, into);
        if (source) source->resume();
        return source;
    }
    int failureOfOpening(const Url& folder) {
        const auto source = disk.events.open(folder, record.handler());
        return source ? 0 : source.failure().code;
    }
    bool sees(ChangeRecord& which) {
        return disk.waitUntil([&] { return which.seen().contents; });
    }
    /// Goes through the queue once, behind all that was told until now.
    void letPass() {
        ChangeRecord marker;
        (void)disk.files.createDirectory(disk.place.appending("marker"));
        const auto source = watch(disk.place.appending("marker"), marker);
        disk.save(disk.place.appending("marker").appending("file"));
        EXPECT_TRUE(sees(marker));
        source->cancel();
        std::atomic<bool> passed = false;
        disk.queue.async([&] { passed = true; });
        EXPECT_TRUE(disk.waitUntil([&] { return passed.load(); }));
    }
    Url file(std::string_view name) const { return disk.folder.appending(name); }

    // Before the disk: nothing is told any more when they go.
    ChangeRecord record;
    ChangeRecord other;
    Disk disk;
};

using Disks = testing::Types<FakeDisk, RealDisk>;
TYPED_TEST_SUITE(DirectoryEventsContract, Disks);

TYPED_TEST(DirectoryEventsContract, ComingGoingRenamingAndGrowingAreChangesOfTheContents) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    const std::vector<std::function<void()>> changes{
        [this] { this->disk.save(this->file("a.png")); },
        [this] { this->disk.save(this->file("a.png"), 100); },
        [this] { this->disk.rename(this->file("a.png"), this->file("b.png")); },
        [this] { this->disk.remove(this->file("b.png")); },
    };
    for (const auto& change : changes) {
        (void)this->record.take();
        change();
        EXPECT_TRUE(this->sees(this->record));
        EXPECT_FALSE(this->record.seen().lost);
        this->letPass();
    }
}

TYPED_TEST(DirectoryEventsContract, MovingInAndOutAreChangesOfTheContents) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    const Url outside = this->disk.place.appending("outside.png");
    this->disk.save(outside);
    this->disk.rename(outside, this->file("in.png"));
    EXPECT_TRUE(this->sees(this->record));
    this->letPass();
    (void)this->record.take();
    this->disk.rename(this->file("in.png"), outside);
    EXPECT_TRUE(this->sees(this->record));
}

TYPED_TEST(DirectoryEventsContract, NothingIsToldBeforeResumeAndNothingIsMissedAfterIt) {
    const auto source = this->open(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
    source->resume();
    EXPECT_TRUE(this->sees(this->record));
}

TYPED_TEST(DirectoryEventsContract, NothingIsToldAfterCancel) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    source->cancel();
    source->cancel();
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST(DirectoryEventsContract, NothingIsToldAfterTheSourceIsGone) {
    auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    source.reset();
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST(DirectoryEventsContract, SourcesAreTheirOwn) {
    const auto first = this->watch(this->disk.folder, this->record);
    const auto second = this->watch(this->disk.folder, this->other);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first->descriptor(), second->descriptor());
    first->cancel();
    this->disk.save(this->file("a.png"));
    EXPECT_TRUE(this->sees(this->other));
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST(DirectoryEventsContract, WhatHappensInSubfoldersIsNotTold) {
    const Url inner = this->file("inner");
    (void)this->disk.files.createDirectory(inner);
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    this->disk.save(inner.appending("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST(DirectoryEventsContract, ADeletedFolderIsLostOnceAlsoWhenItComesBack) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    this->disk.save(this->file("a.png"));
    this->disk.removeFolder(this->disk.folder);
    EXPECT_TRUE(this->disk.waitUntil([this] { return this->record.seen().lost; }));
    const int calls = this->record.calls();
    (void)this->disk.files.createDirectory(this->disk.folder);
    this->disk.save(this->file("b.png"));
    this->disk.removeFolder(this->disk.folder);
    this->letPass();
    EXPECT_EQ(this->record.calls(), calls);
    EXPECT_EQ(this->record.losses(), 1);
}

TYPED_TEST(DirectoryEventsContract, AFolderThatIsMovedAwayIsLostOnce) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    const Url elsewhere = this->disk.place.appending("elsewhere");
    this->disk.moveFolder(this->disk.folder, elsewhere);
    EXPECT_TRUE(this->disk.waitUntil([this] { return this->record.seen().lost; }));
    const int calls = this->record.calls();
    this->disk.save(elsewhere.appending("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), calls);
    EXPECT_EQ(this->record.losses(), 1);
}

TYPED_TEST(DirectoryEventsContract, OnlyAFolderThatIsThereCanBeOpened) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->failureOfOpening(this->file("nothing")), ENOENT);
    EXPECT_EQ(this->failureOfOpening(this->file("a.png")), ENOTDIR);
}

class InotifyDirectoryEventsTest : public DirectoryEventsContract<RealDisk> {
protected:
    /// Nothing else of this process opens descriptors here.
    static std::size_t openDescriptors() {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return static_cast<std::size_t>(std::distance(begin(all), end(all)));
    }
};

TEST_F(InotifyDirectoryEventsTest, AnOverflowOfTheKernelsQueueIsAChangeOfTheContents) {
    const Url a = file("a.png");
    const Url b = file("b.png");
    disk.save(a);
    disk.save(b);
    std::size_t limit = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> limit;
    ASSERT_GT(limit, 0U);

    const auto source = open(disk.folder, record);
    ASSERT_NE(source, nullptr);
    // Equal events one after the other would count as one.
    for (std::size_t i = 0; i <= limit; ++i) chmod((i % 2 ? a : b).path().c_str(), 0600);
    disk.save(file("after.png"));
    source->resume();
    EXPECT_TRUE(sees(record));
    letPass();
    EXPECT_FALSE(record.seen().lost);

    (void)record.take();
    disk.save(file("later.png"));
    EXPECT_TRUE(sees(record));
}

TEST_F(InotifyDirectoryEventsTest, AnUnmountedFolderIsLostOnce) {
    const auto path = disk.folder.path();
    if (mount("vantle", path.c_str(), "tmpfs", 0, nullptr) != 0)
        GTEST_SKIP() << "only root may mount";
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(umount(path.c_str()), 0) << "the watch keeps the volume busy";
    EXPECT_TRUE(disk.waitUntil([this] { return record.seen().lost; }));
    letPass();
    EXPECT_EQ(record.losses(), 1);
}

TEST_F(InotifyDirectoryEventsTest, AFolderInWhichSomebodyStandsIsLostWhenItIsRemoved) {
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    // As a shell does that stands in it, or who reads a file of it.
    const FileDescriptor inside(::open(disk.folder.path().c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_TRUE(inside);
    std::filesystem::remove_all(disk.folder.path());
    std::filesystem::create_directory(disk.folder.path());
    EXPECT_TRUE(disk.waitUntil([this] { return record.seen().lost; }));
    letPass();
    EXPECT_EQ(record.losses(), 1);
}

TEST_F(InotifyDirectoryEventsTest, AFolderIsLostWhenOneAboveItIsRenamed) {
    const Url deep = file("above").appending("between").appending("deep");
    std::filesystem::create_directories(deep.path());
    const auto source = watch(deep, record);
    ASSERT_NE(source, nullptr);
    std::filesystem::rename(file("above").path(), file("elsewhere").path());
    EXPECT_TRUE(disk.waitUntil([this] { return record.seen().lost; }));
    letPass();
    EXPECT_EQ(record.losses(), 1);
}

TEST_F(InotifyDirectoryEventsTest, AFolderIsLostWhenALinkToItLeadsElsewhere) {
    std::filesystem::create_directory(file("one").path());
    std::filesystem::create_directory(file("two").path());
    std::filesystem::create_symlink(file("one").path(), file("link").path());
    const auto source = watch(file("link"), record);
    ASSERT_NE(source, nullptr);
    std::filesystem::remove(file("link").path());
    std::filesystem::create_symlink(file("two").path(), file("link").path());
    EXPECT_TRUE(disk.waitUntil([this] { return record.seen().lost; }));
}

TEST_F(InotifyDirectoryEventsTest, WhatHappensBesideTheFolderIsNotTold) {
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    disk.save(disk.place.appending("beside.png"));
    std::filesystem::rename(disk.place.appending("beside.png").path(),
                            disk.place.appending("renamed.png").path());
    std::filesystem::remove(disk.place.appending("renamed.png").path());
    letPass();
    EXPECT_EQ(record.calls(), 0);
}

TEST_F(InotifyDirectoryEventsTest, AnUnreadableFolderFailsWithPermissionDenied) {
    const auto locked = disk.lock(disk.folder, std::filesystem::perms::none);
    EXPECT_EQ(failureOfOpening(disk.folder), EACCES);
}

TEST_F(InotifyDirectoryEventsTest, AFileThatGrowsIsToldWhenItIsClosed) {
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    {
        std::ofstream stream(file("a.mp4").path());
        stream << "begun" << std::flush;
        EXPECT_TRUE(sees(record));
        letPass();
        (void)record.take();
        stream << "more" << std::flush;
        letPass();
        EXPECT_FALSE(record.seen().contents);
    }
    EXPECT_TRUE(sees(record));
}

TEST_F(InotifyDirectoryEventsTest, ItsDescriptorIsGivenBack) {
    letPass();
    const auto before = openDescriptors();
    for (int i = 0; i < 100; ++i) {
        const auto source = watch(disk.folder, record);
        ASSERT_NE(source, nullptr);
        if (i % 2 == 0) source->cancel();
    }
    letPass();
    EXPECT_TRUE(disk.waitUntil([&] { return openDescriptors() == before; }));
}

TEST_F(InotifyDirectoryEventsTest, ASourceMayOutliveTheQueue) {
    std::shared_ptr<DirectoryEventSource> source;
    {
        PollQueue queue("short");
        InotifyDirectoryEvents events(queue);
        auto opened = events.open(disk.folder, record.handler());
        ASSERT_TRUE(opened);
        source = opened.value();
        source->resume();
    }
    disk.save(file("a.png"));
    source->cancel();
    EXPECT_EQ(record.calls(), 0);
}

}  // namespace
}  // namespace vantle
