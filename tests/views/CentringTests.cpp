// Which things are centred in others.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <stdexcept>

#include "CardFixture.h"
#include "ScreenStage.h"
#include "screens/views/AlertWindow.h"

namespace vantle {
namespace {

QPoint middleOfScreen() {
    return QGuiApplication::primaryScreen()->availableGeometry().center();
}

/// Tolerates the frame that this platform puts around a window, and half pixels of odd sizes.
void expectNear(const QPointF& one, const QPointF& other) {
    EXPECT_NEAR(one.x(), other.x(), 3);
    EXPECT_NEAR(one.y(), other.y(), 3);
}

class CentredScreenTest : public testing::Test, protected ScreenStage {
protected:
    double middle() const { return view_().width() / 2; }
    QRectF of(const char* name) { return frame(named(QString::fromLatin1(name))); }

    /// Expects that these texts are centred, and that they exist.
    void expectCentred(const QStringList& expected) {
        for (const QQuickItem* item : textItems()) {
            const QString shown = item->property("text").toString();
            if (!expected.contains(shown.left(20))) continue;
            EXPECT_EQ(item->property("horizontalAlignment").toInt(), Qt::AlignHCenter);
            EXPECT_NEAR(frame(*item).center().x(), middle(), 0.5) << shown.toStdString();
            ++seen_;
        }
        EXPECT_EQ(std::exchange(seen_, 0), expected.size());
    }

    QQuickItem& pageDots() {
        for (auto* item : view().findChildren<QQuickItem*>())
            if (QLatin1String(item->metaObject()->className())
                    .startsWith(QLatin1String("PageDots")))
                return *item;
        throw std::runtime_error("there are no dots");
    }

private:
    const QQuickItem& view_() const { return const_cast<CentredScreenTest*>(this)->view(); }
    qsizetype seen_ = 0;
};

TEST_F(CentredScreenTest, AWindowOpensInTheMiddleOfTheScreen) {
    openSettings();
    expectNear(window().geometry().center(), middleOfScreen());
    openOnboarding();
    expectNear(window().geometry().center(), middleOfScreen());
}

TEST_F(CentredScreenTest, AnAlertOpensInTheMiddleOfTheScreen) {
    AlertWindow alert({Alert::Style::warning, "Message", "Text", {"OK"}});
    QRect place;
    QTimer::singleShot(0, [&] {
        place = alert.geometry();
        alert.close();
    });
    alert.run();
    expectNear(place.center(), middleOfScreen());
}

TEST_F(CentredScreenTest, TheStepsOfTheOnboardingAreCentred) {
    openOnboarding(0);
    rest();
    expectCentred({QStringLiteral("Welcome to Vantle"), QStringLiteral("Screenshots shouldn'")});
    openOnboarding(2);
    rest();
    expectCentred({QStringLiteral("You're all set"), QStringLiteral("Vantle lives in your")});
    EXPECT_NEAR(of("Show me a sample").center().x(), middle(), 0.5);
    // The content reaches from the symbol at its top to the button at its end.
    const auto* content = view().findChild<QQuickItem*>(QStringLiteral("content"));
    const QRectF room = frame(*content);
    const double above = frame(*content->childItems().front()->childItems().back()).top();
    const double below = of("Show me a sample").bottom();
    EXPECT_NEAR(above - room.top(), room.bottom() - below, 1);
    EXPECT_GT(above - room.top(), 28) << "there is room to stand in the middle of";
}

TEST_F(CentredScreenTest, TheDotsAreCentredInTheBar) {
    for (int step = 0; step < OnboardingSteps::stepCount; ++step) {
        openOnboarding(step);
        const QRectF dots = frame(pageDots());
        EXPECT_NEAR(dots.center().x(), middle(), 0.5);
        const char* forward[] = {"Get Started", "Next", "Start Using Vantle"};
        EXPECT_NEAR(dots.center().y(), of(forward[step]).center().y(), 0.5);
    }
}

class CentredCardTest : public CardFixture {
protected:
    void expectInTheMiddleOf(const QQuickItem& item, const QQuickItem& whole) const {
        EXPECT_NEAR(frame(item).center().x(), frame(whole).center().x(), 0.5);
    }
    void expectWhollyInTheMiddleOf(const QQuickItem& item, const QQuickItem& whole) const {
        expectInTheMiddleOf(item, whole);
        EXPECT_NEAR(frame(item).center().y(), frame(whole).center().y(), 0.5);
    }
};

TEST_F(CentredCardTest, ALoneTileAndItsActionsAreCentredOnTheCard) {
    show({capture("a", {500, 1000})});
    makeCard();
    EXPECT_NEAR(frame(*tile(0)).center().x(), glassFrame().center().x(), 0.5);
    EXPECT_NEAR(frame(*item("ActionRow")).center().x(), glassFrame().center().x(), 0.5);
    const double line = frame(*item("ActionRow")).center().y();
    EXPECT_NEAR(frame(*item("TileActions", item("ActionRow"))).center().y(), line, 0.5);
    EXPECT_NEAR(frame(*item("QQuickColumn", item("ActionRow"))).center().y(), line, 0.5);
}

TEST_F(CentredCardTest, SeveralTilesAreCentredOnTheCard) {
    for (const int count : {2, 3}) {
        std::vector<CapturePointer> shown;
        for (int i = 0; i < count; ++i) shown.push_back(capture(std::to_string(i)));
        show(shown);
        makeCard();
        const QRectF all = frame(*tile(0)) | frame(*tile(std::size_t(count) - 1));
        EXPECT_NEAR(all.center().x(), glassFrame().center().x(), 0.5);
    }
}

TEST_F(CentredCardTest, TheContentsOfATileAreCentred) {
    const auto a = capture("a");
    show({a, capture("b")});
    makeCard();
    state.openingFailure.set({{a->id()}});
    hover(*tile(0));
    const auto* thumbnail = item("DraggableThumbnail", tile(0));
    auto* notice = item("TileNotice", tile(0));
    expectWhollyInTheMiddleOf(*item("QQuickText", notice), *thumbnail);
    expectWhollyInTheMiddleOf(*item("PlateView", notice), *thumbnail);
    expectInTheMiddleOf(*item("HoverBar", tile(0)), *thumbnail);
    expectWhollyInTheMiddleOf(*item("TileActions", tile(0)), *item("HoverBar", tile(0)));
    auto* close = item("CloseButton", tile(0));
    expectWhollyInTheMiddleOf(*item("Symbol", close), *close);
    const auto* name = item("TileName", tile(0));
    expectInTheMiddleOf(*name, *thumbnail);
    EXPECT_EQ(name->property("horizontalAlignment").toInt(), Qt::AlignHCenter);
}

TEST_F(CentredCardTest, TheMarksOfATileAreCentredOnTheirPlates) {
    const auto a = recording("a", 5);
    show({a, capture("b")});
    makeCard();
    state.pinned.set({a->id()});
    rest();
    auto* mark = item("CornerMark", tile(0));
    expectWhollyInTheMiddleOf(*item("Symbol", mark), *mark);
    expectWhollyInTheMiddleOf(*item("QQuickRectangle", mark), *mark);
    auto* badge = item("DurationBadge", tile(0));
    // The plate has a whole width and its row begins at a whole place, but letters have fractional
    // sizes.
    const QPointF middle = frame(*item("QQuickRow", badge)).center();
    EXPECT_NEAR(middle.x(), frame(*badge).center().x(), 1);
    EXPECT_NEAR(middle.y(), frame(*badge).center().y(), 1);
}

}  // namespace
}  // namespace vantle
