#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>

#include "contract/DirectoryEventsContract.h"
#include "contract/RealDisk.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(InotifyDirectoryEvents, DirectoryEventsContract, RealDisk);

class InotifyDirectoryEventsTest : public DirectoryEventsContract<RealDisk> {
protected:
    /// Returns the number of open descriptors; nothing else in this process changes it meanwhile.
    static std::size_t openDescriptors() {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return static_cast<std::size_t>(std::distance(begin(all), end(all)));
    }
};

TEST_F(InotifyDirectoryEventsTest, AnOverflowOfTheKernelsQueueChangesTheContents) {
    const Url a = file("a.png");
    const Url b = file("b.png");
    disk.save(a);
    disk.save(b);
    std::size_t limit = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> limit;
    ASSERT_GT(limit, 0U);

    const auto source = open(disk.folder, record);
    ASSERT_NE(source, nullptr);
    // Otherwise the kernel would merge equal events into one.
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

TEST_F(InotifyDirectoryEventsTest, AFolderInUseIsLostWhenItIsRemoved) {
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    // A shell in the folder, or a program that reads a file in it, also keeps it open.
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

TEST_F(InotifyDirectoryEventsTest, ChangesBesideTheFolderAreNotReported) {
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

TEST_F(InotifyDirectoryEventsTest, RewritingAFileChangesTheContents) {
    disk.save(file("a.png"));
    const auto source = watch(disk.folder, record);
    ASSERT_NE(source, nullptr);
    disk.save(file("a.png"), 100);
    EXPECT_TRUE(sees(record));
    EXPECT_FALSE(record.seen().lost);
}

TEST_F(InotifyDirectoryEventsTest, AGrowingFileIsReportedWhenItIsClosed) {
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

TEST_F(InotifyDirectoryEventsTest, ClosesItsDescriptor) {
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
