// Nothing is cut off and nothing overlaps, for any size of the window and its letters, in each
// language, and in both writing directions. VANTLE_KEEP_PICTURES=1 leaves a picture of each window
// in the working folder.

#include <gtest/gtest.h>

#include <QFont>
#include <QGuiApplication>
#include <cerrno>

#include "ScreenStage.h"
#include "Updates.h"
#include "platform/qt/translations/Translations.h"

namespace vantle {
namespace {

struct Circumstances {
    const char* name;
    Size size;
    int fontPixels;
    Qt::LayoutDirection direction;
    const char* language = "en";
};

class ScreenLayoutTest : public testing::TestWithParam<Circumstances>, protected ScreenStage {
protected:
    ScreenLayoutTest() : ownFont_(QGuiApplication::font()) {
        QFont font = ownFont_;
        font.setPixelSize(GetParam().fontPixels);
        QGuiApplication::setFont(font);
        translations_.install();
        QGuiApplication::setLayoutDirection(GetParam().direction);
        settings->setScreenshotFolder(Url::file(
            "/home/user/A folder with a long name/and one in it whose name is longer by far"));
        settings->dismissAfter.set(120);
    }
    ~ScreenLayoutTest() override {
        QGuiApplication::setFont(ownFont_);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    static std::string shown(const QQuickItem& item) {
        return item.property("text").toString().toStdString();
    }
    static bool overlap(const QRectF& a, const QRectF& b) {
        return a.adjusted(1, 1, -1, -1).intersects(b.adjusted(1, 1, -1, -1));
    }

    /// Returns the item that clips this one. A scrolled text cannot overlap what is beside its
    /// area.
    static const QQuickItem* area(const QQuickItem& item) {
        const QQuickItem* above = item.parentItem();
        while (above && !above->clip()) above = above->parentItem();
        return above;
    }

    void expectWhole(const QQuickItem& text) {
        const QRectF place = frame(text);
        EXPECT_GE(place.left(), 0) << shown(text);
        EXPECT_LE(place.right(), window().width()) << shown(text);
        EXPECT_LE(text.property("contentWidth").toDouble(), text.width() + 1) << shown(text);
        // A path may be longer than any window is wide.
        const bool isPath = shown(text).starts_with("~/");
        EXPECT_FALSE(text.property("truncated").toBool() && !isPath) << shown(text);
    }

    void expectApart(const QQuickItem& one, const QQuickItem& other) {
        if (&one == &other || area(one) != area(other)) return;
        EXPECT_FALSE(overlap(frame(one), frame(other))) << shown(one) << " over " << shown(other);
    }

    void expectOrder() {
        settle();
        const auto texts = textItems();
        ASSERT_FALSE(texts.empty());
        for (const QQuickItem* text : texts) {
            expectWhole(*text);
            for (const QQuickItem* other : texts) expectApart(*text, *other);
        }
        if (qEnvironmentVariableIsSet("VANTLE_KEEP_PICTURES")) keepPicture();
    }

    void keepPicture() {
        picture().save(QStringLiteral("%1-%2-%3.png")
                           .arg(QString::fromLatin1(GetParam().name), window().title())
                           .arg(++pictures_));
    }

private:
    const QFont ownFont_;
    Translations translations_{QStringLiteral(VANTLE_TRANSLATIONS),
                               {QString::fromLatin1(GetParam().language)}};
    int pictures_ = 0;
};

TEST_P(ScreenLayoutTest, TheSettings) {
    openSettings(GetParam().size);
    expectOrder();
}

TEST_P(ScreenLayoutTest, TheOnboarding) {
    files->failListing(settings->screenshotFolder.value(), EACCES);
    for (int step = 0; step < OnboardingSteps::stepCount; ++step) {
        openOnboarding(step, GetParam().size);
        expectOrder();
    }
}

TEST_P(ScreenLayoutTest, TheSettingsThatCannotBeChanged) {
    const std::string reason = "The tool's settings file flameshot.ini is read-only.";
    preferences->obstacles = {{"location", reason}, {"show-thumbnail", reason}};
    platform.recordingsFolder = [] { return Url::file("/data/" + std::string(200, 'w')); };
    openSettings(GetParam().size);
    expectOrder();
}

TEST_P(ScreenLayoutTest, TheUpdate) {
    for (const auto& [name, state] : updateStates()) {
        SCOPED_TRACE(name);
        openUpdate(state);
        expectOrder();
    }
}

constexpr Size smallest{480, 300};
constexpr Size usual{480, 860};
constexpr Size large{1400, 1000};
constexpr auto leftToRight = Qt::LeftToRight;
constexpr auto rightToLeft = Qt::RightToLeft;

INSTANTIATE_TEST_SUITE_P(
    Screens, ScreenLayoutTest,
    testing::Values(
        Circumstances{"smallest", smallest, 13, leftToRight},
        Circumstances{"large", large, 13, leftToRight},
        Circumstances{"usualWithLargeLetters", usual, 18, leftToRight},
        Circumstances{"smallestWithLargeLetters", smallest, 18, leftToRight},
        Circumstances{"usualWithHugeLetters", usual, 26, leftToRight},
        Circumstances{"smallestWithHugeLetters", smallest, 26, leftToRight},
        Circumstances{"largeWithHugeLetters", large, 26, leftToRight},
        Circumstances{"usualFromTheRight", usual, 13, rightToLeft},
        Circumstances{"usualWithHugeLettersFromTheRight", usual, 26, rightToLeft},
        Circumstances{"usualInGerman", usual, 13, leftToRight, "de"},
        Circumstances{"usualInFrench", usual, 13, leftToRight, "fr"},
        Circumstances{"usualInJapanese", usual, 13, leftToRight, "ja"},
        Circumstances{"smallestWithLargeLettersInGerman", smallest, 18, leftToRight, "de"},
        Circumstances{"smallestWithLargeLettersInFrench", smallest, 18, leftToRight, "fr"},
        Circumstances{"smallestWithLargeLettersInJapanese", smallest, 18, leftToRight, "ja"}),
    [](const auto& circumstances) { return std::string(circumstances.param.name); });

}  // namespace
}  // namespace vantle
