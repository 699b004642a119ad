// A tile: its marks, its badge and its controls.

#include <gmock/gmock.h>

#include <QQmlEngine>
#include <QQuickImageProvider>

#include "CardFixture.h"
#include "fakes/CapturedLog.h"
#include "support/Debug.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TileTest : public CardFixture {
protected:
    CapturePointer a = capture("a");
    CapturePointer b = capture("b");

    void showTwo() {
        show({a, b});
        makeCard();
    }
    void pin(const CapturePointer& capture) { state.pinned.set({capture->id()}); }
    void select(const CapturePointer& capture) { state.selected.set({capture->id()}); }
    QQuickItem* mark(std::size_t position) const { return item("CornerMark", tile(position)); }

    /// Returns true if a control of that kind is visible on the tile.
    bool isSeen(const char* type, std::size_t position) const {
        const auto found = items(type, tile(position));
        return !found.empty() && found.front()->isVisible();
    }
    void press(const QPointF& from, const QPointF& to) {
        QTest::mousePress(&window(), Qt::LeftButton, {}, from.toPoint());
        QTest::mouseMove(&window(), to.toPoint());
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, to.toPoint());
        rest();
    }
};

TEST_F(TileTest, APinnedCaptureHasAPin) {
    showTwo();
    EXPECT_FALSE(mark(0)->isVisible());
    pin(a);
    rest();
    EXPECT_TRUE(mark(0)->isVisible());
    EXPECT_FALSE(mark(1)->isVisible());
    EXPECT_EQ(text(mark(0), "symbol"), "pin.circle.fill");
    EXPECT_EQ(frameIn(*mark(0), *tile(0)).topRight(), QPointF(tile(0)->width(), 0));
    EXPECT_EQ(mark(0)->size(), QSizeF(20 + 12, 20 + 12));
}

TEST_F(TileTest, APinnedCaptureThatIsSelectedShowsTheCheckMark) {
    showTwo();
    pin(a);
    select(a);
    rest();
    EXPECT_EQ(text(mark(0), "symbol"), "checkmark.circle.fill");
    state.selected.set({});
    rest();
    EXPECT_EQ(text(mark(0), "symbol"), "pin.circle.fill");
    state.pinned.set({});
    EXPECT_EQ(text(mark(0), "symbol"), "pin.circle.fill") << "while it fades out";
}

TEST_F(TileTest, ASelectedCaptureHasABroadBorderAndATint) {
    showTwo();
    const auto plates = [this](std::size_t position) {
        std::vector<double> widths;
        for (const auto* plate : items("PlateView", tile(position)))
            if (plate->isVisible()) widths.push_back(plate->property("borderWidth").toDouble());
        return widths;
    };
    EXPECT_THAT(plates(0), ElementsAre(1));
    select(a);
    rest();
    EXPECT_THAT(plates(0), ElementsAre(1, 3));
    EXPECT_NEAR(items("PlateView", tile(0))[1]->property("fill").value<QColor>().alphaF(), 0.18,
                0.005);
    EXPECT_THAT(plates(1), ElementsAre(1));
}

TEST_F(TileTest, ThePictureFillsATileOfTheSameShape) {
    for (const Size shape :
         {Size{2880, 1800}, Size{1200, 1600}, Size{1000, 1000}, Size{1366, 768}}) {
        show({capture("a", shape), b});
        makeCard();
        const auto* image = item("QQuickImage", tile(0));
        auto* engine = qmlEngine(window().contentItem()->childItems().front());
        auto* provider = static_cast<QQuickImageProvider*>(engine->imageProvider("thumbnail"));
        const QSize size = image->property("sourceSize").toSize();
        QSize drawn;
        const QImage picture =
            provider->requestImage(image->property("source").toUrl().path().mid(1), &drawn, size);
        ASSERT_EQ(picture.size(), size);
        const QPoint middle = picture.rect().center();
        for (const QPoint edge : {QPoint(0, middle.y()), QPoint(size.width() - 1, middle.y()),
                                  QPoint(middle.x(), 0), QPoint(middle.x(), size.height() - 1)})
            EXPECT_GE(qAlpha(picture.pixel(edge)), 250)
                << shape.width << "x" << shape.height << ": " << edge.x() << ", " << edge.y();
    }
}

TEST_F(TileTest, TheCheckMarkAppearsLikeTheBorder) {
    showTwo();
    select(a);
    const auto border = [this] {
        for (auto* plate : items("PlateView", tile(0)))
            if (plate->property("borderWidth").toDouble() == 3)
                return plate->parentItem()->opacity();
        return 0.0;
    };
    for (int frame = 0; frame < 15; ++frame) {
        frames.advance(ManualFrames::frame);
        EXPECT_NEAR(mark(0)->opacity(), border(), 0.001);
    }
    EXPECT_EQ(mark(0)->opacity(), 1);
}

