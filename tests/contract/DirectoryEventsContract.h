#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "contract/FakeDisk.h"

namespace vantle {

/// The changes that one source reported. Any thread may use it.
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
    /// Returns what was reported since the last call.
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

/// A disk (FakeDisk.h) with one folder to work in.
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
    /// Waits until the queue has handled all events reported so far.
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

    // Declared before the disk, which reports nothing after its end.
    ChangeRecord record;
    ChangeRecord other;
    Disk disk;
};

TYPED_TEST_SUITE_P(DirectoryEventsContract);

TYPED_TEST_P(DirectoryEventsContract, CreatingDeletingAndRenamingFilesChangesTheContents) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    const std::vector<std::function<void()>> changes{
        [this] { this->disk.save(this->file("a.png")); },
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

TYPED_TEST_P(DirectoryEventsContract, MovingFilesInAndOutChangesTheContents) {
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

TYPED_TEST_P(DirectoryEventsContract, ReportsNothingBeforeResumeAndMissesNothingAfterIt) {
    const auto source = this->open(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
    source->resume();
    EXPECT_TRUE(this->sees(this->record));
}

TYPED_TEST_P(DirectoryEventsContract, ReportsNothingAfterCancel) {
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    source->cancel();
    source->cancel();
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST_P(DirectoryEventsContract, ReportsNothingAfterTheSourceIsGone) {
    auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    source.reset();
    this->disk.save(this->file("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST_P(DirectoryEventsContract, SourcesAreIndependent) {
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

TYPED_TEST_P(DirectoryEventsContract, ChangesInSubfoldersAreNotReported) {
    const Url inner = this->file("inner");
    (void)this->disk.files.createDirectory(inner);
    const auto source = this->watch(this->disk.folder, this->record);
    ASSERT_NE(source, nullptr);
    this->disk.save(inner.appending("a.png"));
    this->letPass();
    EXPECT_EQ(this->record.calls(), 0);
}

TYPED_TEST_P(DirectoryEventsContract, ADeletedFolderIsLostOnceEvenIfItComesBack) {
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

TYPED_TEST_P(DirectoryEventsContract, AFolderThatIsMovedAwayIsLostOnce) {
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

TYPED_TEST_P(DirectoryEventsContract, OnlyAnExistingFolderCanBeOpened) {
    this->disk.save(this->file("a.png"));
    EXPECT_EQ(this->failureOfOpening(this->file("nothing")), ENOENT);
    EXPECT_EQ(this->failureOfOpening(this->file("a.png")), ENOTDIR);
}

REGISTER_TYPED_TEST_SUITE_P(DirectoryEventsContract,
                            CreatingDeletingAndRenamingFilesChangesTheContents,
                            MovingFilesInAndOutChangesTheContents,
                            ReportsNothingBeforeResumeAndMissesNothingAfterIt,
                            ReportsNothingAfterCancel, ReportsNothingAfterTheSourceIsGone,
                            SourcesAreIndependent, ChangesInSubfoldersAreNotReported,
                            ADeletedFolderIsLostOnceEvenIfItComesBack,
                            AFolderThatIsMovedAwayIsLostOnce, OnlyAnExistingFolderCanBeOpened);

}  // namespace vantle
