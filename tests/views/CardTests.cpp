#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <vector>

#include "panel/PanelState.h"
#include "panel/views/CapturePanel.h"
#include "panel/views/GlassBackdropView.h"
#include "panel/views/PanelModel.h"
#include "panel/views/PassthroughContainerView.h"
#include "panel/views/ThumbnailProvider.h"

namespace vantle {
namespace {

using testing::ElementsAre;

/// Lets events run until the condition holds.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer limit(20'000);
    while (!condition() && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

CapturePointer capture(const std::string& name, const std::string& extension = ".png") {
    return Capture::create(Url::file("/shots/" + name + extension), Date{});
}

class CardTest : public testing::Test {
protected:
    CardTest() {
        actions.close = [this](const CapturePointer& one) { closed.push_back(one); };
        actions.closeAll = [this] { ++timesAllClosed; };
    }

    /// A card over the state as it is, at rest.
    void makeCard() {
        view.reset();
        model = std::make_unique<PanelModel>(state, actions, PanelModel::Rendering::glass);
        view = std::make_unique<QQuickView>();
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(800, 330);
        view->engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view->engine()->addImageProvider(QStringLiteral("thumbnail"),
                                         new ThumbnailProvider([this](const QString& id) {
                                             return model->captures()->capture(id);
                                         }));
        view->setInitialProperties({{QStringLiteral("panel"), QVariant::fromValue(model.get())}});
        view->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Cards/CaptureCardView.qml")));
        ASSERT_EQ(view->status(), QQuickView::Ready);
        view->show();
    }

    void show(const std::vector<CapturePointer>& captures) {
        state.captures.set(captures);
        state.visible.set(true);
    }

    QRectF glassFrame() const {
        const auto* glass = PassthroughContainerView::findGlass(*view->contentItem());
        return glass ? glass->mapRectToScene(glass->boundingRect()) : QRectF();
    }

    /// All items whose QML type has that name, depth first.
    std::vector<QQuickItem*> items(const QString& type, QQuickItem* below = nullptr) const {
        std::vector<QQuickItem*> found;
        QQuickItem* root = below ? below : view->contentItem();
        for (QQuickItem* child : root->childItems()) {
            if (QString::fromLatin1(child->metaObject()->className()).startsWith(type))
                found.push_back(child);
            const auto deeper = items(type, child);
            found.insert(found.end(), deeper.begin(), deeper.end());
        }
        return found;
    }
    QQuickItem* item(const QString& type) const {
        const auto found = items(type);
        return found.empty() ? nullptr : found.front();
    }

    PanelState state;
    CardActions actions;
    std::vector<CapturePointer> closed;
    int timesAllClosed = 0;
    std::unique_ptr<PanelModel> model;
    std::unique_ptr<QQuickView> view;
};

TEST_F(CardTest, KeepsToItsCornerWithFourteenPointsOfRoom) {
    const std::vector<std::pair<PanelCorner, QPointF>> places = {
        {PanelCorner::bottomRight, {458, 62}},
        {PanelCorner::bottomLeft, {14, 62}},
        {PanelCorner::topRight, {458, 14}},
        {PanelCorner::topLeft, {14, 14}}};
    show({capture("a")});
    for (const auto& [corner, place] : places) {
        state.corner = corner;
        makeCard();
        EXPECT_EQ(glassFrame(), QRectF(place, QSizeF(328, 254))) << rawValue(corner);
    }
}

TEST_F(CardTest, GrowsWithTheRowAndStopsAtItsWidest) {
    show({capture("a"), capture("b")});
    makeCard();
    EXPECT_EQ(glassFrame().width(), 202 + 10 + 202 + 20 + 4);
    EXPECT_EQ(glassFrame().height(), 2 + 10 + 126 + 6 + 14 + 12);
    std::vector<CapturePointer> many;
    for (int i = 0; i < 40; ++i) many.push_back(capture(std::to_string(i)));
    state.captures.set(many);
    const QSizeF widest(640 + 20 + 4, 2 + 10 + 100 + 6 + 14 + 6 + 12);
    EXPECT_TRUE(waitUntil([&] { return glassFrame().size() == widest; }));
}

TEST_F(CardTest, ThereIsNoCardWithoutCapturesOrWhileHidden) {
    makeCard();
    const auto isSeen = [this] {
        return PassthroughContainerView::findGlass(*view->contentItem())->isVisible();
    };
    EXPECT_FALSE(isSeen());
    state.visible.set(true);
    EXPECT_FALSE(isSeen());
    state.captures.set({capture("a")});
    EXPECT_TRUE(waitUntil(isSeen));
    state.visible.set(false);
    EXPECT_TRUE(waitUntil([&] { return !isSeen(); }));
}

TEST_F(CardTest, TilesStandWhereTheLayoutSays) {
    show({capture("a"), capture("b"), capture("c")});
    makeCard();
    std::vector<double> places;
    for (const auto* tile : items(QStringLiteral("CaptureTile"))) {
        EXPECT_EQ(tile->width(), 160);
        places.push_back(tile->x());
    }
    EXPECT_THAT(places, ElementsAre(0, 170, 340));
}

TEST_F(CardTest, TheNewestTileIsSeenWhenTheRowOverflows) {
    std::vector<CapturePointer> many;
    for (int i = 0; i < 12; ++i) many.push_back(capture(std::to_string(i)));
    show(many);
    makeCard();
    const auto* newest = items(QStringLiteral("CaptureTile")).back();
    const auto* row = item(QStringLiteral("TileRow"));
    EXPECT_EQ(row->mapRectFromItem(newest, newest->boundingRect()).right(), row->width() - 10);
}

TEST_F(CardTest, ThePillIsOfferedOverSeveralUnselectedCapturesOnly) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a});
    makeCard();
    const auto isOffered = [this] {
        return item(QStringLiteral("ClearAllPill"))->property("isOffered").toBool();
    };
    state.hovering.set(true);
    EXPECT_FALSE(isOffered());
    state.captures.set({a, b});
    EXPECT_TRUE(isOffered());
    state.selected.set({a->id()});
    EXPECT_FALSE(isOffered());
    state.selected.set({});
    EXPECT_TRUE(isOffered());
    state.hovering.set(false);
    EXPECT_FALSE(isOffered());
}

