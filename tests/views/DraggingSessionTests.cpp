// Real drags, as far as they need no desktop, and the flight back of a drag that was refused.

#include <gtest/gtest.h>

#include <QEasingCurve>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "ManualFrames.h"
#include "panel/views/dragging/FlyBack.h"
#include "panel/views/dragging/QtDraggingSessions.h"

namespace vantle {
namespace {

/// Returns the picture that flies back, or null if there is none.
QWindow* flying() {
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (dynamic_cast<FlyBack*>(window) && window->isVisible()) return window;
    return nullptr;
}

QImage picture(const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

TEST(FlyBackTest, SlowsDownOnItsWayBackAndVanishes) {
    ManualFrames frames;
    QCursor::setPos(500, 400);
    FlyBack::start(picture({80, 50}), {10, 20}, {100, 80});
    ASSERT_TRUE(flying());
    const QPointF from(500 - 10, 400 - 20);
    EXPECT_EQ(flying()->position(), from.toPoint());
    EXPECT_EQ(flying()->size(), QSize(80, 50));
    const QEasingCurve slowing(QEasingCurve::OutCubic);
    for (int time = 56; time < 280; time += 56) {
        frames.advance(56);
        ASSERT_TRUE(flying()) << time;
        const double part = slowing.valueForProgress(time / 280.0);
        const QPointF expected = from + (QPointF(100, 80) - from) * part;
        EXPECT_LE((flying()->position() - expected).manhattanLength(), 2) << time;
    }
    frames.advance(56);
    // The window deletes itself, which takes a turn of the event loop.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(flying());
}

/// A drag from a window at (60, 40), gripped at (30, 25) in it.
class DraggingSessionTest : public testing::Test {
protected:
    DraggingSessionTest() {
        window.setGeometry(60, 40, 300, 200);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// Drags and drops where no window accepts anything; `moved` is how far the tile has moved
    /// meanwhile.
    void dragInVain(const QPointF& moved) {
        const DraggingItem item{Url::file("/folder/a.png"), picture({160, 100}),
                                QRectF(20, 15, 160, 100)};
        // A drag runs its own event loop, so the release must come from a timer.
        QTimer release;
        QObject::connect(&release, &QTimer::timeout, [this] {
            QTest::mouseRelease(&window, Qt::LeftButton, {}, QPoint(250, 180));
        });
        release.start(1);
        bool isOver = false;
        sessions.begin(
            window, {item}, {30, 25}, [moved] { return moved; },
            [&](DragOperation operation) {
                EXPECT_EQ(operation, DragOperation::none);
                isOver = true;
            });
        ASSERT_TRUE(QTest::qWaitFor([&] { return isOver; }, 20'000));
    }

    ManualFrames frames;
    QWindow window;
    QtDraggingSessions sessions{nullptr};
};

TEST_F(DraggingSessionTest, ADragThatNobodyTakesFliesBackToItsTile) {
    QCursor::setPos(500, 400);
    dragInVain({40, 7});
    ASSERT_TRUE(flying());
    // The grip is 10 points from the picture's corner.
    EXPECT_EQ(flying()->position(), QPoint(490, 390));
    frames.advance(272);
    ASSERT_TRUE(flying());
    const QPoint home(60 + 20 + 40, 40 + 15 + 7);
    EXPECT_LE((flying()->position() - home).manhattanLength(), 1);
    frames.settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace
}  // namespace vantle
