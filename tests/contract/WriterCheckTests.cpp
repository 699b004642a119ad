#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/magic.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "platform/linux/WriterCheck.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

class WriterCheckTest : public testing::Test {
protected:
    WriterCheckTest() { writeText(file, "begun"); }
    FileDescriptor open(int flags) const {
        return FileDescriptor(::open(file.path().c_str(), flags | O_CLOEXEC));
    }

    TemporaryFolder folder;
    Url file = folder / "a.mp4";
};

TEST_F(WriterCheckTest, OnlyWritersCount) {
    EXPECT_FALSE(hasWriter(file));
    for (const int flags : {O_WRONLY, O_RDWR, O_WRONLY | O_APPEND}) {
        const auto writer = open(flags);
        EXPECT_TRUE(hasWriter(file));
    }
    const auto reader = open(O_RDONLY);
    EXPECT_FALSE(hasWriter(file));
}

TEST_F(WriterCheckTest, ARefusedLeaseOfAServerProvesNothing) {
    EXPECT_EQ(hasWriterByLease(EAGAIN, EXT4_SUPER_MAGIC), true);
    for (const std::uint32_t server : {0x6969U, 0x517BU, 0xFF534D42U, 0xFE534D42U})
        EXPECT_EQ(hasWriterByLease(EAGAIN, server), std::nullopt);
    EXPECT_EQ(hasWriterByLease(EACCES, EXT4_SUPER_MAGIC), std::nullopt);
    EXPECT_EQ(hasWriterByLease(0, NFS_SUPER_MAGIC), false);
}

TEST_F(WriterCheckTest, AWriterInAnotherProcessCountsUntilItEnds) {
    std::array<int, 2> ready{};
    ASSERT_EQ(pipe(ready.data()), 0);
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
        const int descriptor = ::open(file.path().c_str(), O_WRONLY);
        if (descriptor < 0 || write(ready[1], "x", 1) != 1) _exit(1);
        for (;;) pause();
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_TRUE(hasWriter(file));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    EXPECT_FALSE(hasWriter(file));
    close(ready[0]);
    close(ready[1]);
}

/// Runs as a user who does not own the file, so the kernel gives no lease. Bit 0 of the result
/// tells whether a writer was found while this process had the file open for writing, bit 1 whether
/// one was found after it had closed the file.
int foundByAnotherUser(const Url& file) {
    constexpr uid_t nobody = 65534;
    if (setgid(nobody) != 0 || setuid(nobody) != 0) return -1;
    prctl(PR_SET_DUMPABLE, 1);  // readable again after the change of user
    FileDescriptor writer(::open(file.path().c_str(), O_WRONLY));
    if (!writer) return -1;
    const int during = hasWriter(file) ? 1 : 0;
    writer.reset();
    return during | (hasWriter(file) ? 2 : 0);
}

TEST_F(WriterCheckTest, SearchesTheProcessesIfTheKernelGivesNoLease) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may act for another user";
    std::filesystem::permissions(file.path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder.url().path(), std::filesystem::perms::all);
    const pid_t other = fork();
    ASSERT_GE(other, 0);
    if (other == 0) _exit(foundByAnotherUser(file));
    int status = 0;
    waitpid(other, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

TEST_F(WriterCheckTest, AWriterThatOpensTheFileDuringTheCheckDoesNotEndTheProgram) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0)
        for (;;) ::close(::open(file.path().c_str(), O_WRONLY | O_NONBLOCK));
    for (int i = 0; i < 20'000; ++i) hasWriter(file);
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    EXPECT_FALSE(hasWriter(file));
}

TEST_F(WriterCheckTest, AFileThatCannotBeExaminedHasNoWriter) {
    EXPECT_FALSE(hasWriter(folder / "nothing.mp4"));
    std::filesystem::create_symlink(file.path(), (folder / "link.mp4").path());
    const auto writer = open(O_WRONLY);
    EXPECT_FALSE(hasWriter(folder / "link.mp4"));
}

}  // namespace
}  // namespace vantle
