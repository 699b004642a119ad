// What a tile and the preview show while the text in a picture is being copied, and afterwards.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>

#include "CardFixture.h"
#include "PreviewStage.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PanelState::TextCopying reading(double fraction) {
    return {.fraction = fraction, .notice = ""};
}

PanelState::TextCopying read(std::string notice) {
    return {.fraction = 1, .notice = std::move(notice)};
}

void press(QQuickItem* item) {
    auto* actions = QAccessible::queryAccessibleInterface(item)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
}

class TextOnATileTest : public CardFixture {
protected:
    TextOnATileTest() {
        show({a, b});
        makeCard();
    }
    void set(const CapturePointer& capture, const PanelState::TextCopying& copying) {
        auto all = state.textCopying.value();
        all[capture->id()] = copying;
        state.textCopying.set(std::move(all));
    }
    std::string description(std::size_t position) const {
        auto* accessible = QAccessible::queryAccessibleInterface(tile(position));
        return accessible->text(QAccessible::Description).toStdString();
    }
    double filled() const { return item("TextCopyRing", tile(0))->property("fraction").toDouble(); }
    bool hasStopButton(std::size_t position) const {
        return !items("TextCopyStop", tile(position)).empty();
    }
    std::vector<std::string> notices(std::size_t position) const {
        std::vector<std::string> all;
        for (const auto* notice : items("TileNotice", tile(position)))
            all.push_back(text(notice, "text"));
        return all;
    }

    const CapturePointer a = capture("a");
    const CapturePointer b = capture("b");
};

TEST_F(TextOnATileTest, TheRingFillsWithTheReading) {
    EXPECT_FALSE(hasStopButton(0));
    set(a, reading(0));
    rest();
    EXPECT_EQ(filled(), 0.01);
    set(a, reading(0.6));
    frames.advance(2 * ManualFrames::frame);
    EXPECT_GT(filled(), 0.01);
    EXPECT_LT(filled(), 0.6) << "it moves there";
    rest();
    EXPECT_NEAR(filled(), 0.6, 0.001);
    EXPECT_FALSE(hasStopButton(1));
}

TEST_F(TextOnATileTest, UnderLessMotionTheRingFillsInSteps) {
    DesktopAppearance desktop;
    desktop.look.set({.reducesMotion = true});
    Appearance::follow(&desktop);
    makeCard();
    set(a, reading(0));
    rest();
    set(a, reading(0.6));
    EXPECT_EQ(filled(), 0.6);
    Appearance::follow(nullptr);
}

TEST_F(TextOnATileTest, AClickOnTheRingStopsTheReading) {
    set(a, reading(0.2));
    rest();
    click(*item("TextCopyStop", tile(0)));
    EXPECT_THAT(asked, ElementsAre("stop copying text of a.png"));
}

TEST_F(TextOnATileTest, TheKeyboardStopsTheReadingAndStaysOnTheTile) {
    panel->takeKeyboard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    rest();
    set(b, reading(0.2));
    rest();
    ASSERT_TRUE(tile(1)->hasActiveFocus());
    QTest::keyClick(&window(), Qt::Key_Tab);
    EXPECT_EQ(window().activeFocusItem(), button("Stop", tile(1)));
    QTest::keyClick(&window(), Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("stop copying text of b.png"));
    state.textCopying.set({});
    rest();
    EXPECT_EQ(window().activeFocusItem(), tile(1));
}

TEST_F(TextOnATileTest, AnAssistiveProgramStopsTheReading) {
    set(a, reading(0.2));
    rest();
    press(button("Stop", tile(0)));
    EXPECT_THAT(asked, ElementsAre("stop copying text of a.png"));
}

TEST_F(TextOnATileTest, AssistiveProgramsHearWhatHappens) {
    EXPECT_EQ(description(0), "");
    set(a, reading(0.2));
    EXPECT_EQ(description(0), "Copying text");
    set(a, read("Copied 12 words"));
    EXPECT_EQ(description(0), "Copied 12 words");
    EXPECT_EQ(description(1), "");
}

TEST_F(TextOnATileTest, TheNoticeTakesThePlaceOfTheRing) {
    set(a, reading(0.9));
    rest();
    set(a, read("Copied 12 words"));
    rest();
    EXPECT_FALSE(hasStopButton(0));
    EXPECT_THAT(notices(0), ElementsAre("Copied 12 words"));
    EXPECT_THAT(notices(1), IsEmpty());
    state.textCopying.set({});
    frames.advance(2 * ManualFrames::frame);
    EXPECT_THAT(notices(0), ElementsAre("Copied 12 words")) << "it fades out as it was";
    rest();
    EXPECT_THAT(notices(0), IsEmpty());
}

TEST_F(TextOnATileTest, ARingThatFadesOutTakesNoClicks) {
    set(a, reading(0.9));
    rest();
    const QPointF middle = frame(*item("TextCopyStop", tile(0))).center();
    set(a, read("Copied 12 words"));
    frames.advance(ManualFrames::frame);
    ASSERT_TRUE(hasStopButton(0));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, middle.toPoint());
    EXPECT_THAT(asked, testing::Not(testing::Contains("stop copying text of a.png")));
}

