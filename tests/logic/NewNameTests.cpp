#include <gtest/gtest.h>

#include "panel/NewName.h"

namespace vantle {
namespace {

/// Returns the new name of "shot.png", or the refusal in parentheses; empty if it keeps its name.
std::string renamed(const std::string& typed, const std::string& fileName = "shot.png") {
    const NewName result = newName(fileName, typed);
    return result.refusal.empty() ? result.fileName : "(" + result.refusal + ")";
}

TEST(NewNameTest, TheExtensionIsNotChangeable) {
    EXPECT_EQ(changeablePart("shot.png"), "shot");
    EXPECT_EQ(changeablePart("archive.tar.gz"), "archive.tar");
    EXPECT_EQ(changeablePart("shot"), "shot");
    EXPECT_EQ(changeablePart("shot."), "shot.");
    EXPECT_EQ(changeablePart(".png"), ".png");
}

TEST(NewNameTest, KeepsTheExtension) {
    EXPECT_EQ(renamed("better"), "better.png");
    EXPECT_EQ(renamed("better", "Shot.PNG"), "better.PNG");
    EXPECT_EQ(renamed("better.jpg"), "better.jpg.png");
    EXPECT_EQ(renamed("better", "shot"), "better");
}

TEST(NewNameTest, AnEmptyNameChangesNothing) {
    EXPECT_EQ(renamed(""), "");
    EXPECT_EQ(renamed("  \t "), "");
}

TEST(NewNameTest, TheCurrentNameChangesNothing) {
    EXPECT_EQ(renamed("shot"), "");
    EXPECT_EQ(renamed(" shot "), "");
    EXPECT_EQ(renamed(" shot", " shot.png"), "");
}

TEST(NewNameTest, ANameThatCannotBeDisplayedStaysIfItIsNotEdited) {
    EXPECT_EQ(renamed("new\u240Aline", "new\nline.png"), "");
    EXPECT_EQ(renamed("new line", "new\nline.png"), "new line.png");
}

TEST(NewNameTest, DropsSpacesAroundTheName) {
    EXPECT_EQ(renamed("  two words "), "two words.png");
}

TEST(NewNameTest, KeepsLettersOfEveryWriting) {
    EXPECT_EQ(renamed("Übersicht 概要 لقطة 50% #1"), "Übersicht 概要 لقطة 50% #1.png");
}

TEST(NewNameTest, RefusesASlash) {
    EXPECT_EQ(renamed("a/b"), "(The name cannot contain “/”.)");
}

TEST(NewNameTest, RefusesToHideTheFile) {
    EXPECT_EQ(renamed(".hidden"), "(A name that begins with a full stop would hide the file.)");
    EXPECT_EQ(renamed(" .."), "(A name that begins with a full stop would hide the file.)");
}

TEST(NewNameTest, RefusesControlCharacters) {
    constexpr auto refusal = "(The name cannot contain line breaks or other control characters.)";
    for (const auto* name : {"a\nb", "a\tb", "a\x7f", "a\u0085b", "a\u2028b", "gnp\u202E"})
        EXPECT_EQ(renamed(name), refusal) << name;
}

TEST(NewNameTest, RefusesANameOfMoreThan255Bytes) {
    EXPECT_EQ(renamed(std::string(251, 'n')), std::string(251, 'n') + ".png");
    EXPECT_EQ(renamed(std::string(252, 'n')), "(The name is too long.)");
    std::string letters;
    for (int i = 0; i < 126; ++i) letters += "ü";
    EXPECT_EQ(renamed(letters), "(The name is too long.)");
}

}  // namespace
}  // namespace vantle
