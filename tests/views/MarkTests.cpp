// The marks of a tile and of the card: their colours, and their texts if there is nothing to show.

#include <gmock/gmock.h>

#include <QAccessible>
#include <cmath>

#include "CardFixture.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

constexpr Color green{0.2, 0.6, 0.1};

class MarkTest : public CardFixture {
protected:
    MarkTest() { Appearance::follow(&desktop); }
    ~MarkTest() override {
        panel.reset();
        Appearance::follow(nullptr);
    }

    void showTwo() {
        show({a, b});
        makeCard();
    }
    static QColor color(const QQuickItem* item) { return item->property("color").value<QColor>(); }
    QQuickItem* mark() const { return item("CornerMark", tile(0)); }

    CapturePointer a = capture("a");
    CapturePointer b = capture("b");
    DesktopAppearance desktop;
};

TEST_F(MarkTest, APinIsWhiteOnOrange) {
    showTwo();
    state.pinned.set({a->id()});
    rest();
    EXPECT_EQ(color(item("QQuickRectangle", mark())), QColor(255, 149, 0));
    EXPECT_EQ(color(item("Symbol", mark())), QColor(Qt::white));
}

TEST_F(MarkTest, ACheckMarkIsWhiteOnTheAccentColour) {
    desktop.look.set({.accent = green});
    showTwo();
    state.pinned.set({a->id()});
    state.selected.set({a->id()});
    rest();
    const QColor expected = QColor::fromRgbF(0.2F, 0.6F, 0.1F);
    EXPECT_EQ(color(item("QQuickRectangle", mark())).rgb(), expected.rgb());
    EXPECT_EQ(color(item("Symbol", mark())), QColor(Qt::white));
}

TEST_F(MarkTest, TheTimerBarIsFaintlyInTheTextsColour) {
    for (const auto& [scheme, tint] :
         {std::pair{ColorScheme::light, Qt::black}, std::pair{ColorScheme::dark, Qt::white}}) {
        desktop.look.set({.scheme = scheme});
        show({a});
        makeCard();
        state.progress.set(0.5);
        rest();
        const auto* capsule = item("TimerBar")->childItems().front();
        EXPECT_EQ(color(capsule), QColor(tint));
        EXPECT_NEAR(capsule->opacity(), 0.18, 1e-6);
        const auto separate = item("SeparateBarView")->property("color").value<QColor>();
        EXPECT_EQ(separate.rgb(), QColor(tint).rgb());
        EXPECT_NEAR(separate.alphaF(), 0.18, 0.002);
        state.progress.set(1);
    }
}

TEST_F(MarkTest, ARecordingOfUnknownLengthHasOnlyTheSymbol) {
    show({recording("known", 5), recording("unknown", std::nan(""))});
    makeCard();
    auto* badge = item("DurationBadge", tile(1));
    EXPECT_TRUE(badge->isVisible());
    EXPECT_EQ(text(badge, "text"), "");
    const auto* symbol = item("Symbol", badge);
    EXPECT_EQ(badge->width(), symbol->width() + 2 * 7) << "without room for a text";
    EXPECT_GT(item("DurationBadge", tile(0))->width(), badge->width() + 4);
    const auto nameOf = [this](std::size_t position) {
        return QAccessible::queryAccessibleInterface(tile(position))->text(QAccessible::Name);
    };
    EXPECT_EQ(nameOf(0), QStringLiteral("known.mov, recording, 0:05"));
    EXPECT_EQ(nameOf(1), QStringLiteral("unknown.mov"));
}

}  // namespace
}  // namespace vantle
