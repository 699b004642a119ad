#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>
#include <limits>

#include "ScreenStage.h"
#include "support/Version.h"

namespace vantle {
namespace {

const QString keepToggle = QStringLiteral("Keep captures until dismissed (recommended)");
const QString slider = QStringLiteral("Otherwise dismiss after");

class SettingsViewTest : public testing::Test, protected ScreenStage {
protected:
    /// Returns the stored value after the slider has rested.
    double storedSeconds() {
        time.advance(Seconds(1));
        return settings->dismissAfter.value();
    }
    bool isOn(const QString& toggle) { return named(toggle).property("checked").toBool(); }
    static MenuWindow* openMenu() {
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* menu = dynamic_cast<MenuWindow*>(window); menu && menu->isVisible())
                return menu;
        return nullptr;
    }
    double sliderValue() { return named(slider).property("value").toDouble(); }
};

TEST_F(SettingsViewTest, ItHasTheTextsInTheirOrder) {
    openSettings();
    const QStringList expected{
        "SCREENSHOTS ARE SAVED TO",
        "~/Desktop",
        "Change",
        "Captures",
        "Keep captures until dismissed (recommended)",
        "Pin a capture to keep it past the timer.",
        "Otherwise dismiss after",
        "—",
        "After I use a capture",
        "Using = dragging, opening, copying, sharing or revealing.",
        "Remove it from Vantle",
        "Keep it in Vantle",
        "Move the file to the Trash after I use it",
        "After dragging or copying. Recoverable from the Trash.",
        "Also show screen recordings",
        "Copy screenshot to clipboard automatically",
        "Panel & app",
        "Show panel in",
        "Bottom Right",
        "Hide the built-in macOS thumbnail",
        "Recommended. Captures reach Vantle instantly instead of after Apple's preview.",
        "Open Vantle at login",
        "Also show Vantle in the Dock",
        "Useful if the menu bar icon is hidden under the notch.",
        "Vantle " + QString::fromUtf8(version.data(), version.size()),
        "Test with a sample"};
    EXPECT_EQ(texts(), expected);
    EXPECT_EQ(window().title(), QStringLiteral("Vantle Settings"));
}

TEST_F(SettingsViewTest, DismissAfter0SwitchesTheToggleOnAndDimsTheSlider) {
    openSettings();
    EXPECT_TRUE(isOn(keepToggle));
    const QQuickItem* block = named(slider).parentItem();
    const QQuickItem* words = block->childItems().front();
    const auto* handle = named(slider).property("handle").value<QQuickItem*>();
    const auto* background = named(slider).property("background").value<QQuickItem*>();
    const auto colour = [](const QQuickItem* item) {
        return item->property("color").value<QColor>();
    };
    EXPECT_DOUBLE_EQ(words->opacity(), 0.45);
    EXPECT_EQ(colour(handle).alpha(), 255) << "the line does not shine through it";
    EXPECT_NE(colour(handle), QColor(Qt::white)) << "it stands out on a white ground";
    EXPECT_LT(colour(background->childItems().front()).alphaF(), 0.5);
    EXPECT_FALSE(block->isEnabled());
    click(keepToggle);
    EXPECT_DOUBLE_EQ(words->opacity(), 1);
    EXPECT_EQ(colour(handle), QColor(Qt::white));
    EXPECT_EQ(colour(background->childItems().front()).alphaF(), 1);
    EXPECT_TRUE(block->isEnabled());
}

TEST_F(SettingsViewTest, TheKeepToggleStoresZeroAndRestoresTheSeconds) {
    settings->dismissAfter.set(30);
    openSettings();
    EXPECT_FALSE(isOn(keepToggle));
    click(keepToggle);
    EXPECT_EQ(settings->dismissAfter.value(), 0);
    EXPECT_TRUE(has(QStringLiteral("—")));
    click(keepToggle);
    EXPECT_EQ(settings->dismissAfter.value(), 30);
    EXPECT_TRUE(has(QStringLiteral("30 seconds")));
}

TEST_F(SettingsViewTest, TheSliderNeverOffersValuesBelow3OrAbove120) {
    settings->dismissAfter.set(10);
    openSettings();
    QQuickItem& item = named(slider);
    item.forceActiveFocus();
    press(Qt::Key_Home);
    EXPECT_EQ(storedSeconds(), 3);
    press(Qt::Key_Left);
    press(Qt::Key_PageDown);
    EXPECT_EQ(storedSeconds(), 3);
    press(Qt::Key_End);
    EXPECT_EQ(storedSeconds(), 120);
    press(Qt::Key_Right);
    press(Qt::Key_PageUp);
    EXPECT_EQ(storedSeconds(), 120);
    item.setProperty("value", 1000);
    EXPECT_EQ(storedSeconds(), 120);
    settings->dismissAfter.set(40);
    settle();
    EXPECT_EQ(sliderValue(), 40);
}

TEST_F(SettingsViewTest, TheSliderGoesInWholeSeconds) {
    settings->dismissAfter.set(10);
    openSettings();
    QQuickItem& item = named(slider);
    const QRectF place = frame(item);
    for (const double part : {0.13, 0.37, 0.5, 0.81, 0.99}) {
        const QPoint point(qRound(place.left() + part * place.width()), qRound(place.center().y()));
        QTest::mouseClick(&window(), Qt::LeftButton, {}, point);
        settle();
        const double seconds = storedSeconds();
        EXPECT_EQ(seconds, std::round(seconds));
        EXPECT_NEAR(seconds, 3 + part * 117, 4);
        EXPECT_EQ(sliderValue(), seconds);
    }
}

TEST_F(SettingsViewTest, PageKeysKeepWholeSteps) {
    settings->dismissAfter.set(7.5);
    openSettings();
    named(slider).forceActiveFocus();
    press(Qt::Key_PageUp);
    EXPECT_EQ(storedSeconds(), 18);
    press(Qt::Key_PageDown);
    EXPECT_EQ(storedSeconds(), 8);
}

TEST_F(SettingsViewTest, NumbersThatTheSliderDoesNotOfferAreKept) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double seconds : {500.0, -5.0, 0.5, 7.25, notANumber}) {
        settings->dismissAfter.set(seconds);
        openSettings();
        const double now = settings->dismissAfter.value();
        EXPECT_TRUE(now == seconds || (std::isnan(now) && std::isnan(seconds))) << seconds;
        EXPECT_GE(sliderValue(), 3);
        EXPECT_LE(sliderValue(), 120);
    }
}

