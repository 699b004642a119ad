#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "contract/PostedWork.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "contract/TrashContract.h"
#include "contract/Waiting.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/FreedesktopTrash.h"

namespace vantle {
namespace {

struct DiskTrash {
    TemporaryFolder place;
    PostedWork scheduler;
    const Environment environment =
        fakes::FakeEnvironment{{"XDG_DATA_HOME", (place / "data").path()}};
    FreedesktopTrash trash{scheduler, environment};
    const Url folder = place / "folder";

    DiskTrash() { std::filesystem::create_directory(folder.path()); }
    void save(const Url& file) { writeText(file, "text"); }
    bool exists(const Url& file) { return std::filesystem::exists(file.path()); }
    std::size_t trashed() {
        const std::filesystem::directory_iterator files((place / "data/Trash/files").path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
    void runUntil(const std::function<bool()>& condition) {
        EXPECT_TRUE(waitUntil([&] {
            scheduler.run();
            return condition();
        }));
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(FreedesktopTrash, TrashContract, DiskTrash);

TEST(FreedesktopTrashTest, EndsWithoutAnAnswerAfterTheCallerHasGone) {
    DiskTrash disk;
    disk.save(disk.folder.appending("shot.png"));
    {
        FreedesktopTrash trash(disk.scheduler, disk.environment);
        trash.recycle({disk.folder.appending("shot.png")}, [](const auto&...) { FAIL(); });
    }
    // The file may have been moved or not, but it exists exactly once.
    EXPECT_NE(disk.exists(disk.folder.appending("shot.png")),
              disk.exists(disk.place / "data/Trash/files/shot.png"));
}

}  // namespace
}  // namespace vantle
