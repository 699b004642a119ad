#include <gtest/gtest.h>

#include <QByteArray>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "contract/GSettingsContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "platform/freedesktop/GSettingsCommand.h"

namespace vantle {
namespace {

constexpr auto schema = "org.vantle.test";
constexpr auto key = "folder";

/// Changes environment variables, and restores them at its end.
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

/// The real command with its own schema, which keeps the settings in a file.
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

INSTANTIATE_TYPED_TEST_SUITE_P(GSettingsCommand, GSettingsContract, Command);

TEST(GSettingsCommandTest, AValueThatIsNoTextIsAFailure) {
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
