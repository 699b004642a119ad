#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <string>

#include "contract/GSettingsContract.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeGSettings.h"
#include "fakes/VirtualTime.h"
#include "platform/linux/screenshots/BackgroundGSettings.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto schema = "org.vantle.test";
constexpr auto key = "folder";

// The tests below use this fake.
INSTANTIATE_TYPED_TEST_SUITE_P(FakeGSettings, GSettingsContract, GSettingsInMemory);

class BackgroundGSettingsTest : public testing::Test {
protected:
    BackgroundGSettingsTest() {
        desktop->texts[name] = "/a";
        settings->onChange = [this] { ++changes; };
    }
    std::string text() const {
        const auto heard = settings->text(schema, key);
        return heard ? heard.value() : heard.failure().code == EAGAIN ? "unknown" : "failed";
    }

    const std::string name = std::string(schema) + ' ' + key;
    fakes::CapturedLog log;
    fakes::VirtualTime time;
    fakes::ManualScheduler main{time};
    fakes::ManualQueue queue{time};
    std::shared_ptr<fakes::FakeGSettings> desktop = std::make_shared<fakes::FakeGSettings>();
    std::shared_ptr<BackgroundGSettings> settings =
        std::make_shared<BackgroundGSettings>(desktop, queue, main);
    int changes = 0;
};

TEST_F(BackgroundGSettingsTest, ReturnsTheKnownValueAndReadsItAgain) {
    EXPECT_EQ(text(), "unknown");
    EXPECT_TRUE(settings->isWritable(schema, key));
    time.settle();
    EXPECT_EQ(text(), "/a");
    EXPECT_EQ(changes, 1);
    desktop->texts[name] = "/b";
    EXPECT_EQ(text(), "/a");
    time.settle();
    EXPECT_EQ(text(), "/b");
    time.settle();
    EXPECT_EQ(changes, 2) << "the same again is no change";
}

TEST_F(BackgroundGSettingsTest, ReportsWhenAllPendingValuesAreRead) {
    std::string heard = "not yet";
    (void)text();
    settings->whenReadsFinish([&] { heard = text(); });
    EXPECT_EQ(heard, "not yet");
    time.settle();
    EXPECT_EQ(heard, "/a");
}

TEST_F(BackgroundGSettingsTest, ASetValueCountsAtOnceAndAnOlderAnswerDoesNotReplaceIt) {
    (void)text();
    time.settle();
    (void)text();  // asked for before it is set, answered afterwards
    EXPECT_FALSE(settings->setText(schema, key, "/c").has_value());
    EXPECT_EQ(text(), "/c");
    EXPECT_EQ(desktop->texts[name], "/a");
    time.settle();
    EXPECT_EQ(text(), "/c");
    EXPECT_EQ(desktop->texts[name], "/c");
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(settings->reset(schema, key).has_value());
    time.settle();
    EXPECT_EQ(desktop->texts[name], "");
}

TEST_F(BackgroundGSettingsTest, AFailureToSetIsLoggedAndTheValueIsReadAgain) {
    (void)text();
    time.settle();
    desktop->locked = true;
    EXPECT_FALSE(settings->setText(schema, key, "/c").has_value());
    time.settle();
    EXPECT_EQ(text(), "/a");
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(settings->isWritable(schema, key));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("cannot set folder of org.vantle.test")));
    EXPECT_TRUE(settings->setText(schema, key, "/c").has_value()) << "that is known by now";
}

TEST_F(BackgroundGSettingsTest, AnUnknownKeyFailsOnceItIsKnownToBeUnknown) {
    desktop->texts.clear();
    EXPECT_EQ(text(), "unknown");
    time.settle();
    EXPECT_EQ(text(), "failed");
    EXPECT_TRUE(settings->setText(schema, key, "/c").has_value());
    time.settle();
    EXPECT_EQ(changes, 1);
}

TEST_F(BackgroundGSettingsTest, IgnoresAnAnswerAfterItsEnd) {
    (void)text();
    (void)settings->setText(schema, key, "/c");
    settings.reset();
    time.settle();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(desktop->texts[name], "/c");
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
}  // namespace vantle
