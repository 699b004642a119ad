#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <limits>
#include <string>

#include "Locked.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/CapturedLog.h"
#include "platform/linux/IniDocument.h"
#include "platform/linux/IniPreferencesDomain.h"
#include "platform/linux/IniUserDefaults.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::optional<PreferenceValue> valueIn(std::string_view text, std::string_view key = "key") {
    return IniDocument::parse(text).value(key);
}

TEST(IniDocumentTest, DistinguishesTypes) {
    EXPECT_EQ(valueIn("[General]\nkey=true\n"), PreferenceValue(true));
    EXPECT_EQ(valueIn("[General]\nkey=false\n"), PreferenceValue(false));
    EXPECT_EQ(valueIn("[General]\nkey=10\n"), PreferenceValue(10.0));
    EXPECT_EQ(valueIn("[General]\nkey=-0.5\n"), PreferenceValue(-0.5));
    EXPECT_EQ(valueIn("[General]\nkey=/home/a b\n"), PreferenceValue("/home/a b"));
    EXPECT_EQ(valueIn("[General]\nkey=\"10\"\n"), PreferenceValue("10"));
    EXPECT_EQ(valueIn("[General]\nkey=\n"), PreferenceValue(""));
    for (const auto* text : {"nan", "inf", "1e999", "1,5", "0x10", "10 s", "True"})
        EXPECT_EQ(valueIn("[General]\nkey=" + std::string(text)), PreferenceValue(text));
}

TEST(IniDocumentTest, ReadsTheNotationsOfOtherPrograms) {
    EXPECT_EQ(valueIn("\xef\xbb\xbf[General]\r\nkey=1\r\n"), PreferenceValue(1.0));
    EXPECT_EQ(valueIn("[General]\n  key  =  a  \n"), PreferenceValue("a"));
    EXPECT_EQ(valueIn("# comment\n; comment\n\n[General]\nkey=1"), PreferenceValue(1.0));
    EXPECT_EQ(valueIn("key=1\n[Other]\nkey=2\n"), PreferenceValue(1.0));
    EXPECT_EQ(valueIn("[Other]\nkey=2\n[General]\nkey=1\n"), PreferenceValue(1.0));
    EXPECT_EQ(valueIn("[General]\nkey=a=b\n"), PreferenceValue("a=b"));
}

TEST(IniDocumentTest, AnInvalidLineLosesOnlyThatLine) {
    for (const auto line : {std::string_view("[General"), std::string_view("no value"),
                            std::string_view("<<<<<<< HEAD"), std::string_view("======="),
                            std::string_view("key=\0", 5), std::string_view("key=\x01"),
                            std::string_view("\x7f"
                                             "ELF")}) {
        const auto document =
            IniDocument::parse("[General]\nkey=1\n" + std::string(line) + "\nother=2\n");
        EXPECT_FALSE(document.isIntact()) << line;
        EXPECT_EQ(document.value("key"), PreferenceValue(1.0)) << line;
        EXPECT_EQ(document.value("other"), PreferenceValue(2.0)) << line;
        EXPECT_EQ(document.text(), "[General]\nkey=1\nother=2\n");
    }
    EXPECT_TRUE(IniDocument::parse("").isIntact());
    EXPECT_TRUE(IniDocument::parse("").isEmpty());
}

TEST(IniDocumentTest, ReadsBackEverythingThatWasSet) {
    constexpr auto least = std::numeric_limits<double>::denorm_min();
    const std::array<PreferenceValue, 14> values{true,
                                                 false,
                                                 0.0,
                                                 -0.1,
                                                 1e300,
                                                 least,
                                                 "",
                                                 "text",
                                                 " blanks ",
                                                 "true",
                                                 "12",
                                                 "a \"b\" \\c",
                                                 "new\nline\ttab\x01",
                                                 "\xff\xfe invalid"};
    for (const auto& value : values) {
        IniDocument document;
        document.set("key", value);
        EXPECT_EQ(valueIn(document.text()), value) << document.text();
    }
}

