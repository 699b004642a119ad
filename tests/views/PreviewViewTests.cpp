// How the preview looks, moves and answers keys and the pointer.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPointer>
#include <QSGTextureProvider>
#include <QWheelEvent>

#include "PreviewStage.h"
#include "fakes/SettingsOnFakes.h"
#include "panel/views/Appearance.h"
#include "platform/qt/DisplayServer.h"

namespace vantle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class PreviewViewTest : public testing::Test, protected PreviewStage {
protected:
    PreviewViewTest() { wide = capture("a", {2880, 1800}, clock.now()); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window(), key, modifiers);
    }
    void wheel(const QPoint& angle, const QPoint& pixels, Qt::KeyboardModifiers modifiers = {}) {
        const QPointF place = frame(*item("PreviewPicture")).center();
        QWheelEvent event(place, window().mapToGlobal(place), pixels, angle, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &event);
    }
    QRectF glass() const { return frame(*item("GlassBackdropView")); }
    QString details() const {
        return item("PreviewBar")->property("preview").value<PreviewModel*>()->details();
    }

    CapturePointer wide;
};

TEST_F(PreviewViewTest, GrowsOutOfItsTileIntoTheMiddle) {
    begin(wide);
    frames.advance(ManualFrames::frame);
    QRectF before = glass();
    EXPECT_LT(before.width(), 400);
    EXPECT_GT(before.center().x(), 950);
    for (int i = 0; i < 8; ++i) {
        frames.advance(ManualFrames::frame);
        EXPECT_GT(glass().width(), before.width());
        before = glass();
    }
    frames.settle();
    EXPECT_NEAR(glass().center().x(), screen.width / 2, 1);
    EXPECT_NEAR(glass().center().y(), screen.height / 2, 1);
}

TEST_F(PreviewViewTest, GoesBackIntoItsTileAndSaysWhenItIsThere) {
    show(wide);
    close();
    frames.advance(10 * ManualFrames::frame);
    EXPECT_LT(glass().width(), 700);
    EXPECT_THAT(asked, IsEmpty());
    frames.settle();
    EXPECT_THAT(asked, ElementsAre("closed"));
}

/// A display server with a compositor that blurs.
class BlurringServer final : public DisplayServer {
public:
    explicit BlurringServer(QRegion& blurred) : blurred_(blurred) {}
    bool offersBlur() const override { return true; }
    void setBlurBehind(QWindow&, const QRegion& region) override { blurred_ = region; }

private:
    QRegion& blurred_;
};

TEST(PreviewBlurTest, EndsBeforeThePlateFades) {
    QRegion blurred;
    const DisplayServer::Choice choice(std::make_unique<BlurringServer>(blurred));
    PreviewStage stage;
    stage.show(capture("a", {2880, 1800}, stage.clock.now()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !blurred.isEmpty(); }));
    stage.close();
    stage.frames.advance(ManualFrames::frame);
    EXPECT_TRUE(QTest::qWaitFor([&] { return blurred.isEmpty(); }));
    EXPECT_GT(stage.frame(*stage.item("GlassBackdropView")).width(), 500);
}

TEST_F(PreviewViewTest, ItsPicturesAreFreedWhileTheCardStays) {
    QQuickWindow card;
    bool isDrawn = false;
    QObject::connect(&card, &QQuickWindow::frameSwapped, [&] { isDrawn = true; });
    card.show();
    show(wide);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isDrawn; }));
    const auto* image = items("QQuickImage", item("PreviewPicture")).front();
    const QPointer<QSGTexture> picture = image->textureProvider()->texture();
    ASSERT_TRUE(picture);
    panel.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture; }));
}

TEST_F(PreviewViewTest, OnlyFadesUnderLessMotion) {
    DesktopAppearance desktop;
    desktop.look.set({.reducesMotion = true});
    Appearance::follow(&desktop);
    begin(wide);
    frames.advance(2 * ManualFrames::frame);
    EXPECT_NEAR(glass().center().x(), screen.width / 2, 1);
    close();
    frames.settle();
    EXPECT_THAT(asked, ElementsAre("closed"));
    Appearance::follow(nullptr);
}

TEST_F(PreviewViewTest, KeysAskForWhatTheySay) {
    show(wide);
    const std::vector<std::pair<Qt::Key, const char*>> keys = {
        {Qt::Key_Left, "step -1"},         {Qt::Key_Right, "step 1"}, {Qt::Key_PageUp, "page -1"},
        {Qt::Key_PageDown, "page 1"},      {Qt::Key_Return, "open"},  {Qt::Key_Enter, "open"},
        {Qt::Key_Delete, "trash"},         {Qt::Key_Space, "close"},  {Qt::Key_Escape, "close"},
        {Qt::Key_1, "real pixels at 0, 0"}};
    for (const auto& [pressed, request] : keys) {
        asked.clear();
        key(pressed);
        EXPECT_THAT(asked, ElementsAre(request));
    }
    asked.clear();
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(asked, ElementsAre("copy"));
}

