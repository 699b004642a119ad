#include <gtest/gtest.h>

#include <string_view>

#include "support/Utf8.h"

namespace vantle {
namespace {

TEST(Utf8, TakesOneCharacterAfterAnother) {
    std::string_view rest = "aé字\U0001F600";
    for (const char32_t character : {U'a', U'é', U'字', U'\U0001F600'})
        EXPECT_EQ(takeCharacter(rest), character);
    EXPECT_TRUE(rest.empty());
}

TEST(Utf8, TakesTheSmallestAndTheLargestCharacterOfEachLength) {
    std::string_view rest = "\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
    for (const char32_t character : {U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'\uD7FF', U'\uE000',
                                     U'\uFFFF', U'\U00010000', U'\U0010FFFF'})
        EXPECT_EQ(takeCharacter(rest), character);
    EXPECT_TRUE(rest.empty());
}

TEST(Utf8, TakesOneByteOfWhatIsInvalid) {
    for (const std::string_view text :
         {"\x80x", "\xFFx", "\xC3x", "\xE2\x82x", "\xF0\x9F\x98x", "\xC3", "\xE2\x82",
          // Longer than needed, a surrogate, beyond the last character.
          "\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
          "\xF8\x88\x80\x80\x80"}) {
        std::string_view rest = text;
        EXPECT_EQ(takeCharacter(rest), std::nullopt) << text;
        EXPECT_EQ(rest.size(), text.size() - 1);
    }
}

}  // namespace
}  // namespace vantle