TEST(IniDocumentTest, OtherLinesStayAsTheyWereWritten) {
    const std::string before =
        "# Mine\n[Other]\na=1\n\n[General]\nkey = old ; not a comment\n; note\nb=2\n\n[Last]\nc=3";
    auto document = IniDocument::parse(before);
    EXPECT_EQ(document.text(), before);
    document.set("key", 5.0);
    document.set("fresh", true);
    EXPECT_EQ(document.text(),
              "# Mine\n[Other]\na=1\n\n[General]\nkey=5\n; note\nb=2\nfresh=true\n\n[Last]\nc=3");
}

class IniFileTest : public testing::Test {
protected:
    bool isShown(const Url& from) const { return IniUserDefaults(from).boolean("shown"); }
    Url aside(const std::string& suffix = "") const {
        return Url::file(file.path() + ".damaged" + suffix);
    }

    fakes::CapturedLog log;
    TemporaryFolder folder;
    Url file = folder / "vantle.conf";
};

TEST_F(IniFileTest, KeepsSettingsForTheNextStart) {
    IniUserDefaults(file).set("shown", true);
    EXPECT_TRUE(isShown(file));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(IniFileTest, MissingFoldersAreMade) {
    const Url deep = (folder / "config").appending("vantle").appending("vantle.conf");
    IniUserDefaults(deep).set("shown", true);
    EXPECT_TRUE(isShown(deep));
}

TEST_F(IniFileTest, ReadsTheValidLinesOfADamagedFileAndKeepsACopy) {
    const std::string damage("[General]\nshown=true\n\0\0\0", 24);
    writeText(file, damage);
    EXPECT_TRUE(isShown(file));
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: a settings file is damaged; its readable lines "
                                         "are used, and it was renamed: " +
                                         file.path() + " is now " + aside().path()));
    EXPECT_EQ(readText(aside()), damage);
    EXPECT_EQ(readText(file), "[General]\nshown=true\n");
    EXPECT_TRUE(isShown(file));
    EXPECT_EQ(log.lines().size(), 1u) << "nobody meets the same damage twice";
}

TEST_F(IniFileTest, AnEmptiedFileIsRestoredFromItsCopy) {
    IniUserDefaults(file).set("shown", true);
    for (const auto* emptied : {"", "\n", "only one odd line", "[General]\n"}) {
        writeText(file, emptied);
        EXPECT_TRUE(isShown(file)) << emptied;
        EXPECT_EQ(readText(file), "[General]\nshown=true\n");
    }
    std::filesystem::remove(file.path());
    EXPECT_FALSE(isShown(file)) << "one that was taken away is to be forgotten";
}

TEST_F(IniFileTest, WithoutACopyTheValidLinesOfADamagedFileCount) {
    writeText(file, "[General]\nshown=true\nno sense\n");
    IniPreferencesDomain domain(file);
    domain.setValue("other", 1.0);
    domain.synchronize();
    EXPECT_EQ(domain.value("shown"), PreferenceValue(true));
    EXPECT_EQ(domain.value("other"), PreferenceValue(1.0));
}

TEST_F(IniFileTest, AFileDamagedMeanwhileIsWrittenAgainFromMemory) {
    IniUserDefaults defaults(file);
    defaults.set("shown", true);
    defaults.set("number", 7.0);
    int value = 0;
    for (const auto* damage : {"", "[General]\nnumber\n", "odd"}) {
        writeText(file, damage);
        defaults.set("other", static_cast<double>(++value));
        const IniUserDefaults again(file);
        EXPECT_TRUE(again.boolean("shown")) << damage;
        EXPECT_EQ(again.number("number"), 7);
        EXPECT_EQ(again.number("other"), value);
    }
    std::filesystem::remove(file.path());
    defaults.set("other", 0.0);
    EXPECT_TRUE(isShown(file));
}

TEST_F(IniFileTest, EarlierDamagedFilesAreNotOverwritten) {
    for (const auto* damage : {"first", "second", "third"}) {
        writeText(file, damage);
        EXPECT_FALSE(isShown(file));
    }
    EXPECT_EQ(readText(aside()), "first");
    EXPECT_EQ(readText(aside("-2")), "second");
    EXPECT_EQ(readText(aside("-3")), "third");
}

