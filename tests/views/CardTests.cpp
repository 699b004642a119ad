// The card: its place, its size, and when its parts are visible.

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

#include "CardFixture.h"
#include "fakes/CapturedLog.h"
#include "panel/CardLayout.h"
#include "support/Debug.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<CapturePointer> captures(int count) {
    std::vector<CapturePointer> made;
    made.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) made.push_back(capture(std::to_string(i)));
    return made;
}

class CardTest : public CardFixture {
protected:
    bool cardIsSeen() const { return panel->glassFrameDescription().has_value(); }
};

TEST_F(CardTest, StaysInItsCornerWithAMarginOfFourteenPoints) {
    const std::vector<std::pair<PanelCorner, QPointF>> places = {
        {PanelCorner::bottomRight, {458, 62}},
        {PanelCorner::bottomLeft, {14, 62}},
        {PanelCorner::topRight, {458, 14}},
        {PanelCorner::topLeft, {14, 14}}};
    show(captures(1));
    for (const auto& [corner, place] : places) {
        state.corner = corner;
        makeCard();
        EXPECT_EQ(glassFrame(), QRectF(place, QSizeF(328, 254))) << rawValue(corner);
    }
}

TEST_F(CardTest, GrowsWithTheRowUpToAMaximum) {
    show(captures(2));
    makeCard();
    EXPECT_EQ(glassFrame().size(), QSizeF(202 + 10 + 202 + 20 + 4, 2 + 10 + 126 + 6 + 14 + 12));
    show(captures(3));
    EXPECT_EQ(glassFrame().size(), QSizeF(3 * 160 + 20 + 20 + 4, 2 + 10 + 100 + 6 + 14 + 12));
    show(captures(40));
    EXPECT_EQ(glassFrame().size(), QSizeF(640 + 20 + 4, 2 + 10 + 100 + 6 + 14 + 6 + 12));
}

TEST_F(CardTest, NoCardIsDrawnWithoutCapturesOrWhileHidden) {
    state.visible.set(false);
    makeCard();
    EXPECT_FALSE(cardIsSeen());
    state.visible.set(true);
    EXPECT_FALSE(cardIsSeen());
    show(captures(1));
    EXPECT_TRUE(cardIsSeen());
    state.visible.set(false);
    EXPECT_TRUE(cardIsSeen());
    rest();
    EXPECT_FALSE(cardIsSeen());
}

TEST_F(CardTest, OneCaptureIsLargeAndHasItsActionsBelow) {
    show({capture("a", {800, 800})});
    makeCard();
    EXPECT_EQ(tile(0)->width(), 260);
    EXPECT_FALSE(flag(tile(0), "compact"));
    const auto* row = item("ActionRow");
    EXPECT_TRUE(row->isVisible());
    EXPECT_EQ(frame(*row), QRectF(frame(*tile(0)).bottomLeft() + QPointF(0, 10), QSizeF(260, 30)));
}

TEST_F(CardTest, TwoCapturesAreCompact) {
    show(captures(2));
    makeCard();
    EXPECT_TRUE(flag(tile(0), "compact"));
    EXPECT_FALSE(item("ActionRow")->isVisible());
}

TEST_F(CardTest, TilesAreWhereTheLayoutPutsThem) {
    for (const int count : {1, 2, 3, 40}) {
        show(captures(count));
        makeCard();
        const auto tiles = items("CaptureTile");
        ASSERT_EQ(tiles.size(), static_cast<std::size_t>(count));
        const Size size = CardLayout::tileSize(count, *capture("a"));
        for (std::size_t i = 0; i < tiles.size(); ++i) {
            EXPECT_EQ(tiles[i]->x(), static_cast<double>(i) * (size.width + 10));
            EXPECT_EQ(item("DraggableThumbnail", tiles[i])->size(),
                      QSizeF(size.width, size.height));
        }
        const auto* row = item("TileRow");
        EXPECT_EQ(frameIn(*tiles.front(), *row).top(), 10);
        EXPECT_EQ(frameIn(*tiles.back(), *row).right(), row->width() - 10);
    }
}

