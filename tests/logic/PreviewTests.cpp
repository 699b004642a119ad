#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeMediaLoader.h"
#include "fakes/FakePreviewWindow.h"
#include "fakes/PanelFixture.h"
#include "preview/PreviewController.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The card's media are shared by all loaders that the preview makes.
class SharedMedia final : public MediaLoader {
public:
    SharedMedia(MediaLoader& media, int& alive) : media_(media), alive_(alive) { ++alive_; }
    ~SharedMedia() override { --alive_; }
    std::unique_ptr<ImageFile> openImage(const Url& url) override { return media_.openImage(url); }
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override {
        return media_.openRecording(url);
    }

private:
    MediaLoader& media_;
    int& alive_;
};

/// The preview of a real card, without windows.
class PreviewTest : public fakes::PanelFixture {
protected:
    PreviewTest() { settings.dismissAfter.set(0); }

    /// Returns a capture with a picture of that size.
    CapturePointer drawn(const std::string& name, Size pixels) {
        const Url url = Url::file("/shots/" + name);
        if (url.pathExtension() == "mov")
            media.addRecording(url, 10, pixels, pixels);
        else
            media.addImage(url, pixels, pixels);
        const auto made = Capture::create(url, fakes::VirtualClock::epoch);
        made->loadThumbnail(media);
        media.drawnSizes.clear();
        return made;
    }

    PreviewController& preview() {
        if (preview_) return *preview_;
        preview_ = PreviewController::create(
            {.screens = screens,
             .spareMemory = spareMemory,
             .loading = {.main = scheduler,
                         .files = files,
                         .makeMedia =
                             [this] { return std::make_unique<SharedMedia>(media, loaders); },
                         .queue = queue},
             .card = {.state = controller().state(),
                      .actions = [this] { return controller().actions(); },
                      .holdCountdown = [this] { return controller().holdCountdown(); },
                      .tileFrame = [this](const UUID& id) { return controller().tileFrame(id); }},
             .makeWindow = [this](PreviewState&, PreviewActions given) {
                 buttons = std::move(given);
                 return std::make_unique<fakes::FakePreviewWindow>(window);
             }});
        controller().onPreview = [this](const UUID& id) { preview_->open(id); };
        return *preview_;
    }

    /// Opens the preview of a capture and waits until its picture is there.
    void open(const CapturePointer& capture) {
        preview();
        actions.preview(capture);
        time.settle();
    }
    void closeCompletely() {
        preview().close();
        buttons.closed();
        time.settle();
    }
    std::string shownName() { return preview().state().capture.value()->fileName(); }
    const PreviewFacts& facts() { return preview().state().facts.value(); }
    ImagePointer picture() { return preview().state().picture.value(); }

    fakes::FakeMediaLoader media;
    fakes::ManualQueue queue{time};
    fakes::FakePreviewWindow::Record window;
    PreviewActions buttons;
    int loaders = 0;  ///< How many media loaders exist.

    CapturePointer a = drawn("a.png", {800, 600});
    CapturePointer b = drawn("b.png", {7680, 4320});
    CapturePointer c = drawn("c.png", {20, 10});

private:
    std::shared_ptr<PreviewController> preview_;
};