TEST_F(IniFileTest, AHugeFileAndAFolderInItsPlaceAreDamage) {
    writeText(file, std::string(2 << 20, '\n'));
    EXPECT_FALSE(isShown(file));
    EXPECT_TRUE(std::filesystem::exists(aside().path()));
    std::filesystem::create_directory(file.path());
    IniUserDefaults(file).set("shown", true);
    EXPECT_TRUE(isShown(file));
    EXPECT_TRUE(std::filesystem::is_directory(aside("-2").path()));
}

TEST_F(IniFileTest, AFileThatCannotBeReadIsNeverOverwritten) {
    writeText(file, "[General]\nshown=false\n");
    {
        const Locked locked(file, std::filesystem::perms::none);
        IniUserDefaults defaults(file);
        defaults.set("shown", true);
        defaults.set("shown", false);
        defaults.set("shown", true);
        EXPECT_TRUE(defaults.boolean("shown")) << "it holds for this run";
    }
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("cannot read")));
    EXPECT_EQ(readText(file), "[General]\nshown=false\n");
}

TEST_F(IniFileTest, AFailedWriteIsRepeatedWithTheNextOne) {
    IniUserDefaults defaults(file);
    {
        const Locked locked(
            folder.url(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
        defaults.set("shown", true);
    }
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("cannot write")));
    defaults.set("other", 1.0);
    EXPECT_TRUE(isShown(file));
}

TEST_F(IniFileTest, AFullDiskLeavesTheOldFile) {
    writeText(file, "[General]\nshown=true\n");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handlerBefore = signal(SIGXFSZ, SIG_IGN);
    const rlimit tiny{8, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tiny);
    IniUserDefaults(file).set("shown", false);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handlerBefore);
    EXPECT_EQ(readText(file), "[General]\nshown=true\n");
    const std::filesystem::directory_iterator left(folder.url().path());
    EXPECT_EQ(std::distance(begin(left), end(left)), 1) << "nothing half-written stays behind";
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("cannot write")));
}

TEST_F(IniFileTest, KeepsALinkAndTheMode) {
    const Url real = folder / "real.conf";
    writeText(real, "");
    std::filesystem::permissions(
        real.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    std::filesystem::create_symlink(real.path(), file.path());
    IniUserDefaults(file).set("shown", true);
    EXPECT_TRUE(std::filesystem::is_symlink(file.path()));
    EXPECT_TRUE(isShown(real));
    EXPECT_EQ(std::filesystem::status(real.path()).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(IniFileTest, KeepsChangesOfOthersToOtherKeys) {
    IniUserDefaults ours(file);
    ours.set("shown", true);
    IniUserDefaults(file).set("theirs", 7.0);
    ours.set("shown", false);
    EXPECT_EQ(IniUserDefaults(file).number("theirs"), 7);
}

/// Writes one setting after another, and a byte to `said` after each, until it is killed.
[[noreturn]] void writeForEver(const Url& file, int said) {
    IniUserDefaults defaults(file);
    for (double number = 1;; ++number) {
        defaults.set("number", number);
        defaults.set("text", std::string(5000, 'x'));
        if (write(said, "x", 1) != 1) _exit(1);
    }
}

TEST_F(IniFileTest, AProcessKilledAtAnyMomentLeavesReadableSettings) {
    for (int round = 0; round < 200; ++round) {
        std::filesystem::remove(file.path());
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe(ends.data()), 0);
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0) writeForEver(file, ends[1]);
        close(ends[1]);
        double written = 0;
        for (char byte = 0; written < round % 7 + 1; ++written)
            ASSERT_EQ(read(ends[0], &byte, 1), 1);
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        close(ends[0]);
        const IniUserDefaults left(file);
        EXPECT_GE(left.number("number"), written);
        EXPECT_EQ(left.text("text"), std::string(5000, 'x'));
        EXPECT_THAT(log.lines(), IsEmpty());
    }
}

}  // namespace
}  // namespace vantle
