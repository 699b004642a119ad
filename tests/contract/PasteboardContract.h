#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakeFileSystem.h"
#include "fakes/FakePasteboard.h"
#include "fakes/VirtualTime.h"

namespace vantle {

struct MemoryPasteboard {
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakePasteboard pasteboard{files};
    const Url folder = Url::file("/folder");

    Url saveImage(const std::string& name) {
        files.write(folder.appending(name), 1, fakes::VirtualClock::epoch);
        return folder.appending(name);
    }
    /// Returns "image" for a picture, the path of a file, and a text as it is.
    std::vector<std::string> contents() {
        std::vector<std::string> contents;
        for (const auto& one : pasteboard.contents())
            contents.push_back(one.starts_with("image") ? "image" : one.substr(5));
        return contents;
    }
};

template <typename Kind>
class PasteboardContract : public testing::Test {
protected:
    Kind kind;
    Pasteboard& pasteboard = kind.pasteboard;
};

TYPED_TEST_SUITE_P(PasteboardContract);

TYPED_TEST_P(PasteboardContract, OffersAPictureBeforeItsFile) {
    const Url file = this->kind.saveImage("shot.png");
    const auto image = this->pasteboard.loadImage(file);
    ASSERT_TRUE(image);
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({image, file});
    EXPECT_THAT(this->kind.contents(), testing::ElementsAre("image", file.path()));
}

TYPED_TEST_P(PasteboardContract, OffersFilesInOrder) {
    const Url a = this->kind.saveImage("b.png");
    const Url b = this->kind.saveImage("a.png");
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({a, b});
    EXPECT_THAT(this->kind.contents(), testing::ElementsAre(a.path(), b.path()));
}

TYPED_TEST_P(PasteboardContract, OffersATextWithItsLines) {
    const std::string text = "  First line\n\nSchön, 日本 \xF0\x9F\x98\x80\n";
    this->pasteboard.writeObjects({this->kind.saveImage("shot.png")});
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({text});
    EXPECT_THAT(this->kind.contents(), testing::ElementsAre(text));
}

TYPED_TEST_P(PasteboardContract, IsEmptyAfterItIsCleared) {
    this->pasteboard.writeObjects({this->kind.saveImage("shot.png")});
    this->pasteboard.clearContents();
    EXPECT_THAT(this->kind.contents(), testing::IsEmpty());
}

TYPED_TEST_P(PasteboardContract, ALaterContentReplacesTheEarlier) {
    this->pasteboard.writeObjects({this->kind.saveImage("a.png")});
    const Url file = this->kind.saveImage("b.png");
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({file});
    EXPECT_THAT(this->kind.contents(), testing::ElementsAre(file.path()));
}

TYPED_TEST_P(PasteboardContract, AMissingFileHasNoPicture) {
    EXPECT_EQ(this->pasteboard.loadImage(Url::file("/folder/gone.png")), nullptr);
}

REGISTER_TYPED_TEST_SUITE_P(PasteboardContract, OffersAPictureBeforeItsFile, OffersFilesInOrder,
                            OffersATextWithItsLines, IsEmptyAfterItIsCleared,
                            ALaterContentReplacesTheEarlier, AMissingFileHasNoPicture);

}  // namespace vantle
