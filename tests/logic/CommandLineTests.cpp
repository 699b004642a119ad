#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "app/CommandLine.h"
#include "support/Gradient.h"
#include "support/Version.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Kind = CommandLine::Kind;

CommandLine parse(const std::vector<std::string>& arguments) {
    return parseCommandLine(arguments, Url::file("/here"));
}

TEST(CommandLineTest, WithoutArgumentsTheProgramStarts) {
    const auto line = parse({});
    EXPECT_EQ(line.kind, Kind::start);
    EXPECT_FALSE(line.request);
}

/// Returns the number of letters in UTF-8 text.
long lettersIn(const std::string& text) {
    return std::ranges::count_if(text, [](char byte) { return (byte & 0xc0) != 0x80; });
}

TEST(CommandLineTest, TheDescriptionsInTheHelpStandInOneColumn) {
    std::istringstream help(helpText());
    int options = 0;
    for (std::string line; std::getline(help, line);) {
        const auto gap = line.rfind("  ");
        if (!line.starts_with("  ") || gap < 4 || gap == std::string::npos) continue;
        EXPECT_EQ(lettersIn(line.substr(0, gap + 2)), 18) << line;
        ++options;
    }
    EXPECT_GT(options, 8);
    EXPECT_THAT(helpText(), HasSubstr("  --show FILE…    "));
}

TEST(CommandLineTest, TheDesktopStartsItForARequest) {
    const auto line = parse({"--dbus-activated"});
    EXPECT_EQ(line.kind, Kind::start);
    EXPECT_FALSE(line.request);
    EXPECT_TRUE(line.launchedByDesktop);
    EXPECT_FALSE(parse({}).launchedByDesktop);
    EXPECT_EQ(parse({"--dbus-activated", "file.png"}).kind, Kind::invalid);
    EXPECT_THAT(helpText(), Not(HasSubstr("--dbus-activated")));
}

TEST(CommandLineTest, SomeActionsStartTheProgramAndOthersNeedARunningOne) {
    for (const auto* name : {"settings", "sample"}) {
        const auto line = parse({std::string("--") + name});
        EXPECT_EQ(line.kind, Kind::start) << name;
        EXPECT_EQ(line.request, (ApplicationRequest{name, {}}));
    }
    for (const auto* name : {"pause", "resume", "dismiss", "restore", "focus-panel", "open-folder",
                             "quit", "status"}) {
        const auto line = parse({std::string("--") + name});
        EXPECT_EQ(line.kind, Kind::sendRequest) << name;
        EXPECT_EQ(line.request, (ApplicationRequest{name, {}}));
    }
}

TEST(CommandLineTest, PathsAreRelativeToTheFolderOfTheCaller) {
    const auto line = parse({"--show", "a.png", "/b/c.png", "--odd.png"});
    EXPECT_EQ(line.kind, Kind::start);
    ASSERT_TRUE(line.request);
    EXPECT_THAT(line.request->arguments, ElementsAre("/here/a.png", "/b/c.png", "/here/--odd.png"));
}

TEST(CommandLineTest, TheStatusTakesItsDetailsInAnyOrder) {
    EXPECT_EQ(parse({"--status"}).kind, Kind::sendRequest);
    EXPECT_THAT(parse({"--status"}).request->arguments, IsEmpty());
    EXPECT_THAT(parse({"--status", "--with-paths", "--verbose"}).request->arguments,
                ElementsAre("with-paths", "verbose"));
}

TEST(CommandLineTest, VersionAndHelpArePrinted) {
    EXPECT_EQ(parse({"--version"}).text, "Vantle " + std::string(version));
    const auto help = parse({"--help"});
    EXPECT_EQ(help.kind, Kind::print);
    for (const auto* option : {"--settings", "--pause", "--resume", "--show FILE…", "--dismiss",
                               "--restore", "--focus-panel", "--open-folder", "--sample", "--quit",
                               "--status", "  --verbose", "  --with-paths", "--version", "--help"})
        EXPECT_THAT(help.text, HasSubstr(option));
}

TEST(CommandLineTest, NamesInvalidArguments) {
    const std::vector<std::pair<std::vector<std::string>, const char*>> wrongs = {
        {{"--dance"}, "vantle: unknown option \"--dance\"\nTry \"vantle --help\"."},
        {{"--"}, "unknown option \"--\""},
        {{""}, "unexpected argument \"\""},
        {{"-h"}, "unexpected argument \"-h\""},
        {{"a.png"}, "unexpected argument \"a.png\""},
        {{"--show"}, "--show needs at least one file"},
        {{"--pause", "now"}, "unexpected argument \"now\""},
        {{"--help", "--pause"}, "unexpected argument \"--pause\""},
        {{"--status", "--pause"}, "unexpected argument \"--pause\""},
        {{"--status", "verbose"}, "unexpected argument \"verbose\""},
        {{"--verbose"}, "unknown option \"--verbose\""},
    };
    for (const auto& [arguments, reason] : wrongs) {
        const auto line = parse(arguments);
        EXPECT_EQ(line.kind, Kind::invalid) << reason;
        EXPECT_THAT(line.text, HasSubstr(reason));
    }
}

void expectNear(const Point& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-6);
    EXPECT_NEAR(point.y, y, 1e-6);
}

TEST(GradientLineTest, GoesCounterClockwiseFromTheRight) {
    expectNear(gradientLine({200, 100}, 0).start, 0, 50);
    expectNear(gradientLine({200, 100}, 0).end, 200, 50);
    expectNear(gradientLine({200, 100}, 90).start, 100, 100);
    expectNear(gradientLine({200, 100}, 90).end, 100, 0);
}

TEST(GradientLineTest, ANegativeAngleRunsDownwardsFromCornerToCorner) {
    for (const double angle : {-30.0, -60.0}) {
        const auto [begin, end] = gradientLine({1600, 1000}, angle);
        const Point start = begin;
        const Point direction{end.x - start.x, end.y - start.y};
        EXPECT_GT(direction.x, 0);
        EXPECT_GT(direction.y, 0);
        const auto along = [&](double x, double y) {
            return ((x - start.x) * direction.x + (y - start.y) * direction.y) /
                   (direction.x * direction.x + direction.y * direction.y);
        };
        EXPECT_NEAR(along(0, 0), 0, 1e-9);
        EXPECT_NEAR(along(1600, 1000), 1, 1e-9);
    }
}

}  // namespace
}  // namespace vantle
