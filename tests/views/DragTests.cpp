// Dragging a thumbnail away, and what is visible of it.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMouseEvent>
#include <QTemporaryDir>

#include "CardFixture.h"
#include "fakes/CapturedLog.h"
#include "panel/views/DragThumbnailView.h"
#include "panel/views/dragging/DragPile.h"

namespace vantle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DragTest : public CardFixture {
protected:
    DragTest() {
        show({a, b});
        makeCard();
    }

    QQuickItem* thumbnail(std::size_t position) const {
        return item("DragThumbnailView", tile(position));
    }
    QPointF middle(std::size_t position = 0) const { return frame(*thumbnail(position)).center(); }

    /// Sends a mouse event at a fractional position, which the test library does not support.
    void send(QEvent::Type type, const QPointF& point, Qt::KeyboardModifiers modifiers = {}) {
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, point, window().mapToGlobal(point), Qt::LeftButton,
                          isDown ? Qt::LeftButton : Qt::NoButton, modifiers);
        QCoreApplication::sendEvent(&window(), &event);
    }
    void press(const QPointF& point) { send(QEvent::MouseButtonPress, point); }
    void move(const QPointF& point) { send(QEvent::MouseMove, point); }
    void release(const QPointF& point, Qt::KeyboardModifiers modifiers = {}) {
        send(QEvent::MouseButtonRelease, point, modifiers);
    }
    void drag(std::size_t position = 0) {
        press(middle(position));
        move(middle(position) + QPointF(20, 10));
    }

    CapturePointer a = capture("a");
    CapturePointer b = capture("b");
    fakes::CapturedLog log{fakes::CapturedLog::DebugSwitch::on};
};

TEST_F(DragTest, ReportsHowFarItsTileHasMoved) {
    drag(0);
    rest();
    ASSERT_EQ(dragging.timesBegun, 1);
    EXPECT_EQ(dragging.moved(), QPointF());
    const QPointF before = frame(*thumbnail(0)).topLeft();
    show({a, b, capture("c")});
    EXPECT_EQ(dragging.moved(), frame(*thumbnail(0)).topLeft() - before);
    EXPECT_NE(dragging.moved(), QPointF());
    show({b});
    EXPECT_EQ(dragging.moved(), QPointF()) << "its tile has gone";
}

TEST_F(DragTest, TheHelpTagOfATileHidesWhenItIsPressed) {
    hover(middle());
    rest();
    ASSERT_EQ(item("HelpTag")->opacity(), 1);
    press(middle());
    frames.advance(200);
    EXPECT_EQ(item("HelpTag")->opacity(), 0);
    release(middle());
    rest();
    EXPECT_EQ(item("HelpTag")->opacity(), 0) << "nor does it come back";
}

TEST_F(DragTest, TheHelpTagOfATileHidesWhenItIsDragged) {
    hover(middle());
    rest();
    ASSERT_EQ(item("HelpTag")->opacity(), 1);
    drag();
    rest();
    EXPECT_EQ(item("HelpTag")->opacity(), 0);
    dragging.end(DragOperation::none);
    rest();
    EXPECT_EQ(item("HelpTag")->opacity(), 1) << "the pointer is still there";
}

TEST_F(DragTest, ThreePointsAreStillAClick) {
    press(middle());
    move(middle() + QPointF(3, 0));
    release(middle() + QPointF(3, 0));
    EXPECT_EQ(dragging.timesBegun, 0);
    EXPECT_THAT(asked, ElementsAre("open a.png"));
}

TEST_F(DragTest, ALittleMoreIsADrag) {
    press(middle());
    move(middle() + QPointF(3.01, 0));
    EXPECT_EQ(dragging.timesBegun, 1);
    EXPECT_THAT(asked, ElementsAre("drag began"));
    EXPECT_EQ(dragging.grippedAt, middle());
}

TEST_F(DragTest, TheDistanceIsAStraightLine) {
    press(middle());
    move(middle() + QPointF(2, 2));
    EXPECT_EQ(dragging.timesBegun, 0);
    move(middle() + QPointF(2.2, 2.2));
    EXPECT_EQ(dragging.timesBegun, 1);
}

TEST_F(DragTest, FurtherMovementBeginsNoSecondDrag) {
    drag();
    move(middle() + QPointF(60, 60));
    EXPECT_EQ(dragging.timesBegun, 1);
}

