// All texts in the windows and on the card are in the user's language, and fit.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTranslator>
#include <set>
#include <string>

#include "CardStage.h"
#include "Scenes.h"
#include "ScreenStage.h"
#include "Updates.h"
#include "fakes/Pseudolanguage.h"
#include "platform/qt/translations/Translations.h"

namespace vantle {
namespace {

using testing::IsEmpty;

/// Puts brackets around every text that requests a translation from the toolkit; the language is
/// written from right to left.
class PseudoTranslator final : public QTranslator {
public:
    PseudoTranslator() { QCoreApplication::installTranslator(this); }
    ~PseudoTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                      int number) const override {
        if (qstrcmp(text, "QT_LAYOUT_DIRECTION") == 0) return QStringLiteral("RTL");
        return QStringLiteral("⟦%1⟧").arg(
            QString::fromUtf8(text).replace(QLatin1String("%n"), QString::number(number)));
    }
};

/// Collects the texts in a tree of items that did not request a translation.
void collectUntranslated(const QQuickItem& item, QStringList& found) {
    if (!item.isVisible()) return;
    if (item.inherits("QQuickText")) {
        const QString text = item.property("text").toString();
        const bool hasLetters =
            std::ranges::any_of(text, [](QChar letter) { return letter.isLetter(); });
        if (hasLetters && !text.contains(QChar(u'⟦'))) found << text;
    }
    for (const QQuickItem* child : item.childItems()) collectUntranslated(*child, found);
}

/// Returns the untranslated texts, except those that contain a text that must not be translated.
std::vector<std::string> untranslated(const QQuickItem& view, const QStringList& foreign) {
    QStringList found;
    collectUntranslated(view, found);
    std::vector<std::string> texts;
    for (const QString& text : found) {
        const auto isIn = [&](const QString& part) {
            return !part.isEmpty() && text.contains(part);
        };
        if (std::ranges::none_of(foreign, isIn)) texts.push_back(text.toStdString());
    }
    return texts;
}

class PseudolanguageTest : public testing::Test {
protected:
    const fakes::Pseudolanguage logic_;
    const PseudoTranslator views_;
};

TEST_F(PseudolanguageTest, EveryTextOfTheSettingsIsTranslated) {
    ScreenStage stage;
    stage.openSettings();
    EXPECT_THAT(untranslated(stage.view(), {QStringLiteral("~/Desktop")}), IsEmpty());
    EXPECT_EQ(stage.window().title(), QStringLiteral("⟦Vantle Settings⟧"));
}

TEST_F(PseudolanguageTest, EveryTextOfTheOnboardingIsTranslated) {
    for (int step = 0; step < OnboardingSteps::stepCount; ++step) {
        ScreenStage stage;
        stage.openOnboarding(step);
        EXPECT_THAT(untranslated(stage.view(), {QStringLiteral("~/Desktop")}), IsEmpty());
    }
}

TEST_F(PseudolanguageTest, EveryTextOfAnUpdateIsTranslatedExceptForTheUpdaterAndTheNotes) {
    for (const auto& [name, state] : updateStates()) {
        SCOPED_TRACE(name);
        ScreenStage stage;
        stage.openUpdate(state);
        const QStringList foreign{QString::fromStdString(state.message),
                                  QString::fromStdString(state.item.notes)};
        EXPECT_THAT(untranslated(stage.view(), foreign), IsEmpty());
    }
}

TEST_F(PseudolanguageTest, EveryTextOfTheCardIsTranslatedExceptForNamesOfFiles) {
    for (const Scene& scene : allScenes()) {
        SCOPED_TRACE(scene.name);
        CardStage stage;
        scene.set(stage);
        QStringList names;
        for (const QQuickItem* tile : stage.items("CaptureTile"))
            names << tile->property("fileName").toString();
        EXPECT_THAT(untranslated(*stage.window().contentItem(), names), IsEmpty());
    }
}

TEST(TranslationDirection, ALanguageFromRightToLeftMirrorsTheWindows) {
    ASSERT_TRUE(QGuiApplication::isLeftToRight());
    {
        const PseudoTranslator translator;
        EXPECT_TRUE(QGuiApplication::isRightToLeft());
    }
    EXPECT_TRUE(QGuiApplication::isLeftToRight());
}

class LanguageTest : public testing::TestWithParam<const char*> {
protected:
    LanguageTest() { translations_.install(); }

private:
    Translations translations_{QStringLiteral(VANTLE_TRANSLATIONS),
                               {QString::fromLatin1(GetParam())}};
};

/// On the card only names of files may be cut off. These scenes have all other texts.
TEST_P(LanguageTest, TheTextsOfTheCardFit) {
    const std::set<std::string> wanted{"one-hovered", "hovered", "selected", "recording"};
    for (const Scene& scene : allScenes()) {
        if (!wanted.contains(scene.name)) continue;
        CardStage stage;
        scene.set(stage);
        for (const QQuickItem* text : stage.items("QQuickText")) {
            if (!text->isVisible() || text->property("elide").toInt() != Qt::ElideNone) continue;
            EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 1)
                << scene.name << ": " << text->property("text").toString().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, testing::Values("de", "en", "fr", "ja"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace vantle
