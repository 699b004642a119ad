#include <gtest/gtest.h>

#include <string>

#include "platform/linux/KeyFile.h"

namespace vantle {
namespace {

/// Returns the text after a key was set.
std::string withSet(std::string_view before, std::string_view group, std::string_view key,
                    std::string_view value) {
    KeyFile file(before);
    file.set(group, key, value);
    return file.text();
}

TEST(KeyFileTest, ReadsGroupsAndKeys) {
    const KeyFile file("first=0\n[A]\nkey = 1 \n[B]\nkey=2\n[A]\nother=a=b\n");
    EXPECT_EQ(file.value("", "first"), "0");
    EXPECT_EQ(file.value("A", "key"), "1");
    EXPECT_EQ(file.value("B", "key"), "2");
    EXPECT_EQ(file.value("A", "other"), "a=b");
    EXPECT_EQ(file.value("A", "first"), std::nullopt);
    EXPECT_EQ(file.value("", "key"), std::nullopt);
    EXPECT_TRUE(file.hasGroup("B"));
    EXPECT_FALSE(file.hasGroup("C"));
}

TEST(KeyFileTest, TheLastOfTwoKeysCountsAndIsSet) {
    EXPECT_EQ(KeyFile("[A]\nk=1\nk=2\n").value("A", "k"), "2");
    EXPECT_EQ(withSet("[A]\nk=1\nk=2\n", "A", "k", "3"), "[A]\nk=1\nk=3\n");
}

TEST(KeyFileTest, FlagsAreNotPartOfTheNameAndStay) {
    EXPECT_EQ(KeyFile("[A]\nk[$e]=$HOME\n").value("A", "k"), "$HOME");
    EXPECT_EQ(withSet("[A]\nk[$e]=$HOME\n", "A", "k", "x"), "[A]\nk[$e]=x\n");
    EXPECT_EQ(KeyFile("[A]\nk[de]=x\n").value("A", "k"), std::nullopt);
}

TEST(KeyFileTest, ANewKeyIsAddedAtTheEndOfItsGroup) {
    EXPECT_EQ(withSet("[A]\na=1\n\n[B]\nb=2\n", "A", "k", "v"), "[A]\na=1\nk=v\n\n[B]\nb=2\n");
    EXPECT_EQ(withSet("[A]\n\n[B]\nb=2\n", "A", "k", "v"), "[A]\nk=v\n\n[B]\nb=2\n");
    EXPECT_EQ(withSet("a=1\n[B]\n", "", "k", "v"), "a=1\nk=v\n[B]\n");
    EXPECT_EQ(withSet("[B]\nb=2\n", "", "k", "v"), "k=v\n[B]\nb=2\n");
}

TEST(KeyFileTest, ANewGroupIsAddedAtTheEndOfTheFile) {
    EXPECT_EQ(withSet("", "A", "k", "v"), "[A]\nk=v\n");
    EXPECT_EQ(withSet("[B]\nb=2\n", "A", "k", "v"), "[B]\nb=2\n\n[A]\nk=v\n");
    EXPECT_EQ(withSet("[B]\nb=2", "A", "k", "v"), "[B]\nb=2\n\n[A]\nk=v\n");
}

TEST(KeyFileTest, EveryOtherByteStays) {
    const std::string odd =
        "\xef\xbb\xbf# \xff comment\r\n\r\n [A] \r\n no entry\r\nk=1\r\n[broken\r\n\t a = "
        "b\r\n;end";
    EXPECT_EQ(KeyFile(odd).text(), odd);
    std::string expected = odd;
    expected.replace(expected.find("k=1"), 3, "k=2");
    EXPECT_EQ(withSet(odd, "A", "k", "2"), expected);
    EXPECT_EQ(withSet(odd, "A", "new", "1"), odd + "\r\nnew=1\r\n");
}

TEST(KeyFileTest, AKeyIsRemovedWhereverItIs) {
    KeyFile file("[A]\nk=1\na=2\n[B]\nk=3\n[A]\nk[$e]=4");
    file.remove("A", "k");
    EXPECT_EQ(file.text(), "[A]\na=2\n[B]\nk=3\n[A]\n");
    file.remove("A", "missing");
    EXPECT_EQ(file.text(), "[A]\na=2\n[B]\nk=3\n[A]\n");
}

TEST(KeyFileTest, ReportsInvalidLines) {
    EXPECT_TRUE(KeyFile("# a\n; b\n\n[A]\nk=\n").isWellFormed());
    for (const auto* text : {"[A\nk=1", "no value", "=1"})
        EXPECT_FALSE(KeyFile(text).isWellFormed()) << text;
}

}  // namespace
}  // namespace vantle
