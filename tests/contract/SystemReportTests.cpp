#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "filetypes/FileTypes.h"
#include "platform/linux/SystemReport.h"

namespace vantle {
namespace {

using testing::HasSubstr;

class SystemReportTest : public testing::Test {
protected:
    std::string line(const std::string& name) const {
        const auto lines = systemReport(environment, share.url());
        const auto found = std::ranges::find(lines, name, &ReportLine::name);
        return found == lines.end() ? "no such line" : found->value;
    }

    fakes::FakeEnvironment environment;
    TemporaryFolder share;
};

TEST_F(SystemReportTest, ReportsHowTheProgramWasInstalled) {
    EXPECT_EQ(line("installed as"), "unknown (neither a package nor an unpacked release)");
    writeText(share / "release", "version=1.0\nplatform=linux-x86_64-deb\ninstallation=package\n");
    EXPECT_EQ(line("installed as"), "package");
}

TEST_F(SystemReportTest, ReportsTheNameOfTheSystem) {
    EXPECT_THAT(line("system"), HasSubstr(", Linux "));
    EXPECT_THAT(line("system"), HasSubstr(", glibc 2."));
}

TEST_F(SystemReportTest, TheSessionIsTakenFromTheEnvironment) {
    EXPECT_EQ(line("desktop"), "unknown");
    environment = {{"XDG_CURRENT_DESKTOP", "KDE"}, {"XDG_SESSION_TYPE", "x11"}};
    EXPECT_EQ(line("desktop"), "KDE");
    EXPECT_EQ(line("session"), "x11");
}

TEST_F(SystemReportTest, ReportsDecodersThatDoNotStart) {
    const auto lines = decoderReport("/nowhere/vantle-decoder");
    ASSERT_EQ(lines.size(), formatNames.size());
    EXPECT_EQ(lines.front(),
              (ReportLine{"decoder not available", "png: No such file or directory"}));
}

}  // namespace
}  // namespace vantle