TEST_F(CardTest, OnlyARowThatOverflowsHasAScrollIndicator) {
    show(captures(3));
    makeCard();
    hover(*tile(0));
    EXPECT_FALSE(item("ScrollIndicator")->isVisible());
    show(captures(12));
    hover(*tile(11));
    EXPECT_TRUE(item("ScrollIndicator")->isVisible());
}

TEST_F(CardTest, TheNewestTileIsVisibleWhenTheRowOverflows) {
    show(captures(12));
    makeCard();
    const auto* row = item("TileRow");
    EXPECT_EQ(frameIn(*tile(11), *row).right(), row->width() - 10);
    QMetaObject::invokeMethod(item("TileRow"), "scrollTo", Q_ARG(QVariant, 0));
    rest();
    EXPECT_EQ(frameIn(*tile(0), *row).left(), 10);
    show(captures(13));
    EXPECT_EQ(frameIn(*tile(12), *row).right(), row->width() - 10);
}

TEST_F(CardTest, ThePillIsOfferedOverSeveralUnselectedCapturesOnly) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a});
    makeCard();
    const auto isShown = [this] { return flag(item("ClearAllPill"), "isShown"); };
    state.hovering.set(true);
    EXPECT_FALSE(isShown());
    state.captures.set({a, b});
    EXPECT_TRUE(isShown());
    state.selected.set({a->id()});
    EXPECT_FALSE(isShown());
    state.selected.set({});
    EXPECT_TRUE(isShown());
    state.hovering.set(false);
    EXPECT_FALSE(isShown());
}

TEST_F(CardTest, ThePillOverhangsTheCardsCorner) {
    show(captures(2));
    makeCard();
    hover(*tile(0));
    const auto* pill = item("ClearAllPill");
    EXPECT_EQ(frame(*pill).topRight(), glassFrame().topRight() + QPointF(6, -8));
    click(frame(*pill).bottomLeft() + QPointF(6, -3));
    EXPECT_THAT(asked, ElementsAre("close all"));
}

TEST_F(CardTest, TheTimerBarIsAsWideAsTheRemainingTime) {
    show(captures(1));
    makeCard();
    const auto* bar = item("TimerBar");
    const auto* capsule = bar->childItems().front();
    EXPECT_FALSE(capsule->isVisible());
    for (const double progress : {0.75, 0.5, 0.0}) {
        state.progress.set(progress);
        rest();
        EXPECT_TRUE(capsule->isVisible());
        EXPECT_EQ(capsule->size(), QSizeF((324 - 32) * progress, 2));
        EXPECT_EQ(frame(*capsule).left(), glassFrame().left() + 2 + 16);
        EXPECT_EQ(frame(*capsule).bottom(), glassFrame().bottom() - 12 - 5);
    }
    EXPECT_EQ(glassFrame().height(), 254 + 10 + 7);
    state.progress.set(1);
    rest();
    EXPECT_FALSE(capsule->isVisible());
    EXPECT_EQ(glassFrame().height(), 254);
}

TEST_F(CardTest, TheTimerBarGetsShorterByWholePixels) {
    show(captures(1));
    makeCard();
    state.progress.set(0.5);
    rest();
    const auto* capsule = item("TimerBar")->childItems().front();
    const double room = 324 - 32;
    state.progress.set(0.5 - 0.4 / room);
    EXPECT_EQ(capsule->width(), room / 2);
    state.progress.set(0.5 - 0.6 / room);
    EXPECT_EQ(capsule->width(), room / 2 - 1);
}

TEST_F(CardTest, WhileThePointerIsOverTheCardTheTimerBarIsHidden) {
    show(captures(1));
    makeCard();
    state.progress.set(0.5);
    rest();
    const auto* capsule = item("TimerBar")->childItems().front();
    hover(*tile(0));
    EXPECT_TRUE(state.hovering.value());
    EXPECT_FALSE(capsule->isVisible());
    hover({5, 5});
    EXPECT_FALSE(state.hovering.value());
    EXPECT_TRUE(capsule->isVisible());
}

