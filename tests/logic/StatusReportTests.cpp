#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "app/StatusReport.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/VirtualTime.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

TEST(StatusReport, HasALineForEachFact) {
    EXPECT_EQ(reportText({{"state", "watching"}, {"tray", "none"}}), "state: watching\ntray: none");
    EXPECT_EQ(reportText({}), "");
}

TEST(StatusReport, DescribesAFoldersPlaceWithoutItsName) {
    fakes::VirtualTime time;
    fakes::ManualQueue queue(time);
    const fakes::FakeFileSystem files(queue);
    const auto place = [&](const char* path) {
        return folderDescription(Url::file(path), files, Paths::hidden);
    };
    EXPECT_EQ(place("/home/user/Clients/Acme"), "in the home directory");
    EXPECT_EQ(place("/home/user"), "the home directory");
    EXPECT_EQ(place("/home/username/Desktop"), "outside the home directory");
    EXPECT_EQ(folderDescription(Url::file("/mnt/shots"), files, Paths::shown), "/mnt/shots");
}

TEST(StatusReport, ListsTheLogMessagesWithTheirTimes) {
    EXPECT_THAT(logReport({}, Paths::shown), ElementsAre(ReportLine{"log", "empty"}));
    const std::vector<LoggedMessage> messages{{{}, "Vantle: cannot watch /a b", "missing"}};
    EXPECT_THAT(logReport(messages, Paths::shown)[0].value,
                EndsWith(" Vantle: cannot watch /a b: missing"));
    EXPECT_THAT(logReport(messages, Paths::hidden)[0].value,
                EndsWith(" Vantle: cannot watch (path): missing"));
}

TEST(StatusReport, HidesThePathInAReason) {
    const std::vector<LoggedMessage> messages{{{}, "cannot read /a: b", "not in “/home/anna”"}};
    EXPECT_THAT(logReport(messages, Paths::hidden)[0].value,
                EndsWith(" cannot read (path): not in “(path)"));
}

TEST(StatusReport, ShowsTheLocalTime) {
    const char* former = std::getenv("TZ");
    const std::string zone = former ? former : "";
    setenv("TZ", "East-2:30", 1);
    tzset();
    const std::vector<LoggedMessage> messages{
        {std::chrono::system_clock::from_time_t(1'700'000'000), "a message"}};
    EXPECT_EQ(logReport(messages, Paths::shown)[0].value, "2023-11-15 00:43:20 a message");
    if (former)
        setenv("TZ", zone.c_str(), 1);
    else
        unsetenv("TZ");
    tzset();
}

TEST(StatusReport, HidesPathsWithAnyCharacters) {
    const std::vector<std::pair<const char*, const char*>> lines{
        {"nothing to hide: 1/2 and a/b", "nothing to hide: 1/2 and a/b"},
        {"a/b", "a/b"},
        {"0/1, 9/1, a/1, z/1, A/1, Z/1", "0/1, 9/1, a/1, z/1, A/1, Z/1"},
        {"/home/anna/a.png", "(path)"},
        {"cannot open /home/anna/My tax.pdf: Permission denied", "cannot open (path)"},
        {"cannot open /home/anna/My: secret.png", "cannot open (path)"},
        {"cannot open /home/a: Failed to open “/home/a”", "cannot open (path)"},
        {"Failed to open “/home/a”", "Failed to open “(path)"},
        {"the folder \"/home/anna/a: b\" is full", "the folder \"(path)"},
        {"not a local folder: file:///home/anna/x", "not a local folder: file:(path)"},
        {"~/secret is gone", "~(path)"},
        {"show: no such file: /home/anna/a.png", "show: no such file: (path)"},
        {"[/home/a] at:/home/b", "[(path)"},
    };
    for (const auto& [line, hidden] : lines) EXPECT_EQ(withoutPaths(line), hidden);
}

}  // namespace
}  // namespace vantle