TEST_F(PreviewViewTest, TheHeldKeyThatOpenedItDoesNotCloseIt) {
    show(wide);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(&window(), &again);
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_TRUE(again.isAccepted());
}

TEST_F(PreviewViewTest, SpacePlaysARecording) {
    show(recording("r", 65, {1280, 720}, clock.now()));
    key(Qt::Key_Space);
    key(Qt::Key_Escape);
    EXPECT_THAT(asked, ElementsAre("open", "close"));
}

TEST_F(PreviewViewTest, SaysWhereItIsAndWhatItShows) {
    show(wide, {.position = 2, .count = 5, .bytes = 1'234'567});
    EXPECT_EQ(details(), QStringLiteral("3 of 5  ·  2880 × 1800  ·  1.2 MB  ·  now"));
    state.facts.set({.position = 0, .count = 1, .page = 1, .pageCount = 7, .isVector = true});
    EXPECT_EQ(details(), QStringLiteral("page 2 of 7  ·  now"));
}

TEST_F(PreviewViewTest, ButtonsAskForWhatTheySay) {
    show(wide, {.position = 0, .count = 1, .pageCount = 3});
    for (const auto* name : {"Previous page", "Next page", "Show real pixels", "Open",
                             "Copy to clipboard", "Move to Trash", "Close"})
        QTest::mouseClick(&window(), Qt::LeftButton, {}, frame(*button(name)).center().toPoint());
    EXPECT_THAT(asked, ElementsAre("page -1", "page 1", "real pixels at 0, 0", "open", "copy",
                                   "trash", "close"));
}

TEST_F(PreviewViewTest, ButtonsOfOtherCapturesAppearUnderThePointer) {
    show(wide, {.position = 0, .count = 2});
    QTest::mouseMove(&window(), {1, 1});
    QTest::mouseMove(&window(), glass().center().toPoint());
    frames.settle();
    EXPECT_FALSE(button("Previous capture")->isVisible());
    QTest::mouseClick(&window(), Qt::LeftButton, {},
                      frame(*button("Next capture")).center().toPoint());
    EXPECT_THAT(asked, ElementsAre("step 1"));
}

TEST_F(PreviewViewTest, TheWheelZoomsWithControl) {
    show(wide);
    wheel({0, 120}, {}, Qt::ControlModifier);
    wheel({0, -120}, {}, Qt::ControlModifier);
    EXPECT_THAT(asked, ElementsAre("zoom in", "zoom out"));
}

TEST_F(PreviewViewTest, ASwipeStepsOnce) {
    show(wide, {.position = 1, .count = 3});
    for (int i = 0; i < 12; ++i) wheel({0, 0}, {-20, 0});
    EXPECT_THAT(asked, ElementsAre("step 1"));
}

TEST_F(PreviewViewTest, ALargerPictureIsMovedByTheWheelAndThePointer) {
    show(wide);
    PreviewZoom zoom = state.zoom.value();
    zoom.toggleReal({});
    setZoom(zoom);
    wheel({0, 0}, {-20, 10});
    EXPECT_THAT(asked, ElementsAre("move by -20, 10"));
    asked.clear();
    const QPoint middle = frame(*item("PreviewPicture")).center().toPoint();
    QTest::mousePress(&window(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(&window(), middle + QPoint(30, 20));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle + QPoint(30, 20));
    EXPECT_THAT(asked, Contains("move by 30, 20"));
}

TEST_F(PreviewViewTest, ADoubleClickShowsRealPixelsAtThePointer) {
    show(wide);
    const QPoint middle = frame(*item("PreviewPicture")).center().toPoint();
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, middle + QPoint(100, 50));
    EXPECT_THAT(asked, Contains(testing::MatchesRegex("real pixels at (99|100|101), (49|50|51)")));
}

TEST_F(PreviewViewTest, ThePictureTakesThePlaceOfTheThumbnail) {
    show(wide);
    const auto pictures = items("QQuickImage", item("PreviewPicture"));
    ASSERT_GE(pictures.size(), 2u);
    EXPECT_TRUE(pictures[0]->isVisible());
    state.picture.set(wide->thumbnail());
    EXPECT_FALSE(pictures[0]->isVisible());
}

TEST_F(PreviewViewTest, ASmallPictureOffersNoOtherZoom) {
    show(capture("tiny", {40, 30}, clock.now()));
    EXPECT_THROW((void)button("Show real pixels"), std::runtime_error);
    EXPECT_FALSE(button("Show the whole picture")->isVisible());
}

}  // namespace
}  // namespace vantle