TEST_F(CardTest, TheSelectionBarIsOnTheCardsUpperEdge) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a, b});
    makeCard();
    const auto* bar = item("SelectionBar");
    EXPECT_FALSE(bar->isVisible());
    state.selected.set({a->id()});
    rest();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_NEAR(frame(*bar).center().x(), glassFrame().center().x(), 0.5);
    EXPECT_EQ(frame(*bar).top(), glassFrame().top() - 12);
    EXPECT_EQ(bar->height(), 28 + 2 * 2);
    EXPECT_THAT(symbols(item("SelectionBar")), ElementsAre("doc.on.doc", "trash", "xmark"));
}

TEST_F(CardTest, WithOneSelectedCaptureTheBarReads1Selected) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a, b});
    makeCard();
    const auto words = [this] { return text(item("QQuickText", item("SelectionBar")), "text"); };
    state.selected.set({a->id()});
    EXPECT_EQ(words(), "1 selected");
    state.selected.set({a->id(), b->id()});
    EXPECT_EQ(words(), "2 selected");
    state.selected.set({});
    EXPECT_EQ(words(), "2 selected") << "while it fades out";
}

TEST_F(CardTest, OnlyCapturesOfTheCardCountAsSelected) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a, b});
    makeCard();
    state.selected.set({capture("gone")->id()});
    rest();
    EXPECT_FALSE(item("SelectionBar")->isVisible());
    state.selected.set({a->id(), capture("gone")->id()});
    rest();
    EXPECT_EQ(text(item("QQuickText", item("SelectionBar")), "text"), "1 selected");
    show({b});
    EXPECT_FALSE(item("SelectionBar")->isVisible());
}

TEST_F(CardTest, TheSelectionBarTakesThePressesOnItsPlate) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a, b});
    state.selected.set({a->id()});
    makeCard();
    int backgroundClicks = 0;
    panel->onBackgroundClick = [&] { ++backgroundClicks; };
    const QRectF bar = frame(*item("SelectionBar"));
    for (const QPointF point : {QPointF(bar.left() + 20, bar.center().y()),
                                QPointF(bar.center().x(), bar.bottom() - 1)}) {
        hover(point);
        click(point);
    }
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(backgroundClicks, 0);
}

TEST_F(CardTest, TheSelectionBarsButtonsActOnTheSelection) {
    const auto a = capture("a");
    show({a, capture("b")});
    makeCard();
    state.selected.set({a->id()});
    rest();
    for (const char* name : {"Copy selected", "Move selected to Trash", "Dismiss selected"})
        click(frame(*button(name)).center() + QPointF(0, 6));
    EXPECT_THAT(asked, ElementsAre("copy selected", "trash selected", "remove selected"));
}

TEST_F(CardTest, TheMarqueeIsDrawnWhereItIs) {
    show(captures(2));
    makeCard();
    const auto* overlay = item("MarqueeOverlay");
    EXPECT_FALSE(overlay->isVisible());
    state.marquee.set(Rect{{400, 200}, {60, 30}});
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_EQ(frame(*overlay), QRectF(400, 200, 60, 30));
    state.marquee.set(std::nullopt);
    EXPECT_FALSE(overlay->isVisible());
}

TEST_F(CardTest, TheActionRowNamesTheCapture) {
    show({capture("a", {2940, 1912}, clock.now() - std::chrono::minutes(2))});
    makeCard();
    const auto texts = items("QQuickText", item("ActionRow"));
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(text(texts[0], "text"), "a.png");
    EXPECT_EQ(text(texts[1], "text"), "2940 × 1912  ·  2 min. ago");
    EXPECT_THAT(symbols(item("ActionRow")),
                ElementsAre("doc.on.doc", "folder", "trash", "square.and.arrow.up"));
}

TEST_F(CardTest, ACaptureOfUnknownSizeHasOnlyItsAgeAsSubtitle) {
    show({capture("a", {}, clock.now() - std::chrono::hours(3))});
    makeCard();
    EXPECT_EQ(text(items("QQuickText", item("ActionRow"))[1], "text"), "3 hr. ago");
}

TEST_F(CardTest, ACapturesAgeIsUpdatedWhenThePointerArrives) {
    show({capture("a", {}, clock.now())});
    makeCard();
    time.advance(Seconds(70));
    hover(*tile(0));
    EXPECT_EQ(text(items("QQuickText", item("ActionRow"))[1], "text"), "1 min. ago");
}