TEST_F(DragTest, AReleaseOutsideAfterLessThanTheThresholdDoesNothing) {
    const QPointF edge = frame(*thumbnail(0)).topLeft() + QPointF(1, 40);
    press(edge);
    release(edge - QPointF(2, 0));
    EXPECT_EQ(dragging.timesBegun, 0);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(DragTest, AClickWithEitherKeySelects) {
    for (const auto key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        press(middle());
        release(middle(), key);
    }
    EXPECT_THAT(asked, ElementsAre("toggle select a.png", "toggle select a.png"));
}

TEST_F(DragTest, TheReleaseOfADragIsNoClick) {
    drag();
    release(middle());
    EXPECT_THAT(asked, ElementsAre("drag began"));
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb mouseUp dragging=true"));
}

TEST_F(DragTest, ATargetThatTakesItIsBelieved) {
    drag();
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb drag begins"));
    dragging.end(DragOperation::copy);
    EXPECT_THAT(asked, ElementsAre("drag began", "dragged a.png"));
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb drag ended op=1"));
}

TEST_F(DragTest, ADragThatNobodyTakesIsNoUse) {
    drag();
    dragging.end(DragOperation::none);
    EXPECT_THAT(asked, ElementsAre("drag began", "not dragged a.png"));
    EXPECT_THAT(log.lines(), Contains("Vantle[dbg]: thumb drag ended op=0"));
}

TEST_F(DragTest, AfterADragTheNextOneCanBegin) {
    drag();
    dragging.end(DragOperation::none);
    release(middle());
    drag(1);
    EXPECT_EQ(dragging.timesBegun, 2);
    EXPECT_EQ(dragging.dragged[0].url, b->url());
}

TEST_F(DragTest, ThePanelLearnsTheEndOfADragAlthoughItsTileHasGone) {
    drag();
    show({b});
    state.captures.set({});
    panel->orderOut();
    rest();
    dragging.end(DragOperation::copy);
    EXPECT_THAT(asked, Contains("dragged a.png"));
}

TEST_F(DragTest, ADragMayEndAfterThePanelHasGone) {
    drag();
    panel.reset();
    dragging.end(DragOperation::copy);
    EXPECT_THAT(asked, ElementsAre("drag began"));
}

TEST_F(DragTest, ASelectionOfSevenIsAPileOfFive) {
    for (int i = 0; i < 7; ++i) {
        const auto one = capture(std::string(1, static_cast<char>('a' + i)));
        dragItems.push_back({one->url(), one->thumbnail()});
    }
    drag();
    ASSERT_THAT(dragging.dragged, SizeIs(7));
    const QRectF first = dragging.dragged[0].frame;
    std::vector<double> offsets;
    for (const auto& dragged : dragging.dragged) {
        EXPECT_EQ(dragged.frame.size(), first.size());
        EXPECT_EQ(dragged.frame.x() - first.x(), dragged.frame.y() - first.y());
        offsets.push_back(dragged.frame.x() - first.x());
    }
    EXPECT_THAT(offsets, ElementsAre(0, 6, 12, 18, 24, 24, 24));
}

TEST_F(DragTest, ADragStartsWhereTheThumbnailIsDrawn) {
    drag();
    const QImage& image = dragging.dragged[0].image;
    EXPECT_EQ(dragging.dragged[0].frame,
              DragThumbnailView::fittedRect(image.size(), frame(*thumbnail(0))));
}

TEST_F(DragTest, TheFilesIconIsDraggedWithoutAPicture) {
    dragItems = {{Url::file("/folder/a.png"), nullptr}};
    drag();
    ASSERT_THAT(dragging.dragged, SizeIs(1));
    EXPECT_FALSE(dragging.dragged[0].image.isNull());
    const QRectF bounds = frame(*thumbnail(0));
    // Icons are square.
    EXPECT_EQ(dragging.dragged[0].frame.size(), QSizeF(bounds.height(), bounds.height()));
    EXPECT_EQ(dragging.dragged[0].frame.center(), bounds.center());
}

/// A desktop with red icons for pictures.
class RedIcons {
public:
    RedIcons() : paths_(QIcon::themeSearchPaths()), name_(QIcon::themeName()) {
        const QDir folder(folder_.path());
        folder.mkpath(QStringLiteral("red/256x256/mimetypes"));
        QFile index(folder.filePath(QStringLiteral("red/index.theme")));
        EXPECT_TRUE(index.open(QIODevice::WriteOnly));
        index.write(
            "[Icon Theme]\nName=red\nDirectories=256x256/mimetypes\n"
            "[256x256/mimetypes]\nSize=256\nType=Fixed\n");
        QImage icon(256, 256, QImage::Format_RGB32);
        icon.fill(Qt::red);
        EXPECT_TRUE(
            icon.save(folder.filePath(QStringLiteral("red/256x256/mimetypes/image-png.png"))));
        index.close();
        QIcon::setThemeSearchPaths({folder_.path()});
        QIcon::setThemeName(QStringLiteral("red"));
    }
    ~RedIcons() {
        QIcon::setThemeSearchPaths(paths_);
        QIcon::setThemeName(name_);
    }

private:
    const QTemporaryDir folder_;
    const QStringList paths_;
    const QString name_;
};

TEST_F(DragTest, TheIconIsTheDesktopsOwnForSuchFiles) {
    const RedIcons icons;
    dragItems = {{Url::file("/folder/a.png"), nullptr}, {Url::file("/folder/a.unknown"), nullptr}};
    drag();
    ASSERT_THAT(dragging.dragged, SizeIs(2));
    EXPECT_EQ(dragging.dragged[0].image.size(), QSize(256, 256));
    EXPECT_EQ(dragging.dragged[0].image.pixelColor(128, 128), QColor(Qt::red));
    EXPECT_EQ(dragging.dragged[1].image.pixelColor(128, 128), QColor(128, 128, 132));
}

TEST(FittedRectTest, KeepsProportionsInTheMiddle) {
    const QRectF bounds(10, 20, 200, 100);
    EXPECT_EQ(DragThumbnailView::fittedRect({100, 100}, bounds), QRectF(60, 20, 100, 100));
    EXPECT_EQ(DragThumbnailView::fittedRect({400, 100}, bounds), QRectF(10, 45, 200, 50));
    EXPECT_EQ(DragThumbnailView::fittedRect({2, 1}, bounds), bounds);
}

TEST(FittedRectTest, APictureWithoutASizeFillsTheBounds) {
    const QRectF bounds(10, 20, 200, 100);
    EXPECT_EQ(DragThumbnailView::fittedRect({0, 100}, bounds), bounds);
    EXPECT_EQ(DragThumbnailView::fittedRect({100, -1}, bounds), bounds);
}

class DragPileTest : public testing::Test {
protected:
    static DraggingItem item(const QColor& color, double offset) {
        QImage image(80, 50, QImage::Format_RGB32);
        image.fill(color);
        return {Url::file("/a.png"), image, QRectF(100 + offset, 100 + offset, 160, 100)};
    }
    static QColor colorAt(const DragPile& pile, double x, double y) {
        const double scale = pile.picture.devicePixelRatio();
        return pile.picture.pixelColor(((QPointF(x, y) - pile.frame.topLeft()) * scale).toPoint());
    }
};

TEST_F(DragPileTest, OneItemIsItsOwnPictureWithRoundCorners) {
    const DragPile pile = dragPile({item(Qt::red, 0)}, 1);
    EXPECT_EQ(pile.frame, QRectF(100, 100, 160, 100));
    EXPECT_EQ(pile.picture.size(), QSize(160, 100));
    EXPECT_GT(colorAt(pile, 180, 150).red(), 230);
    EXPECT_EQ(colorAt(pile, 100, 100).alpha(), 0);
}

TEST_F(DragPileTest, ALightEdgeStandsOutFromTheBackground) {
    const DragPile pile = dragPile({item(Qt::red, 0)}, 1);
    for (const QPointF edge : {QPointF(180, 100), QPointF(180, 199), QPointF(100, 150)})
        EXPECT_NEAR(colorAt(pile, edge.x(), edge.y()).green(), 90, 10) << edge.x();
    EXPECT_LT(colorAt(pile, 180, 103).green(), 10);
}

TEST_F(DragPileTest, TheFirstOfSeveralIsOnTopAndTheOthersShowBehindIt) {
    const DragPile pile = dragPile({item(Qt::red, 0), item(Qt::green, 6)}, 1);
    EXPECT_GT(colorAt(pile, 180, 150).red(), 230);
    EXPECT_GT(colorAt(pile, 180, 203).green(), 100);
    EXPECT_LT(colorAt(pile, 180, 203).red(), 100);
}

TEST_F(DragPileTest, SeveralItemsHaveTheirNumberInTheCorner) {
    const DragPile pile = dragPile({item(Qt::red, 0), item(Qt::green, 6)}, 1);
    EXPECT_EQ(pile.frame, QRectF(90, 90, 176, 116));
    EXPECT_GT(colorAt(pile, 100, 93).alpha(), 230);
}

TEST_F(DragPileTest, IsDrawnForTheScreensPixels) {
    const DragPile pile = dragPile({item(Qt::red, 0)}, 2);
    EXPECT_EQ(pile.picture.size(), QSize(320, 200));
    EXPECT_EQ(pile.picture.devicePixelRatio(), 2);
    EXPECT_EQ(pile.frame, QRectF(100, 100, 160, 100));
}

}  // namespace
}  // namespace vantle
