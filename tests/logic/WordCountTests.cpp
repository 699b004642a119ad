#include <gtest/gtest.h>

#include "support/WordCount.h"

namespace vantle {
namespace {

TEST(WordCount, WordsAreSeparatedByWhiteSpace) {
    EXPECT_EQ(countOfWords(""), 0U);
    EXPECT_EQ(countOfWords(" \n\t "), 0U);
    EXPECT_EQ(countOfWords("word"), 1U);
    EXPECT_EQ(countOfWords("  two\n\nwords "), 2U);
    EXPECT_EQ(countOfWords("no\u00A0break\u3000wide\u2028line"), 4U);
}

TEST(WordCount, SignsAreNoWordsAndDoNotSplitOne) {
    EXPECT_EQ(countOfWords("— 3 | … “”"), 1U);
    EXPECT_EQ(countOfWords("don't Version-4.2.1, naïve «Größe» a@b.org"), 5U);
    EXPECT_EQ(countOfWords("→ • € © 、。！"), 0U);
}

TEST(WordCount, OtherScriptsWithSpacesCountWordsToo) {
    EXPECT_EQ(countOfWords("Привет, мир"), 2U);
    EXPECT_EQ(countOfWords("안녕하세요 여러분"), 2U);
    EXPECT_EQ(countOfWords("مرحبا بالعالم"), 2U);
}

TEST(WordCount, EachCharacterOfAScriptWithoutSpacesIsAWord) {
    EXPECT_EQ(countOfWords("日本語"), 3U);
    EXPECT_EQ(countOfWords("スクリーン・ショット。"), 9U);
    EXPECT_EQ(countOfWords("新しいPDF文書"), 6U);
    EXPECT_EQ(countOfWords("人々"), 2U);
}

TEST(WordCount, InvalidBytesAreSigns) {
    EXPECT_EQ(countOfWords("\xFF \x80\x80"), 0U);
    EXPECT_EQ(countOfWords("a\xFFz"), 1U);
}

}  // namespace
}  // namespace vantle
