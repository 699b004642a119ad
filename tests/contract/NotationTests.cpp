#include <gtest/gtest.h>

#include <string>

#include "platform/linux/screenshots/Escapes.h"
#include "platform/linux/screenshots/Notations.h"

namespace vantle {
namespace {

std::optional<std::string> variable(const std::string& name) {
    if (name == "HOME") return "/home/anna";
    return std::nullopt;
}

TEST(NotationTest, QtEscapesOfBothVersionsAreRead) {
    EXPECT_EQ(fromQtEscapes("/home/Bild \\xf6"), "/home/Bild ö");
    EXPECT_EQ(fromQtEscapes("/home/Bild ö"), "/home/Bild ö");
    EXPECT_EQ(fromQtEscapes("\\x30b9\\x30af\\x30ea"), "スクリ");
    EXPECT_EQ(fromQtEscapes("a\\xe9\\x61z"), "aéaz") << "the digit after an escape is one, too";
    EXPECT_EQ(fromQtEscapes("\\xd83d\\xdcf7"), "📷");
    EXPECT_EQ(fromQtEscapes("\"/a,b; \\\"c\\\" \""), "/a,b; \"c\" ");
    EXPECT_EQ(fromQtEscapes("C:\\\\x"), "C:\\x");
}

TEST(NotationTest, BrokenQtEscapesAreHarmless) {
    for (const auto* text : {"\\", "\\x", "a\\xzz", "\\xd83d", "\\xdcf7\\xd83d", "\"", "\\x0", ""})
        (void)fromQtEscapes(text);
    EXPECT_EQ(fromQtEscapes("a\\xd83d/b"), "a/b");
}

TEST(NotationTest, QtEscapesAreReadBackAsWritten) {
    for (const auto* text : {"/home/anna", "/Bild ö %41", "/aéa1f/é0", "/スクリーンショット",
                             "/📷 a", "/a,b;c=d", "/ \"quoted\" \\ ", "/new\nline\ttab"}) {
        const auto written = toQtEscapes(text);
        ASSERT_TRUE(written.has_value());
        EXPECT_EQ(fromQtEscapes(*written), text) << *written;
        for (const char one : *written) EXPECT_TRUE(one >= 0x20 && one < 0x7f) << *written;
    }
    EXPECT_EQ(toQtEscapes("/a b"), "/a b");
    EXPECT_EQ(toQtEscapes("/\xff"), std::nullopt);
}

TEST(NotationTest, BackslashEscapesOfKdeAndXfceAreRead) {
    EXPECT_EQ(fromBackslashEscapes("\\sa\\tb\\n\\\\c\\x41"), " a\tb\n\\cA");
    EXPECT_EQ(fromBackslashEscapes("a\\qb\\"), "a\\qb\\");
}

TEST(NotationTest, VariablesAreExpanded) {
    EXPECT_EQ(expandingVariables("$HOME/a", variable), "/home/anna/a");
    EXPECT_EQ(expandingVariables("${HOME}a", variable), "/home/annaa");
    EXPECT_EQ(expandingVariables("$HOMEWARD/$", variable), "/$");
}

TEST(NotationTest, ReadsTheAddressesOfEachTool) {
    const auto xfce = xfceAddress();
    EXPECT_EQ(xfce.read("file:/home/anna/a"), "/home/anna/a");
    EXPECT_EQ(xfce.read("file:///home/anna/a%20b"), "/home/anna/a b");
    EXPECT_EQ(xfce.read("file:/home/anna/100%"), "/home/anna/100%");
    EXPECT_EQ(xfce.read("/home/anna/a%20b"), "/home/anna/a%20b");

    const auto kde = kdeAddress(variable);
    EXPECT_EQ(kde.read("file:///home/anna/a%20b"), "/home/anna/a b");
    EXPECT_EQ(kde.read("file:///home/anna/a b/"), "/home/anna/a b");
    EXPECT_EQ(kde.read("/home/anna/a%20b"), "/home/anna/a b");
    EXPECT_EQ(kde.read("file://$HOME/a"), "/home/anna/a");
    EXPECT_EQ(kde.read("$HOME/a"), "/home/anna/a");

    const auto gnome = addressOrPath();
    EXPECT_EQ(gnome.read("file:///a%20b"), "/a b");
    EXPECT_EQ(gnome.read("/a%20b"), "/a%20b");
    EXPECT_EQ(gnome.read("~/a"), "~/a");
}

TEST(NotationTest, AFolderIsReadBackAsItWasWritten) {
    for (const auto& notation : {xfceAddress(), kdeAddress(variable), addressOrPath(), pathOfQt()})
        for (const auto* path :
             {"/a", "/a b", "/Bild ö %41", "/$HOME/100%", "/\\s\\x41", "/スク"}) {
            const auto written = notation.write(Url::file(path));
            ASSERT_TRUE(written.has_value());
            EXPECT_EQ(notation.read(*written), path) << *written;
        }
}

TEST(NotationTest, AnEventOfKdeKeepsItsOtherActions) {
    const auto popup = kdePopupAction();
    EXPECT_TRUE(popup.read("Popup"));
    EXPECT_TRUE(popup.read("Sound|Popup"));
    EXPECT_FALSE(popup.read(""));
    EXPECT_FALSE(popup.read("Sound|Taskbar"));
    EXPECT_EQ(popup.write("Popup", false), "");
    EXPECT_EQ(popup.write("Sound|Popup|Taskbar", false), "Sound|Taskbar");
    EXPECT_EQ(popup.write("", true), "Popup");
    EXPECT_EQ(popup.write("Sound", true), "Sound|Popup");
}

}  // namespace
}  // namespace vantle
