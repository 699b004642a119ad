#include <gtest/gtest.h>

#include <string>

#include "platform/UpdateReport.h"
#include "support/VersionOrder.h"

namespace vantle {
namespace {

const UpdateItem item{.version = "12",
                      .displayVersion = "1.2\tbeta",
                      .notes = "<p>One\nTwo \\n</p>",
                      .page = "",
                      .address = "https://vantle.example/a",
                      .length = 18'446'744'073'709'551'615U,
                      .signature = "a+/=",
                      .installation = UpdateItem::Installation::package};

class UpdateReportTest : public testing::TestWithParam<UpdateReport> {};

TEST_P(UpdateReportTest, IsReadAsItWasWritten) {
    const std::string line = formatReport(GetParam());
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(parseReport(line), GetParam());
}

TEST_P(UpdateReportTest, IsInvalidWithMoreOrFewerFields) {
    const std::string line = formatReport(GetParam());
    EXPECT_EQ(parseReport(line + "\tmore"), std::nullopt);
    const auto at = line.rfind('\t');
    if (at != std::string::npos) {
        EXPECT_EQ(parseReport(line.substr(0, at)), std::nullopt);
    }
}

INSTANTIATE_TEST_SUITE_P(Reports, UpdateReportTest,
                         testing::Values(report::FeedLoaded{3, -5}, report::UpdateFound{item},
                                         report::NothingFound{""}, report::Progress{7},
                                         report::Installing{}, report::Ready{},
                                         report::Failed{"a\\b", "https://vantle.example"},
                                         report::RolledBack{"12", "It crashed."}));

TEST(UpdateReportLineTest, AnInvalidLineIsNoReport) {
    for (const auto* line : {"", "nonsense", "progress\tmany", "progress\t-1", "progress\t1x",
                             "nothing\tbad \\escape", "nothing\t\\", "\t\t"})
        EXPECT_EQ(parseReport(line), std::nullopt) << line;
}

struct Versions {
    const char* older;
    const char* newer;
};

class VersionOrderTest : public testing::TestWithParam<Versions> {};

TEST_P(VersionOrderTest, FindsTheNewerVersion) {
    const auto& [older, newer] = GetParam();
    EXPECT_TRUE(compareVersions(older, newer) < 0) << older << " < " << newer;
    EXPECT_TRUE(compareVersions(newer, older) > 0) << newer << " > " << older;
    EXPECT_TRUE(compareVersions(newer, newer) == 0);
}

INSTANTIATE_TEST_SUITE_P(Pairs, VersionOrderTest,
                         testing::Values(Versions{"1.0", "1.0.1"}, Versions{"1.9", "1.10"},
                                         Versions{"1.0b2", "1.0b10"}, Versions{"1.0rc1", "1.0"},
                                         Versions{"1.0a", "1.0b"}, Versions{"", "0.1"},
                                         Versions{"1.0-beta.1", "1.0"}, Versions{"1.0b", "1.0.1"},
                                         Versions{"99999999999999999998", "99999999999999999999"},
                                         Versions{"1.2", "2"}));

TEST(EqualVersionsTest, AreEqualInAnyNotation) {
    EXPECT_TRUE(compareVersions("1", "1.0.0") == 0);
    EXPECT_TRUE(compareVersions("1.01", "1.1") == 0);
    EXPECT_TRUE(compareVersions("1-2", "1.2") == 0);
}

}  // namespace
}  // namespace vantle
