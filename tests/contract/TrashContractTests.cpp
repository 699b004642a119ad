#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "Waiting.h"
#include "fakes/FakeTrash.h"
#include "fakes/VirtualTime.h"
#include "platform/linux/FreedesktopTrash.h"

namespace vantle {
namespace {

using testing::HasSubstr;
using testing::Not;

struct MemoryTrash {
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};
    fakes::ManualScheduler scheduler{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakeTrash trash{scheduler, files};
    const Url folder = Url::file("/folder");

    MemoryTrash() { (void)files.createDirectory(folder); }
    void save(const Url& file) { files.write(file, 4, fakes::VirtualClock::epoch); }
    bool exists(const Url& file) { return files.existence(file) != FileManager::Existence::none; }
    std::size_t trashed() { return trash.trashed.size(); }
    void runUntil(const std::function<bool()>& condition) {
        while (!condition()) time.advance(Seconds(0.01));
    }
};

/// Only what other threads ask of a run loop.
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
    Environment environment = [this](const std::string& name) -> std::optional<std::string> {
        if (name == "XDG_DATA_HOME") return (place / "data").path();
        return std::nullopt;
    };
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

template <typename Kind>
class TrashContract : public testing::Test {
protected:
    Outcome recycle(const std::vector<Url>& urls) {
        bool isDone = false;
        Outcome outcome;
        kind.trash.recycle(urls, [&](const Outcome& told) {
            isDone = true;
            outcome = told;
        });
        EXPECT_FALSE(isDone);
        kind.runUntil([&] { return isDone; });
        return outcome;
    }
    Url file(const std::string& name) { return kind.folder.appending(name); }

    Kind kind;
};

using Kinds = testing::Types<MemoryTrash, DiskTrash>;
TYPED_TEST_SUITE(TrashContract, Kinds);

TYPED_TEST(TrashContract, MovesAFile) {
    this->kind.save(this->file("shot.png"));
    EXPECT_EQ(this->recycle({this->file("shot.png")}), std::nullopt);
    EXPECT_FALSE(this->kind.exists(this->file("shot.png")));
    EXPECT_EQ(this->kind.trashed(), 1u);
}

TYPED_TEST(TrashContract, MovesSeveralFilesByOneRequest) {
    for (const auto* name : {"1.png", "2.png", "3.png"}) this->kind.save(this->file(name));
    EXPECT_EQ(this->recycle({this->file("1.png"), this->file("2.png"), this->file("3.png")}),
              std::nullopt);
    EXPECT_EQ(this->kind.trashed(), 3u);
}

TYPED_TEST(TrashContract, AFileThatHasGoneIsAFailureThatNamesIt) {
    const auto failure = this->recycle({this->file("gone.png")});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOENT);
    EXPECT_EQ(failure->message, this->file("gone.png").path() + ": No such file or directory");
}

TYPED_TEST(TrashContract, AFailureDoesNotKeepTheOthersBack) {
    this->kind.save(this->file("here.png"));
    const auto failure =
        this->recycle({this->file("1.png"), this->file("here.png"), this->file("2.png")});
    ASSERT_TRUE(failure.has_value());
    EXPECT_THAT(failure->message, HasSubstr("1.png: "));
    EXPECT_THAT(failure->message, HasSubstr("2.png: "));
    EXPECT_THAT(failure->message, Not(HasSubstr("here.png")));
    EXPECT_EQ(this->kind.trashed(), 1u);
}

TYPED_TEST(TrashContract, TwoFilesOfOneNameAreBothKept) {
    for (int round = 0; round < 2; ++round) {
        this->kind.save(this->file("shot.png"));
        EXPECT_EQ(this->recycle({this->file("shot.png")}), std::nullopt);
    }
    EXPECT_EQ(this->kind.trashed(), 2u);
}

TEST(FreedesktopTrashTest, EndsWithoutAnswerWhenNobodyWaitsAnyMore) {
    DiskTrash disk;
    disk.save(disk.folder.appending("shot.png"));
    {
        FreedesktopTrash trash(disk.scheduler, disk.environment);
        trash.recycle({disk.folder.appending("shot.png")}, [](const Outcome&) { FAIL(); });
    }
    // Moved or not when it ended, it is whole.
    EXPECT_NE(disk.exists(disk.folder.appending("shot.png")),
              disk.exists(disk.place / "data/Trash/files/shot.png"));
}

}  // namespace
}  // namespace vantle