TEST_F(CardTest, TappingClearAllLogsNothingWithoutDebugging) {
    show(captures(2));
    makeCard();
    hover(*tile(0));
    fakes::CapturedLog log;
    Debug::set(false);
    click(frame(*item("ClearAllPill")).bottomLeft() + QPointF(6, -3));
    EXPECT_THAT(log.lines(), IsEmpty());
    Debug::set(true);
    click(frame(*item("ClearAllPill")).bottomLeft() + QPointF(6, -3));
    EXPECT_THAT(log.lines(), testing::Contains("Vantle[dbg]: tap Clear all"));
    Debug::set(false);
}

TEST_F(CardTest, TheModelKeepsAnnouncedValuesBeforeTheyAreStored) {
    PanelModel model({state, settings, clock, scheduler, dragging, actions});
    bool seen = false;
    state.captures.set(captures(1));
    state.visible.set(false);
    QObject::connect(&model, &PanelModel::isPresentedChanged, &model,
                     [&] { seen = model.isPresented(); });
    state.visible.set(true);
    EXPECT_TRUE(seen);
}

TEST_F(CardTest, ReportsTheFrameOfItsGlass) {
    show(captures(1));
    makeCard();
    EXPECT_EQ(panel->glassFrameDescription(), "{{458, 62}, {328, 254}}");
    EXPECT_EQ(panel->thumbnailFramesDescription(),
              "thumbnails in the row: top 10, left 10, right 10");
}

TEST_F(CardTest, TheGlassHasItsRadiusAndALightBorder) {
    show(captures(1));
    makeCard();
    const auto* glass = PassthroughContainerView::findGlass(*window().contentItem());
    EXPECT_EQ(glass->cornerRadius(), 22);
    EXPECT_EQ(glass->property("borderWidth").toDouble(), 1);
    EXPECT_EQ(glass->property("borderColor").value<QColor>().rgba(), qRgba(255, 255, 255, 46));
    EXPECT_LT(glass->property("fill").value<QColor>().alpha(), 255);
}

TEST_F(CardTest, PlainRenderingIsAPlateInTheColourOfWindows) {
    rendering = PanelModel::Rendering::plain;
    show(captures(1));
    makeCard();
    const auto* glass = PassthroughContainerView::findGlass(*window().contentItem());
    EXPECT_EQ(glass->property("borderWidth").toDouble(), 0);
    EXPECT_NEAR(glass->property("fill").value<QColor>().alphaF(), 0.85, 0.01);
}

TEST(GlassBackdropView, ReportsThatThereIsNoWindow) {
    const GlassBackdropView glass;
    EXPECT_EQ(glass.debugFrameDescription(), QStringLiteral("(no window)"));
}

TEST(GlassBackdropView, TakesNoClickAtAnyPoint) {
    GlassBackdropView glass;
    glass.setSize({300, 200});
    for (const QPointF point : {QPointF(0, 0), QPointF(150, 100), QPointF(299, 199)})
        EXPECT_FALSE(glass.contains(point));
    EXPECT_FALSE(glass.acceptedMouseButtons());
}

class SnapshotTest : public CardFixture {
protected:
    SnapshotTest() {
        rendering = PanelModel::Rendering::plain;
        show({capture("a")});
        makeCard();
    }
    QTemporaryDir folder;
};

TEST_F(SnapshotTest, ShowsTheCardAtRest) {
    const QString path = folder.filePath(QStringLiteral("card.png"));
    EXPECT_FALSE(panel->writeSnapshot(path.toStdString()).has_value());
    const QImage picture(path);
    EXPECT_EQ(picture.size(), QSize(800, 330));
    EXPECT_NE(picture.pixel(600, 306), picture.pixel(100, 100));
}

TEST_F(SnapshotTest, ReportsWhyItCannotBeWritten) {
    const auto failure = panel->writeSnapshot("/none/card.png");
    ASSERT_TRUE(failure.has_value());
    EXPECT_FALSE(failure->message.empty());
    // This device behaves like a full disk.
    EXPECT_TRUE(panel->writeSnapshot("/dev/full").has_value());
}

}  // namespace
}  // namespace vantle
