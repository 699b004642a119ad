#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <system_error>
#include <vector>

#include "fakes/FakeTrash.h"
#include "fakes/VirtualTime.h"

namespace vantle {

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

template <typename Kind>
class TrashContract : public testing::Test {
protected:
    Outcome recycle(const std::vector<Url>& urls) {
        bool isDone = false;
        Outcome outcome;
        kind.trash.recycle(urls, [&](const Outcome& told, const std::vector<Trash::Moved>& files) {
            isDone = true;
            outcome = told;
            moved = files;
        });
        EXPECT_FALSE(isDone);
        kind.runUntil([&] { return isDone; });
        return outcome;
    }
    /// Puts back what the last call of recycle() moved.
    Outcome putBack() {
        bool isDone = false;
        Outcome outcome;
        kind.trash.putBack(moved, [&](const Outcome& told, const std::vector<Trash::Moved>& files) {
            isDone = true;
            outcome = told;
            back = files;
        });
        EXPECT_FALSE(isDone);
        kind.runUntil([&] { return isDone; });
        return outcome;
    }
    Url file(const std::string& name) { return kind.folder.appending(name); }

    Kind kind;
    std::vector<Trash::Moved> moved;
    std::vector<Trash::Moved> back;
};

TYPED_TEST_SUITE_P(TrashContract);

TYPED_TEST_P(TrashContract, MovesAFile) {
    this->kind.save(this->file("shot.png"));
    EXPECT_EQ(this->recycle({this->file("shot.png")}), std::nullopt);
    EXPECT_FALSE(this->kind.exists(this->file("shot.png")));
    EXPECT_EQ(this->kind.trashed(), 1u);
}

TYPED_TEST_P(TrashContract, MovesSeveralFilesWithOneRequest) {
    for (const auto* name : {"1.png", "2.png", "3.png"}) this->kind.save(this->file(name));
    EXPECT_EQ(this->recycle({this->file("1.png"), this->file("2.png"), this->file("3.png")}),
              std::nullopt);
    EXPECT_EQ(this->kind.trashed(), 3u);
}

TYPED_TEST_P(TrashContract, AFileThatHasGoneIsAFailureThatNamesIt) {
    const auto failure = this->recycle({this->file("gone.png")});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(std::errc(failure->code), std::errc::no_such_file_or_directory);
    EXPECT_THAT(failure->message, testing::StartsWith(this->file("gone.png").path() + ": "));
}

TYPED_TEST_P(TrashContract, AFailureDoesNotPreventTheOtherMoves) {
    this->kind.save(this->file("here.png"));
    const auto failure =
        this->recycle({this->file("1.png"), this->file("here.png"), this->file("2.png")});
    ASSERT_TRUE(failure.has_value());
    EXPECT_THAT(failure->message, testing::HasSubstr("1.png: "));
    EXPECT_THAT(failure->message, testing::HasSubstr("2.png: "));
    EXPECT_THAT(failure->message, testing::Not(testing::HasSubstr("here.png")));
    EXPECT_EQ(this->kind.trashed(), 1u);
}

TYPED_TEST_P(TrashContract, KeepsTwoFilesOfTheSameName) {
    for (int round = 0; round < 2; ++round) {
        this->kind.save(this->file("shot.png"));
        EXPECT_EQ(this->recycle({this->file("shot.png")}), std::nullopt);
    }
    EXPECT_EQ(this->kind.trashed(), 2u);
}

TYPED_TEST_P(TrashContract, TellsWhichFilesWereMoved) {
    this->kind.save(this->file("here.png"));
    ASSERT_NE(this->recycle({this->file("gone.png"), this->file("here.png")}), std::nullopt);
    ASSERT_EQ(this->moved.size(), 1u);
    EXPECT_EQ(this->moved[0].original, this->file("here.png"));
}

TYPED_TEST_P(TrashContract, PutsFilesBackAndHoldsThemNoLonger) {
    for (const auto* name : {"1.png", "2.png"}) this->kind.save(this->file(name));
    ASSERT_EQ(this->recycle({this->file("1.png"), this->file("2.png")}), std::nullopt);
    EXPECT_EQ(this->putBack(), std::nullopt);
    EXPECT_TRUE(this->kind.exists(this->file("1.png")));
    EXPECT_TRUE(this->kind.exists(this->file("2.png")));
    EXPECT_EQ(this->kind.trashed(), 0u);
}

TYPED_TEST_P(TrashContract, AFileIsNeverPutBackOverAnother) {
    for (const auto* name : {"1.png", "2.png"}) this->kind.save(this->file(name));
    ASSERT_EQ(this->recycle({this->file("1.png"), this->file("2.png")}), std::nullopt);
    this->kind.save(this->file("1.png"));
    const auto failure = this->putBack();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(std::errc(failure->code), std::errc::file_exists);
    EXPECT_THAT(failure->message, testing::StartsWith(this->file("1.png").path() + ": "));
    EXPECT_TRUE(this->kind.exists(this->file("2.png")));
    ASSERT_EQ(this->back.size(), 1u);
    EXPECT_EQ(this->back[0].original, this->file("2.png"));
    EXPECT_EQ(this->kind.trashed(), 1u);
}

TYPED_TEST_P(TrashContract, AFileThatLeftTheTrashCannotBePutBack) {
    this->kind.save(this->file("shot.png"));
    ASSERT_EQ(this->recycle({this->file("shot.png")}), std::nullopt);
    ASSERT_EQ(this->putBack(), std::nullopt);
    const auto failure = this->putBack();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(std::errc(failure->code), std::errc::no_such_file_or_directory);
}

REGISTER_TYPED_TEST_SUITE_P(TrashContract, MovesAFile, MovesSeveralFilesWithOneRequest,
                            AFileThatHasGoneIsAFailureThatNamesIt,
                            AFailureDoesNotPreventTheOtherMoves, KeepsTwoFilesOfTheSameName,
                            TellsWhichFilesWereMoved, PutsFilesBackAndHoldsThemNoLonger,
                            AFileIsNeverPutBackOverAnother, AFileThatLeftTheTrashCannotBePutBack);

}  // namespace vantle