TEST_F(TextOnATileTest, TheActionsMakeRoomForTheRingAndItsNotice) {
    hover(*tile(0));
    EXPECT_TRUE(item("HoverBar", tile(0))->isVisible());
    for (const auto& copying : {reading(0.2), read("Copied 12 words")}) {
        set(a, copying);
        rest();
        EXPECT_FALSE(item("HoverBar", tile(0))->isVisible());
    }
    state.textCopying.set({});
    rest();
    EXPECT_TRUE(item("HoverBar", tile(0))->isVisible());
}

TEST_F(TextOnATileTest, ALongNoticeStaysOnItsTile) {
    show({a, b, capture("narrow", {200, 2000})});
    const auto narrow = state.captures.value()[2];
    set(narrow, read("The program that recognizes text ended unexpectedly."));
    rest();
    const QRectF thumbnail = frame(*item("DraggableThumbnail", tile(2)));
    const QRectF plate = frame(*item("PlateView", item("TileNotice", tile(2))));
    EXPECT_TRUE(thumbnail.contains(plate));
}

TEST_F(TextOnATileTest, ATileThatLeavesShowsNothingOfIt) {
    set(a, reading(0.2));
    rest();
    state.textCopying.set({});
    state.captures.set({b});
    rest();
    EXPECT_THAT(items("TextCopyStop"), IsEmpty());
}

/// The picture of a ring for a part of it that is filled.
class RingTest : public TextOnATileTest {
protected:
    /// Returns how many pixels of the ring are bright, above its middle and left of it.
    std::pair<int, int> bright(double fraction) {
        set(a, reading(fraction));
        rest();
        const QRect frame = this->frame(*item("TextCopyRing", tile(0))).toRect();
        const QImage picture = window().grabWindow().copy(frame);
        std::pair<int, int> counts{0, 0};
        for (int i = 0; i < frame.width() / 2 - 6; ++i) {
            const auto isBright = [&](int x, int y) {
                return qGray(picture.pixel(x, y)) > 200 ? 1 : 0;
            };
            counts.first += isBright(frame.width() * 3 / 4, i);
            counts.second += isBright(i, frame.height() / 2);
        }
        return counts;
    }
};

TEST_F(RingTest, FillsClockwiseFromTheTop) {
    EXPECT_EQ(bright(0), (std::pair{0, 0}));
    EXPECT_GT(bright(0.3).first, 0);
    EXPECT_EQ(bright(0.5).second, 0);
    EXPECT_GT(bright(0.9).second, 0);
}

class TextInThePreviewTest : public testing::Test, protected PreviewStage {
protected:
    void showPicture() { show(capture("a", {1200, 700}, clock.now())); }
    void set(const PanelState::TextCopying& copying) {
        state.textCopying.set(copying);
        frames.settle();
    }
    void click(const QQuickItem& item) {
        QTest::mouseClick(&window(), Qt::LeftButton, {}, frame(item).center().toPoint());
    }
};

TEST_F(TextInThePreviewTest, TheButtonIsThereIfTextCanBeCopied) {
    showPicture();
    EXPECT_FALSE(button("Copy Text")->isVisible());
    state.canCopyText.set(true);
    EXPECT_TRUE(button("Copy Text")->isVisible());
}

TEST_F(TextInThePreviewTest, TheButtonCopiesAndThenStops) {
    state.canCopyText.set(true);
    showPicture();
    QQuickItem* copy = button("Copy Text");
    click(*copy);
    EXPECT_THAT(asked, ElementsAre("copy text"));
    EXPECT_THAT(items("TextCopyRing"), IsEmpty());
    set(reading(0.5));
    EXPECT_NEAR(item("TextCopyRing")->property("fraction").toDouble(), 0.5, 0.001);
    EXPECT_EQ(button("Stop"), copy) << "the keyboard stays on it";
    click(*copy);
    EXPECT_THAT(asked, ElementsAre("copy text", "stop copying text"));
    set(read("Copied 12 words"));
    EXPECT_EQ(button("Copy Text"), copy);
    EXPECT_THAT(items("TextCopyRing"), IsEmpty());
}

TEST_F(TextInThePreviewTest, AnAssistiveProgramPressesTheButton) {
    state.canCopyText.set(true);
    showPicture();
    press(button("Copy Text"));
    set(reading(0.5));
    press(button("Stop"));
    EXPECT_THAT(asked, ElementsAre("copy text", "stop copying text"));
}

TEST_F(TextInThePreviewTest, TheNoticeStandsOnThePicture) {
    state.canCopyText.set(true);
    showPicture();
    EXPECT_THAT(items("TileNotice"), IsEmpty());
    set(read("Copied 12 words"));
    const auto* notice = item("TileNotice");
    EXPECT_EQ(notice->property("text").toString(), QStringLiteral("Copied 12 words"));
    EXPECT_TRUE(frame(*item("PreviewPicture")).contains(frame(*notice)));
    state.textCopying.set(std::nullopt);
    frames.settle();
    EXPECT_THAT(items("TileNotice"), IsEmpty());
}

}  // namespace
}  // namespace vantle
