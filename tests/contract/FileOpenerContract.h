#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakeFileOpener.h"

namespace vantle {

/// The fake as a desktop. A desktop returns what its opener was asked for, after so many requests.
struct RecordedOpener {
    fakes::FakeFileOpener opener;

    std::vector<Url> opened(std::size_t) { return opener.opened; }
    std::vector<Url> revealed(std::size_t) { return opener.revealed; }
    std::vector<std::string> pages(std::size_t) { return opener.pages; }
};

template <typename Desktop>
class FileOpenerContract : public testing::Test {
protected:
    const Url file = Url::file("/folder/50% of it.png");
    const Url other = Url::file("/folder/other.png");
    Desktop desktop;
};

TYPED_TEST_SUITE_P(FileOpenerContract);

TYPED_TEST_P(FileOpenerContract, OpensAFile) {
    this->desktop.opener.open(this->file);
    EXPECT_THAT(this->desktop.opened(1), testing::ElementsAre(this->file));
}

TYPED_TEST_P(FileOpenerContract, ShowsFiles) {
    this->desktop.opener.reveal({this->file, this->other});
    EXPECT_THAT(this->desktop.revealed(2), testing::ElementsAre(this->file, this->other));
}

TYPED_TEST_P(FileOpenerContract, OpensAPage) {
    this->desktop.opener.openPage("https://vantle.example/a?b=c%20d");
    EXPECT_THAT(this->desktop.pages(1), testing::ElementsAre("https://vantle.example/a?b=c%20d"));
}

REGISTER_TYPED_TEST_SUITE_P(FileOpenerContract, OpensAFile, ShowsFiles, OpensAPage);

}  // namespace vantle
