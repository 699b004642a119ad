#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

#include <QCoreApplication>

#include "TemporaryFolder.h"
#include "Waiting.h"
#include "platform/freedesktop/MountEvents.h"

namespace vantle {
namespace {

/// Enters a private mount namespace. Returns false if that is not allowed.
bool enterMountsOfItsOwn() {
    return unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

TEST(MountEventsTest, ReportsMountsAndUnmounts) {
    if (!enterMountsOfItsOwn()) GTEST_SKIP() << "only root may mount";
    const TemporaryFolder folder;
    int changes = 0;
    const MountEvents events([&] { ++changes; });
    const auto isTold = [&](int times) {
        return waitUntil([&] {
            QCoreApplication::processEvents();
            return changes >= times;
        });
    };
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0);
    ASSERT_EQ(mount("none", folder.url().path().c_str(), "tmpfs", 0, nullptr), 0);
    EXPECT_TRUE(isTold(1));
    const int before = changes;
    ASSERT_EQ(umount(folder.url().path().c_str()), 0);
    EXPECT_TRUE(isTold(before + 1));
}

}  // namespace
}  // namespace vantle