TEST_F(CardTest, ThePillOverhangsTheCardsCorner) {
    show({capture("a"), capture("b")});
    makeCard();
    state.hovering.set(true);
    const auto* pill = item(QStringLiteral("ClearAllPill"));
    EXPECT_EQ(pill->x() + pill->width(), glassFrame().width() + 6);
    EXPECT_EQ(pill->y(), -8);
    QMetaObject::invokeMethod(item(QStringLiteral("ClearAllPill")), "tapped");
    EXPECT_EQ(timesAllClosed, 1);
}

TEST_F(CardTest, TheTimerBarShowsWhatIsLeftUnlessThePointerIsThere) {
    show({capture("a")});
    makeCard();
    auto* bar = item(QStringLiteral("TimerBar"));
    EXPECT_FALSE(bar->isVisible());
    state.progress.set(0.5);
    EXPECT_TRUE(bar->isVisible());
    const auto* capsule = bar->childItems().front();
    EXPECT_EQ(capsule->x(), 16);
    EXPECT_EQ(capsule->width(), (324 - 32) * 0.5);
    EXPECT_EQ(capsule->height(), 2);
    state.hovering.set(true);
    EXPECT_FALSE(bar->isVisible());
    state.hovering.set(false);
    state.progress.set(1);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(CardTest, OnlyRecordingsHaveADurationBadge) {
    show({capture("a"), capture("b", ".mov")});
    makeCard();
    const auto badges = items(QStringLiteral("DurationBadge"));
    ASSERT_EQ(badges.size(), 2u);
    EXPECT_FALSE(badges[0]->isVisible());
    EXPECT_TRUE(badges[1]->isVisible());
}

TEST_F(CardTest, ClosingATileClosesItsCapture) {
    const auto a = capture("a");
    const auto b = capture("b");
    show({a, b});
    makeCard();
    QMetaObject::invokeMethod(items(QStringLiteral("CloseButton"))[1], "tapped");
    EXPECT_THAT(closed, ElementsAre(b));
}

TEST_F(CardTest, TheModelKeepsWhatIsAnnouncedBeforeItIsStored) {
    makeCard();
    bool seen = false;
    QObject::connect(model.get(), &PanelModel::visibleChanged, model.get(),
                     [&] { seen = model->isVisible(); });
    state.visible.set(true);
    EXPECT_TRUE(seen);
}

TEST(GlassBackdropView, WithoutAWindowItSaysSo) {
    const GlassBackdropView glass;
    EXPECT_EQ(glass.debugFrameDescription(), QStringLiteral("(no window)"));
    EXPECT_FALSE(glass.acceptedMouseButtons());
}

class CapturePanelTest : public testing::Test {
protected:
    CapturePanelTest() {
        state.captures.set({capture("a")});
        state.visible.set(true);
    }
    QTemporaryDir folder;
    PanelState state;
};

TEST_F(CapturePanelTest, TellsWhereItsGlassStands) {
    const CapturePanel panel(state, {}, PanelModel::Rendering::glass);
    EXPECT_EQ(panel.glassFrameDescription(), "{{458, 62}, {328, 254}}");
    EXPECT_EQ(panel.thumbnailFramesDescription(),
              "thumbnails in the row: top 10, left 10, right 10");
}

TEST_F(CapturePanelTest, WithoutCardThereIsNoGlass) {
    state.visible.set(false);
    const CapturePanel panel(state, {}, PanelModel::Rendering::glass);
    EXPECT_EQ(panel.glassFrameDescription(), std::nullopt);
}

TEST_F(CapturePanelTest, WritesASnapshotOfTheCardAtRest) {
    CapturePanel panel(state, {}, PanelModel::Rendering::plain);
    const QString path = folder.filePath(QStringLiteral("card.png"));
    EXPECT_FALSE(panel.writeSnapshot(path.toStdString()).has_value());
    const QImage picture(path);
    EXPECT_EQ(picture.size(), QSize(800, 330));
    EXPECT_NE(picture.pixel(600, 306), picture.pixel(100, 100));
}

TEST_F(CapturePanelTest, SaysWhyASnapshotCannotBeWritten) {
    CapturePanel panel(state, {}, PanelModel::Rendering::plain);
    const auto failure = panel.writeSnapshot("/none/card.png");
    ASSERT_TRUE(failure.has_value());
    EXPECT_FALSE(failure->message.empty());
}

}  // namespace
}  // namespace vantle
