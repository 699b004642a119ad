#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPalette>

#include "panel/views/Appearance.h"

namespace vantle {
namespace {

class AppearanceTest : public testing::Test {
protected:
    AppearanceTest() : before(QGuiApplication::palette()) { Appearance::follow(&desktop); }
    ~AppearanceTest() override {
        Appearance::follow(nullptr);
        QGuiApplication::setPalette(before);
    }

    static void setPalette(const QColor& window, const QColor& text) {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Highlight, Qt::magenta);
        QGuiApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }

    QPalette before;
    DesktopAppearance desktop;
};

TEST_F(AppearanceTest, TheDesktopsPreferenceDecides) {
    setPalette(Qt::white, Qt::black);
    desktop.look.set({.scheme = ColorScheme::dark});
    const Appearance appearance;
    EXPECT_TRUE(appearance.isDark());
    EXPECT_GT(appearance.primary().lightness(), 200);
    EXPECT_LT(appearance.windowBackground().lightness(), 80);
    desktop.look.set({.scheme = ColorScheme::light});
    EXPECT_FALSE(appearance.isDark());
    EXPECT_LT(appearance.primary().lightness(), 50);
}

TEST_F(AppearanceTest, AWindowFollowsThePreferenceWithAnyPalette) {
    const Appearance appearance;
    setPalette(Qt::white, Qt::black);
    desktop.look.set({.scheme = ColorScheme::dark});
    EXPECT_EQ(appearance.windowBackground(), QColor(40, 40, 43));
    setPalette(Qt::black, Qt::white);
    desktop.look.set({.scheme = ColorScheme::light});
    EXPECT_EQ(appearance.windowBackground(), QColor(239, 239, 241));
    setPalette(QColor(230, 231, 232), Qt::black);
    EXPECT_EQ(appearance.windowBackground(), QColor(230, 231, 232));
}

TEST_F(AppearanceTest, ThePaletteDecidesWithoutAPreference) {
    const Appearance appearance;
    setPalette(Qt::black, Qt::white);
    EXPECT_TRUE(appearance.isDark());
    setPalette(Qt::white, Qt::black);
    EXPECT_FALSE(appearance.isDark());
    EXPECT_EQ(appearance.windowBackground(), QColor(Qt::white));
}

TEST_F(AppearanceTest, ReportsEachChange) {
    const Appearance appearance;
    int changes = 0;
    QObject::connect(&appearance, &Appearance::changed, &appearance, [&] { ++changes; });
    desktop.look.set({.scheme = ColorScheme::dark});
    EXPECT_EQ(changes, 1);
    setPalette(Qt::black, Qt::white);
    EXPECT_GE(changes, 2);
}

TEST_F(AppearanceTest, TheAccentIsThatOfTheDesktopOrThePalettesHighlight) {
    setPalette(Qt::white, Qt::black);
    const Appearance appearance;
    EXPECT_EQ(appearance.accent(), QColor(Qt::magenta));
    desktop.look.set({.accent = Color{1, 0.5, 0}});
    EXPECT_EQ(appearance.accent().rgb(), qRgb(255, 128, 0));
}

TEST_F(AppearanceTest, FontsCanHaveHalfPixels) {
    QFont small;
    small.setPointSizeF(Appearance::fontPoints(10.5));
    QFont smaller;
    smaller.setPointSizeF(Appearance::fontPoints(10));
    QFont whole;
    whole.setPixelSize(10);
    EXPECT_EQ(QFontMetricsF(smaller).horizontalAdvance(QStringLiteral("Screenshot")),
              QFontMetricsF(whole).horizontalAdvance(QStringLiteral("Screenshot")));
    EXPECT_GT(QFontMetricsF(small).horizontalAdvance(QStringLiteral("Screenshot")),
              QFontMetricsF(whole).horizontalAdvance(QStringLiteral("Screenshot")));
}

TEST_F(AppearanceTest, LessMotionIsPassedOn) {
    const Appearance appearance;
    EXPECT_FALSE(appearance.reducesMotion());
    desktop.look.set({.reducesMotion = true});
    EXPECT_TRUE(appearance.reducesMotion());
}

}  // namespace
}  // namespace vantle