TEST_F(TileTest, ShowsThatItsFileIsGone) {
    showTwo();
    EXPECT_THAT(items("TileNotice", tile(0)), IsEmpty());
    state.openingFailure.set({{a->id()}});
    rest();
    const auto* notice = item("TileNotice", tile(0));
    EXPECT_TRUE(notice->isVisible());
    EXPECT_THAT(items("TileNotice", tile(1)), IsEmpty());
    state.openingFailure.set(std::nullopt);
    rest();
    EXPECT_THAT(items("TileNotice", tile(0)), IsEmpty());
}

TEST_F(TileTest, ATrashedCaptureLeavesANoticeInItsPlace) {
    show({a, b, capture("c")});
    makeCard();
    const QRectF before = frame(*tile(1));
    trash(b);
    EXPECT_EQ(frame(*tile(1)), before);
    const auto* notice = item("TrashNotice", tile(1));
    EXPECT_EQ(text(notice, "text"), "Moved to Trash");
    EXPECT_THAT(items("TrashNotice", tile(0)), IsEmpty());
    click(*button("Undo", tile(1)));
    EXPECT_THAT(asked, ElementsAre("undo trash " + b->id().text()));
    state.captures.set({a, b, capture("c")});
    state.trashNotices.set({});
    rest();
    EXPECT_THAT(items("TrashNotice", tile(1)), IsEmpty());
}

TEST_F(TileTest, ATrashedCaptureCanNeitherBeOpenedNorHasButtons) {
    show({a, b});
    makeCard();
    trash(b);
    hover(*tile(1));
    click(frame(*tile(1)).center() - QPointF(0, 40));
    EXPECT_THAT(asked, IsEmpty());
    for (const auto* bar : items("HoverBar", tile(1))) EXPECT_FALSE(flag(bar, "isShown"));
}

TEST_F(TileTest, ANoticeOfAFailureOffersNoUndo) {
    show({a, b});
    makeCard();
    trash(b, TrashNotice::notPutBack);
    EXPECT_EQ(text(item("TrashNotice", tile(1)), "text"), "Could not be put back");
    EXPECT_FALSE(button("Undo", tile(1))->isVisible());
}

TEST_F(TileTest, TheCardOfTheLastCaptureStaysForItsNotice) {
    show({a});
    makeCard();
    trash(a);
    EXPECT_FALSE(glassFrame().isEmpty());
    EXPECT_TRUE(item("TrashNotice")->isVisible());
    state.trashNotices.set({});
    rest();
    EXPECT_FALSE(item("TileRow")->isVisible());
}

TEST_F(TileTest, TallLettersKeepTheMarginBelowThem) {
    showTwo();
    const auto room = [this] {
        return glassFrame().bottom() - frame(*item("TileName", tile(0))).bottom();
    };
    EXPECT_GE(room(), 12);
    // These scripts put several marks above each other.
    show({capture("ကြွေးကြော်သံ ཧཱུྃ"), capture("ภาพหน้าจอ")});
    EXPECT_GE(room(), 12);
}

TEST_F(TileTest, ARecordingHasABadge) {
    show({a, recording("b", 59.5)});
    makeCard();
    EXPECT_THAT(items("DurationBadge", tile(0)), IsEmpty());
    const auto* badge = item("DurationBadge", tile(1));
    EXPECT_EQ(text(badge, "text"), "1:00");
    EXPECT_EQ(frameIn(*badge, *tile(1)).topLeft(), QPointF(8, 8));
}

TEST_F(TileTest, ThumbnailsKeepTheirShadowAndTheirName) {
    showTwo();
    const auto* shadow = item("ShadowView", tile(0));
    EXPECT_EQ(frameIn(*shadow, *tile(0)), QRectF(-8, -8, 202 + 16, 126 + 16));
    EXPECT_EQ(shadow->property("blur").toDouble(), 6);
    EXPECT_EQ(shadow->property("verticalOffset").toDouble(), 2);
    EXPECT_EQ(shadow->property("strength").toDouble(), 0.25);
    const auto* name = item("TileName", tile(0));
    EXPECT_EQ(text(name, "text"), "a.png");
    EXPECT_EQ(name->width(), 202);
    EXPECT_EQ(frameIn(*name, *tile(0)).top(), 126 + 6);
}

TEST_F(TileTest, TheCloseButtonOverhangsTheTileUnderThePointer) {
    showTwo();
    EXPECT_FALSE(isSeen("CloseButton", 0));
    hover(*tile(0));
    EXPECT_TRUE(isSeen("CloseButton", 0));
    EXPECT_FALSE(isSeen("CloseButton", 1));
    EXPECT_EQ(frameIn(*item("CloseButton", tile(0)), *tile(0)), QRectF(-8, -8, 22, 22));
    click(*item("CloseButton", tile(0)));
    EXPECT_THAT(asked, ElementsAre("close a.png"));
}

