#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "contract/TrashContract.h"
#include "contract/Waiting.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/FreedesktopTrash.h"

namespace vantle {
namespace {

/// A run loop that only runs work from other threads.
class PostedWork final : public Scheduler {
public:
    Instant now() const override { return {}; }
    void async(Work work) override {
        const std::lock_guard lock(mutex_);
        work_.push_back(std::move(work));
    }
    TimerPointer after(Seconds, Work) override { return nullptr; }
    TimerPointer every(Seconds, Work) override { return nullptr; }

    void run() {
        std::vector<Work> ready;
        {
            const std::lock_guard lock(mutex_);
            ready.swap(work_);
        }
        for (const auto& work : ready) work();
    }

private:
    std::mutex mutex_;
    std::vector<Work> work_;
};

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
        trash.recycle({disk.folder.appending("shot.png")}, [](const Outcome&) { FAIL(); });
    }
    // The file may have been moved or not, but it exists exactly once.
    EXPECT_NE(disk.exists(disk.folder.appending("shot.png")),
              disk.exists(disk.place / "data/Trash/files/shot.png"));
}

}  // namespace
}  // namespace vantle
