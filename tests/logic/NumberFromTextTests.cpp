#include <gtest/gtest.h>

#include <limits>

#include "support/NumberFromText.h"

namespace vantle {
namespace {

TEST(NumberFromTextTest, ReadsTheNotationOfPrograms) {
    EXPECT_EQ(numberFromText("0"), 0);
    EXPECT_EQ(numberFromText("25"), 25);
    EXPECT_EQ(numberFromText("-0.5"), -0.5);
    EXPECT_EQ(numberFromText(".5"), 0.5);
    EXPECT_EQ(numberFromText("5."), 5);
    EXPECT_EQ(numberFromText("1.5e3"), 1500);
    EXPECT_EQ(numberFromText("1E-2"), 0.01);
    EXPECT_EQ(numberFromText("0.1"), 0.1);
}

TEST(NumberFromTextTest, TheWholeTextMustBeANumber) {
    for (const auto* text :
         {"",   " ",   "-",     ".",   "-.",   "e5", "1e",  "1e+", "+1",       " 1",
          "1 ", "1,5", "1.5.2", "--1", "0x10", "1f", "inf", "nan", "infinity", "ten"})
        EXPECT_EQ(numberFromText(text), std::nullopt) << text;
}

TEST(NumberFromTextTest, ATooLargeNumberIsRefused) {
    EXPECT_EQ(numberFromText("1e999"), std::nullopt);
    EXPECT_EQ(numberFromText("-1e999"), std::nullopt);
    EXPECT_EQ(numberFromText("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(numberFromText("5e-324"), std::numeric_limits<double>::denorm_min());
}

}  // namespace
}  // namespace vantle