TEST_F(TileTest, APointerOnTheDiscOutsideTheTileHoversTheTile) {
    showTwo();
    const QPointF disc = frame(*tile(0)).topLeft() + QPointF(3, 3);
    for (const QPointF offset : {QPointF(-8, 0), QPointF(0, -8), QPointF(-6, -6), QPointF(6, -6)}) {
        SCOPED_TRACE(testing::Message() << offset.x() << ", " << offset.y());
        asked.clear();
        hover(disc + offset);
        EXPECT_TRUE(isSeen("CloseButton", 0));
        click(disc + offset);
        EXPECT_THAT(asked, ElementsAre("close a.png"));
    }
    hover(disc + QPointF(-9, -9));
    EXPECT_FALSE(isSeen("CloseButton", 0)) << "beside the disc";
}

TEST_F(TileTest, TheRimOfTheHoverBarTakesPresses) {
    showTwo();
    hover(*tile(0));
    const QRectF bar = frame(*item("HoverBar", tile(0)));
    for (const QPointF point :
         {QPointF(bar.center().x(), bar.top() + 1), QPointF(bar.center().x(), bar.bottom() - 1),
          QPointF(bar.left() + 3, bar.center().y()), QPointF(bar.right() - 3, bar.center().y())}) {
        hover(point);
        click(point);
        EXPECT_THAT(asked, IsEmpty()) << point.x() << ", " << point.y();
    }
}

TEST_F(TileTest, TheCloseButtonsCornersBelongToTheThumbnail) {
    showTwo();
    hover(*tile(0));
    click(frame(*item("CloseButton", tile(0))).bottomRight() - QPointF(1, 1));
    EXPECT_THAT(asked, ElementsAre("open a.png"));
}

TEST_F(TileTest, ASelectionHidesHoverBarsAndTheCloseButtonsOfSelectedTiles) {
    showTwo();
    select(a);
    hover(*tile(0));
    EXPECT_FALSE(isSeen("CloseButton", 0));
    EXPECT_FALSE(isSeen("HoverBar", 0));
    hover(*tile(1));
    EXPECT_TRUE(isSeen("CloseButton", 1));
    EXPECT_FALSE(isSeen("HoverBar", 1));
}

TEST_F(TileTest, TheHoverBarIsOnTheThumbnailsLowerEdge) {
    showTwo();
    hover(*tile(0));
    ASSERT_TRUE(isSeen("HoverBar", 0));
    const QRectF bar = frameIn(*item("HoverBar", tile(0)), *tile(0));
    EXPECT_EQ(bar.size(), QSizeF(4 * 28 + 12, 28 + 6));
    EXPECT_EQ(bar.center().x(), 101);
    EXPECT_LE(bar.bottom(), 126);
    EXPECT_FALSE(isSeen("HoverBar", 1));
}

TEST_F(TileTest, ALoneCaptureHasNoHoverBar) {
    show({a});
    makeCard();
    hover(*tile(0));
    EXPECT_FALSE(isSeen("HoverBar", 0));
    EXPECT_TRUE(isSeen("CloseButton", 0));
}

TEST_F(TileTest, ActionsThatOverlapTheNextTileBelongToTheirOwn) {
    show({capture("a", {300, 1000}), capture("b", {300, 1000}), capture("c", {300, 1000})});
    makeCard();
    hover(*tile(1));
    const QRectF bar = frame(*item("HoverBar", tile(1)));
    ASSERT_LT(bar.left() + 12, frame(*tile(0)).right());
    hover({bar.left() + 12, bar.center().y()});
    EXPECT_TRUE(isSeen("HoverBar", 1));
    EXPECT_FALSE(isSeen("HoverBar", 0));
}

TEST_F(TileTest, ThereIsNoPinWithoutATimer) {
    showTwo();
    hover(*tile(0));
    EXPECT_THAT(symbols(tile(0)), testing::UnorderedElementsAre("doc.on.doc", "square.and.arrow.up",
                                                                "folder", "trash"));
    settings.dismissAfter.set(10);
    EXPECT_EQ(symbols(tile(0)).size(), 5u);
    EXPECT_THAT(symbols(tile(0)), testing::Contains("pin"));
    pin(a);
    EXPECT_THAT(symbols(tile(0)), testing::Contains("pin.fill"));
    settings.dismissAfter.set(0);
    EXPECT_EQ(symbols(tile(0)).size(), 4u);
}

TEST_F(TileTest, TheCaptureJustCopiedShowsACheckMark) {
    showTwo();
    hover(*tile(0));
    state.copiedID.set(a->id());
    EXPECT_THAT(symbols(tile(0)), testing::Contains("checkmark"));
    state.copiedID.set(b->id());
    EXPECT_THAT(symbols(tile(0)), testing::Contains("doc.on.doc"));
}