TEST_F(PreviewTest, ShowsTheCaptureWithItsFacts) {
    showAll({a, b, c});
    files.write(b->url(), 123'456, fakes::VirtualClock::epoch);
    open(b);
    EXPECT_TRUE(preview().isOpen());
    EXPECT_EQ(shownName(), "b.png");
    EXPECT_EQ(facts(),
              (PreviewFacts{.position = 1, .count = 3, .pixels = {7680, 4320}, .bytes = 123'456}));
    EXPECT_TRUE(window.isOnScreen);
    EXPECT_TRUE(window.hasKeyboard);
    EXPECT_THAT(window.frames, ElementsAre(screens.screens[0].visibleFrame));
}

TEST_F(PreviewTest, DrawsThePictureInAsManyPixelsAsAreShown) {
    showAll({b});
    open(b);
    const Size shown = preview().state().zoom.value().picture();
    ASSERT_TRUE(picture());
    EXPECT_EQ(picture()->pixelsWide, std::lround(shown.width));
    EXPECT_LE(shown.width, 0.85 * 1440);
}

TEST_F(PreviewTest, DrawsMorePixelsOnADenseScreen) {
    screens.screens[0].pixelsPerPoint = 2;
    showAll({b});
    open(b);
    const Size shown = preview().state().zoom.value().picture();
    EXPECT_EQ(picture()->pixelsWide, std::lround(2 * shown.width));
}

TEST_F(PreviewTest, TheThumbnailStandsUntilThePictureIsThere) {
    showAll({b});
    preview();
    actions.preview(b);
    EXPECT_TRUE(preview().isOpen());
    EXPECT_EQ(picture(), nullptr);
    time.settle();
    EXPECT_NE(picture(), nullptr);
}

TEST_F(PreviewTest, ShowsRealPixelsSharply) {
    showAll({b});
    open(b);
    buttons.toggleRealPixels({});
    time.settle();
    EXPECT_EQ(picture()->pixelsWide, 7680);
    buttons.toggleRealPixels({});
    time.settle();
    EXPECT_EQ(picture()->pixelsWide, 7680) << "the larger picture is sharp enough";
}

TEST_F(PreviewTest, ZoomingBeyondThePixelsLoadsNothingAgain) {
    showAll({b});
    open(b);
    buttons.toggleRealPixels({});
    time.settle();
    const auto draws = media.drawnSizes.size();
    buttons.zoomBy(2, {});
    time.settle();
    EXPECT_EQ(media.drawnSizes.size(), draws);
}

TEST_F(PreviewTest, StepsThroughTheCardAndStopsAtItsEnds) {
    showAll({a, b, c});
    open(a);
    buttons.step(-1);
    EXPECT_EQ(shownName(), "a.png");
    buttons.step(1);
    EXPECT_EQ(shownName(), "b.png");
    buttons.step(1);
    buttons.step(1);
    EXPECT_EQ(shownName(), "c.png");
    EXPECT_EQ(facts().position, 2);
}

TEST_F(PreviewTest, FastStepsDrawOnlyTheLast) {
    showAll({a, b, c});
    open(a);
    media.drawnSizes.clear();
    buttons.step(1);
    buttons.step(1);
    time.settle();
    EXPECT_THAT(media.drawnSizes, ElementsAre(Size{20, 10}));
    EXPECT_EQ(picture()->pixelsWide, 20);
}

TEST_F(PreviewTest, EachPictureIsShownWholeFirst) {
    showAll({a, b});
    open(b);
    buttons.toggleRealPixels({});
    buttons.step(-1);
    EXPECT_TRUE(preview().state().zoom.value().isFitted());
    EXPECT_EQ(preview().state().zoom.value().picture(), (Size{800, 600}));
}

TEST_F(PreviewTest, ATrashedCaptureIsFollowedByTheNext) {
    showAll({a, b, c});
    open(b);
    buttons.trash();
    time.settle();
    EXPECT_EQ(shownName(), "c.png");
    EXPECT_EQ(facts().position, 1);
    EXPECT_EQ(facts().count, 2);
    EXPECT_EQ(trash.trashed.size(), 1u);
    buttons.trash();
    EXPECT_EQ(shownName(), "a.png");
    buttons.trash();
    EXPECT_FALSE(preview().isOpen());
}

TEST_F(PreviewTest, OpensAndCopiesWhatItShows) {
    settings.removeAfterUse.set(false);
    showAll({a, b});
    open(b);
    buttons.open();
    buttons.copy();
    EXPECT_THAT(opener.opened, ElementsAre(b->url()));
    EXPECT_THAT(pasteboard.contents(), ElementsAre("image /shots/b.png", "file /shots/b.png"));
}

TEST_F(PreviewTest, DragsWhatItShows) {
    showAll({a, b});
    open(b);
    const auto items = buttons.dragItems();
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].url, b->url());
}

TEST_F(PreviewTest, TheCountdownWaits) {
    settings.dismissAfter.set(5);
    showAll({a});
    wait(1);
    open(a);
    wait(3600);
    EXPECT_TRUE(controller().isVisible());
    closeCompletely();
    wait(3.9);
    EXPECT_TRUE(controller().isVisible());
    wait(0.2);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(PreviewTest, ANewCaptureOnlyChangesTheCount) {
    showAll({a, b});
    open(b);
    showAll({c});
    EXPECT_EQ(shownName(), "b.png");
    EXPECT_EQ(facts().position, 1);
    EXPECT_EQ(facts().count, 3);
}

TEST_F(PreviewTest, ClosesWithTheCard) {
    showAll({a, b});
    open(b);
    actions.closeAll();
    EXPECT_FALSE(preview().isOpen());
    EXPECT_FALSE(window.hasKeyboard);
}

TEST_F(PreviewTest, GoesBackIntoTheTileOfTheCaptureThatIsShown) {
    showAll({a, b});
    panel.thumbnails = {{a->id(), {{10, 20}, {100, 50}}}, {b->id(), {{120, 20}, {100, 50}}}};
    open(a);
    const auto from = preview().state().tile.value();
    ASSERT_TRUE(from);
    buttons.step(1);
    preview().close();
    const auto into = preview().state().tile.value();
    ASSERT_TRUE(into);
    EXPECT_EQ(into->origin.x - from->origin.x, 110);
    EXPECT_EQ(into->origin.y, from->origin.y);
}

TEST_F(PreviewTest, ATileOutOfSightHasNoFrame) {
    showAll({a});
    panel.thumbnails = {{a->id(), {{0, 0}, {0, 0}}}};
    open(a);
    EXPECT_EQ(preview().state().tile.value(), std::nullopt);
}

TEST_F(PreviewTest, ClosingFreesEverything) {
    showAll({b});
    open(b);
    EXPECT_EQ(loaders, 1);
    closeCompletely();
    EXPECT_EQ(loaders, 0);
    EXPECT_EQ(window.windows, 0);
    EXPECT_EQ(picture(), nullptr);
    EXPECT_EQ(spareMemory.timesGivenBack, 1);
}

TEST_F(PreviewTest, OpensAgainWhileItGoesBack) {
    showAll({a, b});
    open(a);
    preview().close();
    open(b);
    buttons.closed();
    time.settle();
    EXPECT_TRUE(preview().isOpen());
    EXPECT_EQ(window.windows, 1);
    EXPECT_TRUE(window.isOnScreen);
}

TEST_F(PreviewTest, APictureThatArrivesAfterTheCloseIsDropped) {
    showAll({b});
    preview();
    actions.preview(b);
    preview().close();
    time.settle();
    EXPECT_EQ(picture(), nullptr);
}

TEST_F(PreviewTest, AFileThatCannotBeDrawnSaysSo) {
    showAll({a, b});
    media.remove(b->url());
    open(b);
    EXPECT_TRUE(preview().state().cannotBeDrawn.value());
    buttons.step(-1);
    time.settle();
    EXPECT_FALSE(preview().state().cannotBeDrawn.value());
}

TEST_F(PreviewTest, ARecordingShowsItsPoster) {
    const auto recording = drawn("r.mov", {1920, 1080});
    showAll({recording});
    media.frameTimes.clear();
    open(recording);
    ASSERT_TRUE(picture());
    EXPECT_THAT(media.frameTimes, ElementsAre(0.5));
    EXPECT_EQ(facts().pixels, (Size{1920, 1080}));
}

TEST_F(PreviewTest, ADocumentHasPages) {
    const Url url = Url::file("/shots/d.pdf");
    media.addDocument(url, {{100, 50}, {50, 100}, {100, 50}});
    const auto document = Capture::create(url, fakes::VirtualClock::epoch);
    document->loadThumbnail(media);
    showAll({document});
    open(document);
    EXPECT_EQ(facts().pageCount, 3);
    EXPECT_TRUE(facts().isVector);
    const Size wide = preview().state().zoom.value().picture();
    EXPECT_GT(wide.width, 1000) << "it is drawn at the preview's size";
    buttons.stepPage(-1);
    buttons.stepPage(1);
    time.settle();
    EXPECT_EQ(facts().page, 1);
    const Size tall = preview().state().zoom.value().picture();
    EXPECT_LT(tall.width, tall.height);
    EXPECT_EQ(picture()->pixelsHigh, std::lround(tall.height));
    buttons.stepPage(1);
    time.settle();
    buttons.stepPage(1);
    time.settle();
    EXPECT_EQ(facts().page, 2);
}

TEST_F(PreviewTest, AnUnknownCaptureOpensNothing) {
    showAll({a});
    preview().open(UUID::random());
    EXPECT_FALSE(preview().isOpen());
    EXPECT_EQ(window.windows, 0);
}

TEST_F(PreviewTest, AppearsOnTheScreenOfItsTile) {
    screens.screens.push_back({{{1440, 0}, {1920, 1080}}, {{1440, 0}, {1920, 1040}}});
    screens.pointer = {2000, 500};
    showAll({a});
    panel.thumbnails = {{a->id(), {{10, 20}, {100, 50}}}};
    screens.pointer = {10, 10};
    open(a);
    EXPECT_THAT(window.frames, ElementsAre(screens.screens[1].visibleFrame));
}

TEST_F(PreviewTest, CopiesTheTextOfThePageThatIsShown) {
    const auto document = drawn("d.pdf", {800, 600});
    media.addDocument(document->url(), {{800, 600}, {800, 600}, {800, 600}});
    textReader.addText(document->url(), "Hello");
    showAll({document});
    open(document);
    EXPECT_TRUE(preview().state().canCopyText.value());
    buttons.stepPage(1);
    time.settle();
    buttons.copyText();
    EXPECT_THAT(textReader.requests, ElementsAre(std::pair(document->url(), 1)));
}

TEST_F(PreviewTest, FollowsTheTextOfItsCapture) {
    const auto& text = preview().state().textCopying;
    textReader.addText(a->url(), "Hello");
    showAll({a, b});
    actions.copyText(a, 0);
    wait(1);
    open(a);
    EXPECT_EQ(text.value(), (PanelState::TextCopying{.fraction = 0.5, .notice = ""}));
    wait(1);
    EXPECT_EQ(text.value()->notice, "Copied 1 word");
    preview().step(1);
    EXPECT_EQ(text.value(), std::nullopt);
    preview().step(-1);
    EXPECT_EQ(text.value()->notice, "Copied 1 word");
    wait(3);
    EXPECT_EQ(text.value(), std::nullopt);
}

TEST_F(PreviewTest, StopsCopyingTheText) {
    textReader.addText(a->url(), "Hello");
    showAll({a});
    open(a);
    buttons.copyText();
    buttons.stopCopyingText();
    EXPECT_EQ(preview().state().textCopying.value(), std::nullopt);
    wait(60);
    EXPECT_THAT(pasteboard.contents(), IsEmpty());
}

TEST_F(PreviewTest, KnowsWhetherTextCanBeCopied) {
    const auto film = drawn("film.mov", {800, 600});
    showAll({a, film});
    open(film);
    EXPECT_FALSE(preview().state().canCopyText.value());
    preview().step(-1);
    EXPECT_TRUE(preview().state().canCopyText.value());
    textReader.available = false;
    open(a);
    EXPECT_FALSE(preview().state().canCopyText.value());
}

}  // namespace
}  // namespace vantle
