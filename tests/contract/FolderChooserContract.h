#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "fakes/FakeFolderChooser.h"
#include "fakes/VirtualTime.h"

namespace vantle {

inline FolderRequest someFolderRequest() {
    return {Url::file("/home/user/My Shots"), "Use This Folder", "Choose it."};
}

/// The fake as a desk. A desk tells whether the chooser is open, answers in the user's place, and
/// runs until a condition becomes true.
struct RecordedChooser {
    bool isOpen() const { return chooser.isOpen(); }
    void answer(const std::optional<Url>& folder) { chooser.close(folder); }
    bool runUntil(const std::function<bool()>& condition) {
        time.settle();
        return condition();
    }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::FakeFolderChooser chooser{scheduler};
};

/// Records the chosen folder, and how often the chooser answered.
struct FolderAnswer {
    FolderChooser::Chosen taker() {
        return [this](const std::optional<Url>& chosen) {
            ++count;
            folder = chosen;
        };
    }
    int count = 0;
    std::optional<Url> folder;
};

template <typename Desk>
class FolderChooserContract : public testing::Test {
protected:
    void open(FolderAnswer& answer) {
        desk.chooser.choose(request, answer.taker());
        EXPECT_EQ(answer.count, 0);
        ASSERT_TRUE(desk.runUntil([&] { return desk.isOpen(); }));
    }

    const FolderRequest request = someFolderRequest();
    Desk desk;
};

TYPED_TEST_SUITE_P(FolderChooserContract);

TYPED_TEST_P(FolderChooserContract, ReturnsTheChosenFolder) {
    FolderAnswer answer;
    this->open(answer);
    const Url folder = Url::file("/data/Größe 1\n%20");
    this->desk.answer(folder);
    ASSERT_TRUE(this->desk.runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, folder);
}

TYPED_TEST_P(FolderChooserContract, ReturnsNothingIfItIsCancelled) {
    FolderAnswer answer;
    this->open(answer);
    this->desk.answer(std::nullopt);
    ASSERT_TRUE(this->desk.runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, std::nullopt);
}

TYPED_TEST_P(FolderChooserContract, ReturnsNothingWhileAnotherChooserIsOpen) {
    FolderAnswer first;
    FolderAnswer second;
    this->open(first);
    this->desk.chooser.choose(this->request, second.taker());
    EXPECT_EQ(second.count, 0);
    ASSERT_TRUE(this->desk.runUntil([&] { return second.count > 0; }));
    EXPECT_EQ(second.folder, std::nullopt);
    EXPECT_EQ(first.count, 0);
    this->desk.answer(Url::file("/data"));
    ASSERT_TRUE(this->desk.runUntil([&] { return first.count > 0; }));
    EXPECT_EQ(first.folder, Url::file("/data"));
}

REGISTER_TYPED_TEST_SUITE_P(FolderChooserContract, ReturnsTheChosenFolder,
                            ReturnsNothingIfItIsCancelled, ReturnsNothingWhileAnotherChooserIsOpen);

}  // namespace vantle