TEST_F(TileTest, EachActionSendsItsRequest) {
    settings.dismissAfter.set(10);
    showTwo();
    hover(*tile(1));
    for (const char* name : {"Pin (ignore the timer)", "Copy to clipboard", "Share",
                             "Reveal in Finder", "Move to Trash"})
        click(*button(name, tile(1)));
    EXPECT_THAT(asked, ElementsAre("toggle pin b.png", "copy b.png", "share b.png", "reveal b.png",
                                   "trash b.png"));
}

TEST_F(TileTest, TheShareMenuPointsAtItsButton) {
    showTwo();
    hover(*tile(0));
    const QRectF frameOfButton = frame(*item("ShareButton", tile(0)));
    click(*item("ShareButton", tile(0)));
    EXPECT_EQ(shareAnchor, (Rect{{frameOfButton.x(), frameOfButton.y()}, {28, 28}}));
}

TEST_F(TileTest, AReusedShareButtonSharesItsCurrentCapture) {
    show({a});
    makeCard();
    QQuickItem* actionsOfTile = item("TileActions", item("ActionRow"));
    actionsOfTile->setProperty("captureId", QString::fromStdString(b->id().text()));
    click(*item("ShareButton"));
    EXPECT_THAT(asked, IsEmpty());
    actionsOfTile->setProperty("captureId", QString::fromStdString(a->id().text()));
    click(*item("ShareButton"));
    EXPECT_THAT(asked, ElementsAre("share a.png"));
}

TEST_F(TileTest, TheShareButtonIsWhiteOnADarkPlate) {
    show({a});
    makeCard();
    QQuickItem* share = item("ShareButton");
    EXPECT_EQ(share->property("baseColor").value<QColor>(), QColor(Qt::black));
    share->setProperty("isOnDark", true);
    EXPECT_EQ(item("ShareButton"), share);
    EXPECT_EQ(item("Symbol", share)->property("color").value<QColor>(), QColor(Qt::white));
}

TEST_F(TileTest, APressThatMovesFourteenPointsIsNoTap) {
    showTwo();
    hover(*tile(0));
    const QPointF centre = frame(*button("Copy to clipboard", tile(0))).center().toPoint();
    press(centre, centre + QPointF(14, 0));
    press(centre, centre + QPointF(0, -14));
    EXPECT_THAT(asked, IsEmpty());
    press(centre, centre + QPointF(13, -13));
    EXPECT_THAT(asked, ElementsAre("copy a.png"));
}

TEST_F(TileTest, TapsAreLogged) {
    showTwo();
    hover(*tile(0));
    fakes::CapturedLog log;
    Debug::set(true);
    click(*button("Copy to clipboard", tile(0)));
    click(*item("CloseButton", tile(0)));
    Debug::set(false);
    EXPECT_THAT(log.lines(),
                testing::IsSupersetOf({"Vantle[dbg]: tap icon doc.on.doc", "Vantle[dbg]: tap X"}));
}

TEST_F(TileTest, AnIconIsDimWhileItIsPressed) {
    show({a});
    makeCard();
    QQuickItem* icon = button("Copy to clipboard")->parentItem();
    const auto opacities = [&] {
        return std::pair{icon->childItems()[0]->opacity(), item("Symbol", icon)->opacity()};
    };
    EXPECT_EQ(opacities(), std::pair(0.0, 0.9));
    hover(*icon);
    EXPECT_EQ(opacities(), std::pair(0.08, 0.9));
    QTest::mousePress(&window(), Qt::LeftButton, {}, frame(*icon).center().toPoint());
    EXPECT_EQ(opacities(), std::pair(0.16, 0.5));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, frame(*icon).center().toPoint());
    EXPECT_EQ(opacities(), std::pair(0.08, 0.9));
}

TEST_F(TileTest, AControlUnderThePointerShowsItsHelpTag) {
    show({a});
    makeCard();
    hover(*button("Move to Trash"));
    const auto* tag = item("HelpTag");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            frames.advance(50);
            return tag->opacity() == 1;
        },
        20'000));
    EXPECT_EQ(text(item("QQuickText", item("HelpTag")), "text"), "Move to Trash");
    EXPECT_TRUE(QRectF(0, 0, 800, 330).contains(frame(*tag)));
}

TEST_F(TileTest, TheHelpTagOfATileGoesWithIt) {
    showTwo();
    hover(*tile(0));
    hover(*button("Dismiss", tile(0)));
    const auto* tag = item("HelpTag");
    ASSERT_EQ(tag->opacity(), 1);
    // A card with one tile is so narrow that it does not reach the pointer.
    show({b});
    EXPECT_EQ(tag->opacity(), 0);
}

}  // namespace
}  // namespace vantle
