#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeGSettings.h"
#include "platform/freedesktop/GSettingsCommand.h"

namespace vantle {
namespace {

constexpr auto schema = "org.vantle.test";
constexpr auto key = "folder";

/// Variables of the environment, as they were before, afterwards.
class ChangedEnvironment {
public:
    explicit ChangedEnvironment(const std::map<const char*, std::string>& values) {
        for (const auto& [name, value] : values) {
            before_[name] =
                qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt;
            qputenv(name, QByteArray::fromStdString(value));
        }
    }
    ~ChangedEnvironment() {
        for (const auto& [name, value] : before_)
            value ? (void)qputenv(name, *value) : (void)qunsetenv(name);
    }
    ChangedEnvironment(const ChangedEnvironment&) = delete;
    ChangedEnvironment& operator=(const ChangedEnvironment&) = delete;

private:
    std::map<const char*, std::optional<QByteArray>> before_;
};

struct InMemory {
    InMemory() { settings.texts[std::string(schema) + ' ' + key] = ""; }

    fakes::FakeGSettings settings;
};

/// The real command with a schema of its own, keeping what is set in a file.
struct Command {
    Command() {
        writeText(folder / "org.vantle.test.gschema.xml",
                  "<schemalist><schema id=\"org.vantle.test\" path=\"/org/vantle/test/\">"
                  "<key name=\"folder\" type=\"s\"><default>''</default></key>"
                  "<key name=\"number\" type=\"i\"><default>1</default></key>"
                  "</schema></schemalist>");
        const std::string compile = "glib-compile-schemas " + folder.url().path();
        EXPECT_EQ(std::system(compile.c_str()), 0);
    }

    TemporaryFolder folder;
    ChangedEnvironment environment{{{"GSETTINGS_SCHEMA_DIR", folder.url().path()},
                                    {"GSETTINGS_BACKEND", "keyfile"},
                                    {"LC_ALL", "C"},
                                    {"XDG_CONFIG_HOME", folder.url().path()}}};
    GSettingsCommand settings;
};

template <typename Store>
class GSettingsContract : public testing::Test {
protected:
    Store store;
    GSettings& settings = store.settings;
};

using Stores = testing::Types<InMemory, Command>;
TYPED_TEST_SUITE(GSettingsContract, Stores);

TYPED_TEST(GSettingsContract, TextIsReadBackAsItWasSet) {
    ASSERT_TRUE(this->settings.text(schema, key));
    EXPECT_EQ(this->settings.text(schema, key).value(), "");
    for (const std::string text : {"/home/a b", "file:///a%20b", "Bild ö スク 📷", "'\"\\ $(x) `",
                                   "new\nline\ttab\x7f", "-x", "@as []", "true", "12"}) {
        const auto failure = this->settings.setText(schema, key, text);
        EXPECT_FALSE(failure.has_value()) << failure->message;
        const auto read = this->settings.text(schema, key);
        ASSERT_TRUE(read) << read.failure().message;
        EXPECT_EQ(read.value(), text);
    }
}

TYPED_TEST(GSettingsContract, ResetGoesBackToTheDefault) {
    EXPECT_FALSE(this->settings.setText(schema, key, "/a").has_value());
    EXPECT_FALSE(this->settings.reset(schema, key).has_value());
    EXPECT_EQ(this->settings.text(schema, key).value(), "");
}

TYPED_TEST(GSettingsContract, WhatIsNotThereIsAFailureAndNotTheEnd) {
    for (const auto& [unknown, unknownKey] :
         {std::pair("org.vantle.nowhere", key), std::pair(schema, "nothing")}) {
        EXPECT_FALSE(this->settings.text(unknown, unknownKey));
        EXPECT_TRUE(this->settings.setText(unknown, unknownKey, "x").has_value());
        EXPECT_TRUE(this->settings.reset(unknown, unknownKey).has_value());
        EXPECT_FALSE(this->settings.isWritable(unknown, unknownKey));
    }
    EXPECT_TRUE(this->settings.isWritable(schema, key));
    EXPECT_THAT(this->settings.text("org.vantle.nowhere", key).failure().message,
                testing::HasSubstr("org.vantle.nowhere"));
}

TEST(GSettingsCommandTest, AnotherTypeThanTextIsAFailure) {
    const Command store;
    EXPECT_FALSE(store.settings.text(schema, "number"));
}

TEST(GSettingsCommandTest, WithoutTheCommandEveryCallFails) {
    const TemporaryFolder empty;
    const ChangedEnvironment environment({{"PATH", empty.url().path()}});
    EXPECT_FALSE(GSettingsCommand().text(schema, key));
    EXPECT_TRUE(GSettingsCommand().setText(schema, key, "x").has_value());
    EXPECT_FALSE(GSettingsCommand().isWritable(schema, key));
}

TEST(GSettingsCommandTest, ACommandThatHangsIsEnded) {
    const TemporaryFolder folder;
    writeText(folder / "gsettings", "#!/bin/sh\nexec sleep 600\n");
    std::filesystem::permissions((folder / "gsettings").path(), std::filesystem::perms::owner_all);
    const ChangedEnvironment environment(
        {{"PATH", folder.url().path() + ":" + qgetenv("PATH").toStdString()}});
    EXPECT_FALSE(GSettingsCommand().text(schema, key));
}

}  // namespace
}  // namespace vantle