struct Toggle {
    const char* name;
    std::function<bool(const Settings&)> value;
};

class ToggleTest : public testing::TestWithParam<Toggle>, protected ScreenStage {};

TEST_P(ToggleTest, ItIsChangedByTheMouseAndByKeysAndFollowsTheSetting) {
    const auto& [name, value] = GetParam();
    openSettings();
    const bool before = value(*settings);
    const QString title = QString::fromUtf8(name);
    EXPECT_EQ(named(title).property("checked").toBool(), before);
    click(title);
    EXPECT_EQ(value(*settings), !before);
    EXPECT_EQ(named(title).property("checked").toBool(), !before);
    press(Qt::Key_Space);
    EXPECT_EQ(value(*settings), before);
    EXPECT_EQ(named(title).property("checked").toBool(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, ToggleTest,
    testing::Values(Toggle{"Keep captures until dismissed (recommended)",
                           [](const Settings& s) { return s.dismissAfter.value() == 0; }},
                    Toggle{"Move the file to the Trash after I use it",
                           [](const Settings& s) { return s.deleteAfterUse.value(); }},
                    Toggle{"Also show screen recordings",
                           [](const Settings& s) { return s.showRecordings.value(); }},
                    Toggle{"Copy screenshot to clipboard automatically",
                           [](const Settings& s) { return s.copyOnCapture.value(); }},
                    Toggle{"Hide the built-in macOS thumbnail",
                           [](const Settings& s) { return s.hideSystemThumbnail.value(); }},
                    Toggle{"Open Vantle at login",
                           [](const Settings& s) { return s.launchAtLogin.value(); }},
                    Toggle{"Also show Vantle in the Dock",
                           [](const Settings& s) { return s.showInDock.value(); }}),
    [](const auto& toggle) {
        std::string name = toggle.param.name;
        std::erase_if(name, [](char letter) { return !std::isalnum(letter); });
        return name;
    });

TEST_F(SettingsViewTest, TheChoiceAfterUse) {
    openSettings();
    const QString remove = QStringLiteral("Remove it from Vantle");
    const QString keep = QStringLiteral("Keep it in Vantle");
    EXPECT_TRUE(isOn(remove));
    click(keep);
    EXPECT_FALSE(settings->removeAfterUse.value());
    EXPECT_TRUE(isOn(keep));
    EXPECT_FALSE(isOn(remove));
    click(keep);
    EXPECT_FALSE(settings->removeAfterUse.value());
    press(Qt::Key_Left);
    press(Qt::Key_Space);
    EXPECT_TRUE(settings->removeAfterUse.value());
    EXPECT_TRUE(isOn(remove));
}

TEST_F(SettingsViewTest, AChangeFromElsewhereIsShown) {
    openSettings();
    settings->showRecordings.set(false);
    settings->corner.set(PanelCorner::topLeft);
    settings->screenshotFolder.set(Url::file("/data/shots"));
    settle();
    EXPECT_FALSE(isOn(QStringLiteral("Also show screen recordings")));
    EXPECT_TRUE(has(QStringLiteral("Top Left")));
    EXPECT_TRUE(has(QStringLiteral("/data/shots")));
    // This also works after the user has changed the control.
    click(QStringLiteral("Also show screen recordings"));
    settings->showRecordings.set(false);
    settle();
    EXPECT_FALSE(isOn(QStringLiteral("Also show screen recordings")));
}

TEST_F(SettingsViewTest, TheSwitchGoesBackIfTheLoginItemCannotBeMade) {
    loginItem->failure = Failure{EACCES, "refused", ""};
    openSettings();
    const QString login = QStringLiteral("Open Vantle at login");
    for (int i = 0; i < 2; ++i) {
        click(login);
        EXPECT_FALSE(settings->launchAtLogin.value());
        EXPECT_FALSE(isOn(login));
    }
}

TEST_F(SettingsViewTest, AFolderThatCannotBeChangedIsShownWithTheReason) {
    preferences->obstacles["location"] = "GNOME always saves screenshots in this folder.";
    openSettings();
    EXPECT_TRUE(has(QStringLiteral("~/Desktop")));
    EXPECT_TRUE(has(QStringLiteral("GNOME always saves screenshots in this folder.")));
    EXPECT_FALSE(named(QStringLiteral("Change")).isEnabled());
    click(QStringLiteral("Change"));
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(SettingsViewTest, ShowsTheFolderOfTheDesktopsRecorderUnderItsSwitch) {
    Url recordings = Url::file("/home/user/Videos/Screencasts");
    platform.recordingsFolder = [&recordings] { return recordings; };
    openSettings();
    EXPECT_TRUE(has(QStringLiteral("Your desktop saves them in ~/Videos/Screencasts.")));
    window().close();
    recordings = Url::file("/data/casts");
    window().makeKeyAndOrderFront();
    settle();
    EXPECT_TRUE(has(QStringLiteral("Your desktop saves them in /data/casts.")));
}

TEST_F(SettingsViewTest, ShowsNoFolderWithoutARecorderOfTheDesktop) {
    openSettings();
    EXPECT_TRUE(texts().filter(QStringLiteral("Your desktop saves them")).isEmpty());
}

TEST_F(SettingsViewTest, AThumbnailThatCannotBeSwitchedIsShownAsItIsWithTheReason) {
    const QString hide = QStringLiteral("Hide the built-in macOS thumbnail");
    const QString caption = QStringLiteral(
        "Recommended. Captures reach Vantle instantly instead of after Apple's preview.");
    preferences->obstacles["show-thumbnail"] = "GNOME always shows its own preview.";
    openSettings();
    EXPECT_TRUE(texts().contains(QStringLiteral("GNOME always shows its own preview.")));
    EXPECT_FALSE(texts().contains(caption));
    EXPECT_FALSE(named(hide).isEnabled());
    click(hide);
    EXPECT_FALSE(isOn(hide));
    window().close();
    preferences->obstacles.clear();
    window().makeKeyAndOrderFront();
    settle();
    EXPECT_TRUE(texts().contains(caption));
    EXPECT_TRUE(named(hide).isEnabled());
}

TEST_F(SettingsViewTest, ExplainsWhyTheDockCannotBeChosen) {
    const QString dock = QStringLiteral("Also show Vantle in the Dock");
    application->policyObstacle = "The desktop decides that.";
    openSettings();
    EXPECT_TRUE(texts().contains(QStringLiteral("The desktop decides that.")));
    EXPECT_FALSE(named(dock).isEnabled());
    click(dock);
    EXPECT_FALSE(settings->showInDock.value());
}

TEST_F(SettingsViewTest, TheSwitchGoesBackIfTheThumbnailCannotBeHidden) {
    openSettings();
    const QString hide = QStringLiteral("Hide the built-in macOS thumbnail");
    // Simulates a tool whose settings turn out to be read-only.
    preferences->obstacles["show-thumbnail"] = "They are read-only.";
    click(hide);
    EXPECT_FALSE(isOn(hide));
    EXPECT_FALSE(settings->hideSystemThumbnail.value());
    EXPECT_TRUE(texts().contains(QStringLiteral("They are read-only.")));
}

TEST_F(SettingsViewTest, TheKeepToggleFollowsWhenTheWindowIsShownAgain) {
    openSettings();
    window().close();
    settings->dismissAfter.set(15);
    window().makeKeyAndOrderFront();
    settle();
    EXPECT_FALSE(isOn(keepToggle));
    EXPECT_TRUE(has(QStringLiteral("15 seconds")));
}

TEST_F(SettingsViewTest, TheFolderMenuOpensAtTheButtonAndSetsTheFolder) {
    openSettings();
    click(QStringLiteral("Change"));
    MenuWindow* menu = openMenu();
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    settle();
    EXPECT_EQ(settings->screenshotFolder.value(), Url::file("/home/user/Screenshots"));
    EXPECT_TRUE(has(QStringLiteral("~/Screenshots")));
}

TEST_F(SettingsViewTest, TheCornerMenuBeginsAtTheChosenCorner) {
    settings->corner.set(PanelCorner::topRight);
    openSettings();
    named(QStringLiteral("Show panel in")).forceActiveFocus();
    press(Qt::Key_Space);
    MenuWindow* menu = openMenu();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->model().current(), 2);
    EXPECT_EQ(menu->model().item(2).symbol, "checkmark");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    settle();
    EXPECT_EQ(settings->corner.value(), PanelCorner::topLeft);
    EXPECT_TRUE(has(QStringLiteral("Top Left")));
}

TEST_F(SettingsViewTest, TheButtonRequestsASample) {
    openSettings();
    click(QStringLiteral("Test with a sample"));
    EXPECT_EQ(samples, 1);
}

TEST_F(SettingsViewTest, EscapeAndTheKeyForClosingHideIt) {
    openSettings();
    press(Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    window().makeKeyAndOrderFront();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(SettingsViewTest, TabReachesEveryControlOnceAndScrollsToIt) {
    settings->dismissAfter.set(10);
    openSettings({480, 300});
    QStringList reached;
    for (int i = 0; i < 40; ++i) {
        press(Qt::Key_Tab);
        const QQuickItem* item = window().activeFocusItem();
        const QString name = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item))
                                 ->text(QAccessible::Name);
        if (reached.contains(name)) break;
        reached << name;
        const QRectF place = frame(*item);
        EXPECT_GE(place.top(), 0) << name.toStdString();
        EXPECT_LE(place.bottom(), window().height()) << name.toStdString();
        EXPECT_TRUE(item->property("visualFocus").toBool()) << name.toStdString();
    }
    const QStringList expected{"Change",
                               "Keep captures until dismissed (recommended)",
                               "Otherwise dismiss after",
                               "Remove it from Vantle",
                               "Keep it in Vantle",
                               "Move the file to the Trash after I use it",
                               "Also show screen recordings",
                               "Copy screenshot to clipboard automatically",
                               "Show panel in",
                               "Hide the built-in macOS thumbnail",
                               "Open Vantle at login",
                               "Also show Vantle in the Dock",
                               "Test with a sample"};
    EXPECT_EQ(reached, expected);
}

TEST_F(SettingsViewTest, TabSkipsTheSliderWithoutATimer) {
    openSettings();
    named(keepToggle).forceActiveFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(window().activeFocusItem(), &named(QStringLiteral("Remove it from Vantle")));
}

TEST_F(SettingsViewTest, ASnapshotIsDrawnOffscreenAtItsScale) {
    openSettings();
    const QImage shown = picture();
    window().close();
    const auto png = window().snapshot(2);
    ASSERT_TRUE(png);
    const QImage drawn = QImage::fromData(QByteArray::fromStdString(*png), "PNG");
    EXPECT_EQ(drawn.size(), QSize(960, 1720));
    // The pictures are equal except for the edges of letters.
    const QImage small = drawn.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            sum += std::abs(qGray(small.pixel(x, y)) - qGray(shown.pixel(x, y)));
    EXPECT_LT(sum / (small.width() * small.height()), 4);
}

}  // namespace
}  // namespace vantle
