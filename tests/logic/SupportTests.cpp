#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "fakes/CapturedLog.h"
#include "fakes/VirtualTime.h"
#include "support/Debug.h"
#include "support/DisplayName.h"
#include "support/Geometry.h"
#include "support/Published.h"
#include "support/UUID.h"
#include "support/Url.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

TEST(VirtualTime, EndlessWorkIsStopped) {
    fakes::VirtualTime time;
    std::function<void()> again = [&] { time.schedule(Seconds(0), again); };
    again();
    EXPECT_THROW(time.settle(), std::logic_error);
}

TEST(DisplayName, NamesOfAnyBytesAreShownOnOneLine) {
    EXPECT_EQ(displayName("Shot.png"), "Shot.png");
    EXPECT_EQ(displayName("two\nlines.png"), "two␊lines.png");
    EXPECT_EQ(displayName("\x7f\x01"), "␡␁");
    EXPECT_EQ(displayName("Ünï.png"), "Ünï.png");
    EXPECT_EQ(displayName("\xff.png"), "\xff.png") << "whoever shows it replaces that";
}

TEST(DisplayName, HiddenCharactersAreReplaced) {
    const auto character = [](unsigned code) {
        return std::string{static_cast<char>(0xE0 | code >> 12),
                           static_cast<char>(0x80 | (code >> 6 & 0x3F)),
                           static_cast<char>(0x80 | (code & 0x3F))};
    };
    EXPECT_EQ(displayName(character(0x202E) + "gnp.exe evil.png"), "\uFFFDgnp.exe evil.png");
    for (const unsigned hidden : {0x2028U, 0x2029U, 0x202AU, 0x202BU, 0x202CU, 0x202DU, 0x202EU,
                                  0x2066U, 0x2067U, 0x2068U, 0x2069U})
        EXPECT_EQ(displayName("a" + character(hidden) + "b"), "a\uFFFDb") << hidden;
    EXPECT_EQ(displayName("a\u0085b"), "a\uFFFDb");
}

TEST(DisplayName, TextFromRightToLeftStaysUnchanged) {
    for (const char* name : {"لقطة شاشة.png", "צילום\u200F 7.png", "a\u2027b\u202Fc\u2065d\u206A"})
        EXPECT_EQ(displayName(name), name);
}

using fakes::CapturedLog;
using testing::ElementsAre;

TEST(Published, AnnouncesTheNewValueBeforeItIsStored) {
    Published<int> property(1);
    int announced = 0;
    int stored = 0;
    const auto subscription = property.observeChanges([&](int value) {
        announced = value;
        stored = property.value();
    });
    property.set(2);
    EXPECT_EQ(announced, 2);
    EXPECT_EQ(stored, 1);
    EXPECT_EQ(property.value(), 2);
}

TEST(Published, ObserveReportsTheCurrentValueFirst) {
    Published<int> property(1);
    std::vector<int> seen;
    const auto subscription = property.observe([&](int value) { seen.push_back(value); });
    property.set(2);
    property.set(2);
    EXPECT_THAT(seen, ElementsAre(1, 2, 2));
}

TEST(Published, AnEndedSubscriptionIsNotCalled) {
    Published<int> property(1);
    int calls = 0;
    auto subscription = property.observeChanges([&](int) { ++calls; });
    property.set(2);
    subscription.end();
    property.set(3);
    EXPECT_EQ(calls, 1);
}

TEST(Published, AnObserverRemovedDuringANotificationIsNotCalled) {
    Published<int> property(1);
    int calls = 0;
    Subscription second;
    const auto first = property.observeChanges([&](int) { second.end(); });
    second = property.observeChanges([&](int) { ++calls; });
    property.set(2);
    EXPECT_EQ(calls, 0);
}

TEST(Published, AnObserverCanEndItselfDuringANotification) {
    Published<int> property(1);
    std::vector<std::string> calls;
    Subscription first;
    first = property.observeChanges([&, text = std::string("still here")](int) {
        first.end();
        calls.push_back(text);
    });
    const auto second = property.observeChanges([&](int) { calls.push_back("second"); });
    property.set(2);
    property.set(3);
    EXPECT_THAT(calls, ElementsAre("still here", "second", "second"));
}

TEST(Published, AnObserverAddedDuringANotificationGetsTheOldAndTheNewValue) {
    Published<int> property(1);
    std::vector<int> seen;
    Subscription late;
    bool added = false;
    const auto first = property.observeChanges([&](int) {
        if (std::exchange(added, true)) return;
        late = property.observe([&](int value) { seen.push_back(value); });
    });
    property.set(2);
    EXPECT_THAT(seen, ElementsAre(1, 2));
}

TEST(Published, ASubscriptionMayOutliveTheProperty) {
    Subscription subscription;
    {
        Published<int> property(1);
        subscription = property.observeChanges([](int) {});
    }
    subscription.end();
}

