#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Locked.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeGSettings.h"
#include "platform/ScreenshotPreferences.h"
#include "platform/linux/screenshots/ScreenshotTools.h"
#include "platform/linux/screenshots/ToolPreferencesDomain.h"

namespace vantle {
namespace {

using screenshotPreferences::location;
using screenshotPreferences::showThumbnail;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A home directory with the settings of screenshot tools.
class ScreenshotToolTest : public testing::Test {
protected:
    ScreenshotToolTest() {
        settings->texts = {{"org.gnome.gnome-screenshot auto-save-directory", ""},
                           {"org.mate.screenshot last-save-directory", ""}};
        makeFolder("Desktop");
    }

    Url inHome(const std::string& name) const { return home.appending(name); }
    Url makeFolder(const std::string& name) const {
        std::filesystem::create_directories(inHome(name).path());
        return inHome(name);
    }
    void writeIn(const std::string& name, std::string text) const {
        for (auto at = text.find('~'); at != std::string::npos; at = text.find('~'))
            text.replace(at, 1, home.path());
        std::filesystem::create_directories(inHome(name).deletingLastPathComponent().path());
        writeText(inHome(name), text);
    }
    std::string configuration(const std::string& name) const {
        return readText(inHome(".config/" + name));
    }
    void nameThePictures() const {
        writeIn(".config/user-dirs.dirs", "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
        makeFolder("Bilder");
    }

    ToolPreferencesDomain domain(const std::string& tool) const {
        return domain(tool, inHome("memory.conf"));
    }
    ScreenshotTool description(const std::string& tool) const {
        const std::string path = home.path();
        const fakes::FakeEnvironment environment{
            {"HOME", path},
            {"XDG_CONFIG_DIRS", path + "/system"},
            {"XDG_DATA_DIRS", path + "/local/share:" + path + "/share"}};
        return std::move(*makeScreenshotTool(tool, environment, settings));
    }
    ToolPreferencesDomain domain(const std::string& tool, const Url& memory) const {
        return {description(tool), home, memory};
    }
    /// Returns the name of the folder that the tool saves recordings into.
    std::string recordingsFolderOf(const std::string& tool) const {
        const auto recordings = description(tool).recordingsFolder;
        if (!recordings) return "none";
        return std::filesystem::path(recordings().path()).lexically_relative(home.path());
    }
    /// Installs Spectacle in its last version for Qt 5.
    void installSpectacleForQt5() const { writeIn("share/knotifications5/spectacle.notifyrc", ""); }
    /// Returns the name of the folder that the tool saves into.
    std::string folderOf(const std::string& tool) const {
        const auto path = domain(tool).value(location);
        if (!path) return "none";
        return std::filesystem::path(std::get<std::string>(*path)).lexically_relative(home.path());
    }
    bool shows(const std::string& tool) const {
        return domain(tool).value(showThumbnail) == PreferenceValue(true);
    }
    void setFolder(const std::string& tool, const Url& folder) const {
        domain(tool).setValue(location, folder.path());
    }
    void setShows(const std::string& tool, bool shows) const {
        domain(tool).setValue(showThumbnail, shows);
    }

    fakes::CapturedLog log;
    TemporaryFolder temporary;
    Url home = temporary.url();
    std::shared_ptr<fakes::FakeGSettings> settings = std::make_shared<fakes::FakeGSettings>();
};

const std::vector<std::string> allTools{
    "spectacle", "xfce4-screenshooter", "gnome-screenshot", "mate-screenshot", "flameshot",
    "ksnip",     "screengrab",          "gnome-shell"};

/// The settings file and the key in which each of these tools keeps its folder.
const std::map<std::string, std::pair<std::string, std::string>> files{
    {"spectacle", {".config/spectaclerc", "[ImageSave]\nimageSaveLocation"}},
    {"xfce4-screenshooter", {".config/xfce4/xfce4-screenshooter", "screenshot_dir"}},
    {"flameshot", {".config/flameshot/flameshot.ini", "[General]\nsavePath"}},
    {"ksnip", {".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory"}},
    {"screengrab", {".config/screengrab/screengrab.conf", "[Base]\ndefDir"}}};

TEST_F(ScreenshotToolTest, EveryToolIsFoundByItsName) {
    for (const auto& tool : allTools) EXPECT_NO_THROW(domain(tool)) << tool;
    EXPECT_FALSE(makeScreenshotTool("none", {}, settings).has_value());
}

TEST_F(ScreenshotToolTest, UsesTheDefaultOfEachToolWithoutSettings) {
    EXPECT_EQ(folderOf("spectacle"), "Pictures/Screenshots");
    EXPECT_EQ(folderOf("gnome-shell"), "Screenshots");
    EXPECT_EQ(folderOf("mate-screenshot"), "Desktop");
    for (const auto* tool :
         {"xfce4-screenshooter", "gnome-screenshot", "flameshot", "ksnip", "screengrab"})
        EXPECT_EQ(folderOf(tool), ".") << tool;
    nameThePictures();
    EXPECT_EQ(folderOf("spectacle"), "Bilder/Screenshots");
    EXPECT_EQ(folderOf("gnome-shell"), "Bilder/Screenshots");
    EXPECT_EQ(folderOf("mate-screenshot"), "Desktop");
    for (const auto* tool : {"xfce4-screenshooter", "gnome-screenshot", "flameshot"})
        EXPECT_EQ(folderOf(tool), "Bilder") << tool;
    for (const auto* tool : {"ksnip", "screengrab"}) EXPECT_EQ(folderOf(tool), ".") << tool;
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(ScreenshotToolTest, MakesTheDefaultFolderThatTheToolWouldMake) {
    nameThePictures();
    (void)folderOf("gnome-shell");
    EXPECT_TRUE(std::filesystem::is_directory(inHome("Bilder/Screenshots").path()));
    (void)folderOf("spectacle");
    EXPECT_FALSE(std::filesystem::exists(inHome("Pictures").path()));
    std::filesystem::remove(inHome("Bilder/Screenshots").path());
    (void)folderOf("spectacle");
    EXPECT_TRUE(std::filesystem::is_directory(inHome("Bilder/Screenshots").path()));
}

TEST_F(ScreenshotToolTest, EachSpellingOfAFolderIsRead) {
    makeFolder("Bild ö %41");
    makeFolder("plain");
    const std::vector<std::array<std::string, 3>> spellings{
        {"spectacle", "file://~/Bild%20%C3%B6%20%2541", "Bild ö %41"},
        {"spectacle", "file://~/plain/", "plain"},
        {"spectacle", "~/plain", "plain"},
        {"xfce4-screenshooter", "file:~/plain", "plain"},
        {"xfce4-screenshooter", "file://~/Bild%20%C3%B6%20%2541", "Bild ö %41"},
        {"xfce4-screenshooter", "~/Bild ö %41", "Bild ö %41"},
        {"flameshot", "~/Bild \\xf6 %41", "Bild ö %41"},
        {"flameshot", "\"~/plain\"", "plain"},
        {"ksnip", "~/Bild \\xf6 %41", "Bild ö %41"},
        {"screengrab", "~/plain", "plain"}};
    for (const auto& [tool, text, name] : spellings) {
        const auto& [file, key] = files.at(tool);
        writeIn(file, std::string(key).append("=").append(text).append("\n"));
        EXPECT_EQ(folderOf(tool), name) << tool << ' ' << text;
    }
    writeIn(".config/spectaclerc", "[ImageSave]\nimageSaveLocation[$e]=file://$HOME/plain\n");
    EXPECT_EQ(folderOf("spectacle"), "plain");
}

TEST_F(ScreenshotToolTest, EachSpellingInTheSettingsOfGnomeIsRead) {
    makeFolder("a b");
    for (const auto& [tool, key] :
         {std::pair("gnome-screenshot", "org.gnome.gnome-screenshot auto-save-directory"),
          std::pair("mate-screenshot", "org.mate.screenshot last-save-directory")})
        for (const auto& text :
             {"file://" + home.path() + "/a%20b", home.path() + "/a b", std::string("~/a b")}) {
            settings->texts[key] = text;
            EXPECT_EQ(folderOf(tool), "a b") << tool << ' ' << text;
        }
}

TEST_F(ScreenshotToolTest, UsesTheFolderOfANamedFile) {
    makeFolder("shots");
    writeIn("shots/last.png", "");
    writeIn(".config/xfce4/xfce4-screenshooter", "screenshot_dir=file:~/shots/last.png\n");
    EXPECT_EQ(folderOf("xfce4-screenshooter"), "shots");
}

TEST_F(ScreenshotToolTest, AMissingFolderGivesTheFolderThatTheToolWouldUse) {
    for (const auto& [tool, place] : files) writeIn(place.first, place.second + "=~/gone\n");
    settings->texts["org.gnome.gnome-screenshot auto-save-directory"] = "/nowhere/gone";
    settings->texts["org.mate.screenshot last-save-directory"] = "relative";
    EXPECT_EQ(folderOf("xfce4-screenshooter"), ".");
    EXPECT_EQ(folderOf("flameshot"), ".");
    EXPECT_EQ(folderOf("gnome-screenshot"), ".");
    EXPECT_EQ(folderOf("mate-screenshot"), "Desktop");
    EXPECT_EQ(folderOf("spectacle"), "gone") << "it makes the folder";
    EXPECT_TRUE(std::filesystem::is_directory(inHome("gone").path()));
}

TEST_F(ScreenshotToolTest, TheSystemsSettingsCountIfTheUserHasNone) {
    makeFolder("theirs");
    makeFolder("ours");
    writeIn("system/spectaclerc", "[ImageSave]\nimageSaveLocation=file://~/theirs\n");
    EXPECT_EQ(folderOf("spectacle"), "theirs");
    setFolder("spectacle", inHome("ours"));
    EXPECT_EQ(folderOf("spectacle"), "ours");
    EXPECT_THAT(readText(inHome("system/spectaclerc")), HasSubstr("theirs"));
}

TEST_F(ScreenshotToolTest, ReadsBackAFolderThatWasSet) {
    const Url odd = makeFolder("Bild ö, \"%41\" \\x");
    for (const auto& tool : allTools) {
        if (tool == "gnome-shell") continue;
        setFolder(tool, odd);
        EXPECT_EQ(folderOf(tool), odd.lastPathComponent()) << tool;
    }
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(ScreenshotToolTest, ChangesOnlyThatKeyAndKeepsTheMode) {
    const Url fresh = makeFolder("fresh");
    makeFolder("old");
    for (const auto& [tool, place] : files) {
        const auto& [file, key] = place;
        const std::string before = "# \xff mine\n\n" + key + "=" + home.path() +
                                   "/old\nother = 1  \n\n[Else]\r\nno entry\nlast=2";
        writeText(makeFolder(file).deletingLastPathComponent().appending("x"), "");
        std::filesystem::remove(inHome(file).path());
        writeText(inHome(file), before);
        std::filesystem::permissions(inHome(file).path(), std::filesystem::perms::owner_read |
                                                              std::filesystem::perms::owner_write);
        setFolder(tool, fresh);
        ASSERT_EQ(folderOf(tool), "fresh");
        std::string expected = before;
        const auto begin = expected.find(home.path());
        const std::string after = readText(inHome(file));
        const auto value = after.substr(begin, after.find('\n', begin) - begin);
        EXPECT_THAT(value, HasSubstr("fresh"));
        expected.replace(begin, expected.find('\n', begin) - begin, value);
        EXPECT_EQ(after, expected) << tool;
        EXPECT_EQ(std::filesystem::status(inHome(file).path()).permissions(),
                  std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    }
}

TEST_F(ScreenshotToolTest, DoesNotWriteAnUnchangedValue) {
    makeFolder("old");
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=\"~/old\"\n");
    const std::string before = configuration("ksnip/ksnip.conf");
    setFolder("ksnip", inHome("old"));
    setShows("flameshot", true);
    EXPECT_EQ(configuration("ksnip/ksnip.conf"), before);
    EXPECT_FALSE(std::filesystem::exists(inHome(".config/flameshot").path()));
    EXPECT_FALSE(std::filesystem::exists(inHome("memory.conf").path()));
}

TEST_F(ScreenshotToolTest, WritesTheCurrentDefaultWhenItIsChosen) {
    setFolder("flameshot", home);
    nameThePictures();
    EXPECT_EQ(folderOf("flameshot"), ".");
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=/nowhere\n");
    setFolder("ksnip", home);
    EXPECT_THAT(configuration("ksnip/ksnip.conf"), HasSubstr(home.path()));
}

TEST_F(ScreenshotToolTest, MakesAndListsNothingAtAMissingMount) {
    nameThePictures();
    const Url table = inHome("fstab");
    writeIn("fstab", "server:/y " + inHome("Bilder").path() + " nfs4 noauto 0 0\n");
    for (const std::string tool : {"spectacle", "gnome-shell", "flameshot"}) {
        const ToolPreferencesDomain waiting(description(tool), home, inHome("memory.conf"),
                                            {.expected = table.path()});
        EXPECT_EQ(waiting.value(location), std::nullopt) << tool;
    }
    EXPECT_TRUE(std::filesystem::is_empty(inHome("Bilder").path()));
}

TEST_F(ScreenshotToolTest, DoesNotAskAServerForTheFolder) {
    nameThePictures();
    writeIn("mounts", "server:/y " + inHome("far").path() + " nfs4 rw 0 0\nserver:/x " +
                          inHome("Bilder").path() + " nfs4 rw 0 0\n");
    const MountFiles tables{.present = inHome("mounts").path(), .expected = {}};
    const ToolPreferencesDomain byDefault(description("spectacle"), home, inHome("memory.conf"),
                                          tables);
    EXPECT_EQ(byDefault.value(location), PreferenceValue(inHome("Bilder/Screenshots").path()));
    EXPECT_TRUE(std::filesystem::is_empty(inHome("Bilder").path()));
    writeIn(".config/flameshot/flameshot.ini", "[General]\nsavePath=~/far/shots\n");
    const ToolPreferencesDomain chosen(description("flameshot"), home, inHome("memory.conf"),
                                       tables);
    EXPECT_EQ(chosen.value(location), PreferenceValue(inHome("far/shots").path()));
}

TEST_F(ScreenshotToolTest, ThePreviousFolderIsRestoredAsItWasWritten) {
    const Url fresh = makeFolder("fresh");
    makeFolder("old");
    for (const auto& [tool, place] : files) {
        const auto& [file, key] = place;
        const bool knowsAddresses = tool == "spectacle" || tool == "xfce4-screenshooter";
        writeIn(file, key + (knowsAddresses ? "=file:~/old\nz=1\n" : "=\"~/old\"\nz=1\n"));
        const std::string before = readText(inHome(file));
        EXPECT_EQ(domain(tool).previousValue(location), std::nullopt);
        setFolder(tool, fresh);
        setFolder(tool, home);
        EXPECT_EQ(domain(tool).previousValue(location), PreferenceValue(inHome("old").path()))
            << tool << ": two changes of ours are one";
        domain(tool).restore(location);
        EXPECT_EQ(readText(inHome(file)), before) << tool;
        EXPECT_EQ(domain(tool).previousValue(location), std::nullopt);
    }
}

TEST_F(ScreenshotToolTest, AnUnsetValueIsUnsetAfterRestoring) {
    const Url fresh = makeFolder("fresh");
    for (const auto& tool : allTools) {
        if (tool == "gnome-shell") continue;
        const std::string byDefault = folderOf(tool);
        setFolder(tool, fresh);
        ASSERT_EQ(folderOf(tool), "fresh") << tool;
        domain(tool).restore(location);
        EXPECT_EQ(folderOf(tool), byDefault) << tool;
    }
    EXPECT_EQ(configuration("ksnip/ksnip.conf"), "[Application]\n");
    EXPECT_EQ(settings->texts["org.mate.screenshot last-save-directory"], "");
}

TEST_F(ScreenshotToolTest, RestoringKeepsAChangeOfTheUser) {
    makeFolder("old");
    makeFolder("theirs");
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=~/old\n");
    setFolder("ksnip", makeFolder("ours"));
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=~/theirs\n");
    EXPECT_EQ(domain("ksnip").previousValue(location), std::nullopt);
    domain("ksnip").restore(location);
    EXPECT_EQ(folderOf("ksnip"), "theirs");
    setFolder("ksnip", inHome("ours"));
    EXPECT_EQ(domain("ksnip").previousValue(location), PreferenceValue(inHome("theirs").path()));
}

TEST_F(ScreenshotToolTest, TheToolsOwnSpellingOfAFolderIsNoChange) {
    makeFolder("old");
    writeIn(".config/xfce4/xfce4-screenshooter", "screenshot_dir=file:~/old\n");
    setFolder("xfce4-screenshooter", makeFolder("a b"));
    // The tool writes its settings like this after its next screenshot.
    writeIn(".config/xfce4/xfce4-screenshooter", "screenshot_dir=file:~/a b\n");
    EXPECT_EQ(domain("xfce4-screenshooter").previousValue(location),
              PreferenceValue(inHome("old").path()));
}

TEST_F(ScreenshotToolTest, ReadsTheToolsLatestFolderEachTime) {
    makeFolder("first");
    makeFolder("second");
    const auto mate = domain("mate-screenshot");
    for (const std::string name : {"first", "second"}) {
        settings->texts["org.mate.screenshot last-save-directory"] = inHome(name).address();
        EXPECT_EQ(mate.value(location), PreferenceValue(inHome(name).path()));
    }
}

TEST_F(ScreenshotToolTest, DistinguishesASetFolderFromTheToolsDefault) {
    EXPECT_EQ(domain("ksnip").origin(location), "the default of ksnip");
    setFolder("ksnip", makeFolder("other"));
    EXPECT_EQ(domain("ksnip").origin(location), "a setting of ksnip");
    EXPECT_EQ(domain("gnome-shell").origin(showThumbnail), "the default of gnome-shell");
}

TEST_F(ScreenshotToolTest, PreviewsAreReadAndSwitched) {
    const std::map<std::string, std::string> hidden{
        {"spectacle.notifyrc", "[Event/newScreenshotSaved]\nAction=\n"},
        {"flameshot/flameshot.ini", "[General]\nshowDesktopNotification=false\n"},
        {"ksnip/ksnip.conf", "[Application]\nTrayIconNotificationsEnabled=false\n"}};
    for (const auto* tool : {"spectacle", "flameshot", "ksnip"}) {
        EXPECT_TRUE(shows(tool)) << tool;
        setShows(tool, false);
        EXPECT_FALSE(shows(tool)) << tool;
    }
    for (const auto& [file, text] : hidden) EXPECT_EQ(configuration(file), text);
    for (const auto* tool : {"spectacle", "flameshot", "ksnip"}) {
        setShows(tool, true);
        EXPECT_TRUE(shows(tool)) << tool;
    }
    for (const auto& [file, text] : hidden)
        EXPECT_EQ(configuration(file), text.substr(0, text.find('\n') + 1)) << "as it was";
}

TEST_F(ScreenshotToolTest, APreviewIsRestoredAsItWas) {
    writeIn(".config/spectacle.notifyrc", "[Event/newScreenshotSaved]\nAction=Popup|Sound\n");
    setShows("spectacle", false);
    EXPECT_THAT(configuration("spectacle.notifyrc"), HasSubstr("Action=Sound\n"));
    setShows("spectacle", true);
    EXPECT_THAT(configuration("spectacle.notifyrc"), HasSubstr("Action=Popup|Sound\n"));
    writeIn(".config/flameshot/flameshot.ini", "[General]\nshowDesktopNotification=false\n");
    setShows("flameshot", true);
    EXPECT_TRUE(shows("flameshot")) << "though it was off before";
}

TEST_F(ScreenshotToolTest, ReportsAndKeepsWhatCannotBeChanged) {
    nameThePictures();
    EXPECT_FALSE(domain("gnome-shell").obstacle(location).empty());
    setFolder("gnome-shell", makeFolder("other"));
    EXPECT_EQ(folderOf("gnome-shell"), "Bilder/Screenshots");
    for (const auto& [tool, isShown] :
         {std::pair("gnome-shell", true), std::pair("mate-screenshot", true),
          std::pair("screengrab", true), std::pair("gnome-screenshot", false),
          std::pair("xfce4-screenshooter", false)}) {
        EXPECT_FALSE(domain(tool).obstacle(showThumbnail).empty()) << tool;
        setShows(tool, !isShown);
        EXPECT_EQ(shows(tool), isShown) << tool;
    }
    for (const auto* tool : {"spectacle", "flameshot", "ksnip"}) {
        EXPECT_EQ(domain(tool).obstacle(location), "") << tool;
        EXPECT_EQ(domain(tool).obstacle(showThumbnail), "") << tool;
    }
    for (const auto* tool :
         {"gnome-screenshot", "mate-screenshot", "screengrab", "xfce4-screenshooter"})
        EXPECT_EQ(domain(tool).obstacle(location), "") << tool;
}

TEST_F(ScreenshotToolTest, ADamagedOrHugeFileGivesTheDefaultAndOneLogLineAndIsNotOverwritten) {
    for (const auto& [tool, place] : files) {
        for (const auto& damage :
             {place.second + "=~/gone\n" + std::string("\0\x01", 2), std::string(2 << 20, '\n')}) {
            fakes::CapturedLog lines;
            writeIn(place.first, damage);
            const std::string before = readText(inHome(place.first));
            auto preferences = domain(tool);
            EXPECT_EQ(
                preferences.value(location),
                PreferenceValue(inHome(tool == "spectacle" ? "Pictures/Screenshots" : "").path()));
            preferences.setValue(location, makeFolder("other").path());
            EXPECT_NE(preferences.value(location), PreferenceValue(inHome("other").path()));
            EXPECT_FALSE(preferences.obstacle(location).empty());
            (void)preferences.value(showThumbnail);
            preferences.setValue(showThumbnail, false);
            EXPECT_EQ(readText(inHome(place.first)), before) << tool;
            EXPECT_THAT(lines.lines(), ElementsAre(HasSubstr(inHome(place.first).path()))) << tool;
        }
    }
}

TEST_F(ScreenshotToolTest, AnUnreadableFileGivesTheDefaultAndOneLogLineAndIsNotOverwritten) {
    makeFolder("old");
    makeFolder("other");
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=~/old\n");
    {
        const Locked locked(inHome(".config/ksnip/ksnip.conf"), std::filesystem::perms::none);
        auto preferences = domain("ksnip");
        EXPECT_EQ(preferences.value(location), PreferenceValue(home.path()));
        preferences.setValue(location, inHome("other").path());
        EXPECT_EQ(preferences.value(location), PreferenceValue(home.path()));
        EXPECT_THAT(preferences.obstacle(location), HasSubstr("cannot be read"));
    }
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("Permission denied")));
    EXPECT_EQ(folderOf("ksnip"), "old");
}

TEST_F(ScreenshotToolTest, AReadOnlyFileIsReadAndNotOverwritten) {
    makeFolder("old");
    makeFolder("other");
    writeIn(".config/ksnip/ksnip.conf", "[Application]\nSaveDirectory=~/old\n");
    std::filesystem::permissions(inHome(".config/ksnip/ksnip.conf").path(),
                                 std::filesystem::perms::owner_read);
    auto preferences = domain("ksnip");
    EXPECT_THAT(preferences.obstacle(location), HasSubstr("is read-only."));
    preferences.setValue(location, inHome("other").path());
    preferences.setValue(showThumbnail, false);
    EXPECT_EQ(preferences.value(location), PreferenceValue(inHome("old").path()));
    EXPECT_EQ(preferences.value(showThumbnail), PreferenceValue(true));
    EXPECT_EQ(configuration("ksnip/ksnip.conf"),
              "[Application]\nSaveDirectory=" + inHome("old").path() + "\n");
}

TEST_F(ScreenshotToolTest, ChangesNothingThatItCannotRestore) {
    const Url other = makeFolder("other");
    auto preferences = domain("mate-screenshot", Url::file("/proc/none/memory.conf"));
    preferences.setValue(location, other.path());
    EXPECT_EQ(settings->texts["org.mate.screenshot last-save-directory"], "");
}

TEST_F(ScreenshotToolTest, AnUnknownSchemaGivesTheDefaultAndOneLogLine) {
    settings->texts.clear();
    auto preferences = domain("mate-screenshot");
    EXPECT_EQ(preferences.value(location), PreferenceValue(inHome("Desktop").path()));
    preferences.setValue(location, home.path());
    EXPECT_EQ(preferences.value(location), PreferenceValue(inHome("Desktop").path()));
    EXPECT_FALSE(preferences.obstacle(location).empty());
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("No such schema")));
}

TEST_F(ScreenshotToolTest, ReportsASettingThatTheAdministratorLocked) {
    settings->locked = true;
    EXPECT_FALSE(domain("gnome-screenshot").obstacle(location).empty());
    setFolder("gnome-screenshot", makeFolder("other"));
    EXPECT_EQ(folderOf("gnome-screenshot"), ".");
}

TEST_F(ScreenshotToolTest, TheNameThatSpectacleStoredCountsInAnyLanguage) {
    nameThePictures();
    writeIn(".config/spectaclerc",
            "[ImageSave]\ntranslatedScreenshotsFolder=\\sFotos\n"
            "[VideoSave]\ntranslatedScreencastsFolder=Filme\n");
    EXPECT_EQ(folderOf("spectacle"), "Bilder/ Fotos");
    EXPECT_EQ(recordingsFolderOf("spectacle"), "Videos/Filme");
}

TEST_F(ScreenshotToolTest, SpectacleForQt5HasItsOwnFolderAndSetting) {
    installSpectacleForQt5();
    writeIn(".config/spectaclerc", "[ImageSave]\nimageSaveLocation=/nowhere\n");
    EXPECT_EQ(folderOf("spectacle"), "Pictures");
    setFolder("spectacle", makeFolder("fresh"));
    EXPECT_EQ(folderOf("spectacle"), "fresh");
    EXPECT_THAT(configuration("spectaclerc"), HasSubstr("[Save]\ndefaultSaveLocation="));
    EXPECT_THAT(configuration("spectaclerc"), HasSubstr("imageSaveLocation=/nowhere\n"));
    EXPECT_EQ(recordingsFolderOf("spectacle"), "none");
}

TEST_F(ScreenshotToolTest, TheLaterSpectacleDoesNotUseTheSettingOfTheOneForQt5) {
    makeFolder("old");
    writeIn(".config/spectaclerc", "[Save]\ndefaultSaveLocation=~/old\n");
    EXPECT_EQ(folderOf("spectacle"), "Pictures/Screenshots");
}

TEST_F(ScreenshotToolTest, TheLaterOfTwoSpectaclesCounts) {
    installSpectacleForQt5();
    writeIn("local/share/knotifications6/spectacle.notifyrc", "");
    EXPECT_EQ(folderOf("spectacle"), "Pictures/Screenshots");
}

TEST_F(ScreenshotToolTest, FindsTheFolderOfTheDesktopsRecorder) {
    EXPECT_EQ(recordingsFolderOf("spectacle"), "Videos/Screencasts");
    EXPECT_EQ(recordingsFolderOf("gnome-shell"), "Screencasts");
    writeIn(".config/user-dirs.dirs", "XDG_VIDEOS_DIR=\"$HOME/Filme\"\n");
    EXPECT_EQ(recordingsFolderOf("spectacle"), "Filme/Screencasts");
    EXPECT_EQ(recordingsFolderOf("gnome-shell"), "Filme/Screencasts");
    for (const auto* tool : {"xfce4-screenshooter", "gnome-screenshot", "mate-screenshot",
                             "flameshot", "ksnip", "screengrab"})
        EXPECT_EQ(recordingsFolderOf(tool), "none") << tool;
    EXPECT_FALSE(std::filesystem::exists(inHome("Filme").path())) << "nothing is made";
}

TEST_F(ScreenshotToolTest, TheFolderForRecordingsCanBeChosen) {
    for (const auto* text : {"file://~/a%20b", "~/a b", "file://~/a%20b/"}) {
        writeIn(".config/spectaclerc",
                std::string("[VideoSave]\nvideoSaveLocation=") + text + "\n");
        EXPECT_EQ(recordingsFolderOf("spectacle"), "a b") << text;
    }
    writeIn(".config/spectaclerc", "[VideoSave]\nvideoSaveLocation=else\n");
    EXPECT_EQ(recordingsFolderOf("spectacle"), "Videos/Screencasts");
    setFolder("spectacle", makeFolder("other"));
    EXPECT_EQ(recordingsFolderOf("spectacle"), "Videos/Screencasts");
}

TEST_F(ScreenshotToolTest, OtherKeysHaveNoValue) {
    auto preferences = domain("ksnip");
    preferences.setValue("name", std::string("x"));
    preferences.setValue(location, true);
    preferences.restore("name");
    EXPECT_EQ(preferences.value("name"), std::nullopt);
    EXPECT_EQ(preferences.obstacle("name"), "");
    EXPECT_FALSE(std::filesystem::exists(inHome(".config").path()));
}

}  // namespace
}  // namespace vantle