TEST(Weakly, DoesNothingAfterTheOwnerIsGone) {
    int calls = 0;
    auto owner = std::make_shared<int>(3);
    const auto callback = weakly(owner, [&](int& value, int factor) { calls += value * factor; });
    callback(2);
    owner.reset();
    callback(2);
    EXPECT_EQ(calls, 6);
}

TEST(Debug, BuildsItsMessageOnlyWhenItIsOn) {
    int built = 0;
    const auto message = [&] {
        ++built;
        return std::string("ready");
    };
    {
        CapturedLog log(CapturedLog::DebugSwitch::off);
        Debug::log(message);
        EXPECT_TRUE(log.lines().empty());
    }
    CapturedLog log(CapturedLog::DebugSwitch::on);
    Debug::log(message);
    EXPECT_EQ(built, 1);
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: ready"));
}

/// Returns 1 if a process that starts with this value of VANTLE_DEBUG has debug output, otherwise
/// 0.
int debugOf(const char* value) {
    if (value)
        setenv("VANTLE_DEBUG", value, 1);
    else
        unsetenv("VANTLE_DEBUG");
    return Debug::on() ? 1 : 0;
}

TEST(Debug, IsOnIfItsVariableExistsEvenIfItIsEmpty) {
    // Each runs in its own process, because the variable is read only once.
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(std::_Exit(debugOf("1")), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(std::_Exit(debugOf("")), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(std::_Exit(debugOf(nullptr)), testing::ExitedWithCode(0), "");
}

TEST(SystemLog, KeepsAnyMessageOnOneLine) {
    CapturedLog log;
    systemLog("two\nlines\x1b[31m");
    EXPECT_THAT(log.lines(), ElementsAre("two\\nlines\\x1b[31m"));
}

TEST(SystemLog, WritesAReasonAfterItsMessageAndStoresItSeparately) {
    CapturedLog log;
    systemLog("cannot open /a: b", "no such\nfile");
    EXPECT_THAT(log.lines(), ElementsAre("cannot open /a: b: no such\\nfile"));
    EXPECT_EQ(recentSystemLog().back().message, "cannot open /a: b");
    EXPECT_EQ(recentSystemLog().back().reason, "no such\\nfile");
}

TEST(SystemLog, KeepsTheLatestMessagesExceptDiagnosticOnes) {
    CapturedLog log(CapturedLog::DebugSwitch::on);
    for (std::size_t i = 1; i <= recentMessages + 1; ++i) systemLog(std::to_string(i));
    Debug::log([] { return std::string("a step"); });
    systemLog("Vantle[hit]: a place");
    const auto recent = recentSystemLog();
    ASSERT_EQ(recent.size(), recentMessages);
    EXPECT_EQ(recent.front().line(), "2");
    EXPECT_EQ(recent.back().line(), std::to_string(recentMessages + 1));
}

TEST(UUID, IsNewEachTimeInTheUsualNotation) {
    const UUID first = UUID::random();
    EXPECT_NE(first, UUID::random());
    EXPECT_THAT(first.text(), testing::MatchesRegex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-"
                                                    "[89ab][0-9a-f]{3}-[0-9a-f]{12}"));
}

TEST(Url, SplitsPaths) {
    const Url url = Url::file("/home/me/Shot 1.PNG");
    EXPECT_EQ(url.lastPathComponent(), "Shot 1.PNG");
    EXPECT_EQ(url.pathExtension(), "PNG");
    EXPECT_EQ(url.deletingLastPathComponent(), Url::file("/home/me/"));
    EXPECT_EQ(Url::file("/a").deletingLastPathComponent(), Url::file("/"));
    EXPECT_EQ(Url::file("/").appending("a"), Url::file("/a"));
    EXPECT_EQ(Url::file("/.png").pathExtension(), "");
    EXPECT_EQ(Url::file("/a.").pathExtension(), "");
}

TEST(Url, AddressesRoundTripWithAnyName) {
    const Url url = Url::file("/tmp/a b%20\n\xff\xe4.png");
    EXPECT_EQ(url.address(), "file:///tmp/a%20b%2520%0A%FF%E4.png");
    EXPECT_EQ(Url::fromFileAddress(url.address()), url);
}

TEST(Url, RefusesAddressesThatAreNotLocalFiles) {
    for (const auto* address : {"http://host/a", "file://host/a", "file:a", "file:///a%0", "",
                                "file:///a%zz", "file:///a%00b", "/a"})
        EXPECT_EQ(Url::fromFileAddress(address), std::nullopt) << address;
    EXPECT_EQ(Url::fromFileAddress("file://localhost/a"), Url::file("/a"));
    EXPECT_EQ(Url::fromFileAddress("file:/a"), Url::file("/a"));
}

TEST(Geometry, APointBetweenTwoScreensBelongsToOneOfThem) {
    const Rect lower{{0, 0}, {100, 100}};
    const Rect upper{{0, 100}, {100, 100}};
    EXPECT_TRUE(containsUpwards(lower, {0, 100}));
    EXPECT_FALSE(containsUpwards(upper, {0, 100}));
    EXPECT_FALSE(containsUpwards(lower, {100, 50}));
}

}  // namespace
}  // namespace vantle
