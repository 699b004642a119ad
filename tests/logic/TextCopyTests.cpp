#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/PanelFixture.h"
#include "panel/TextCopy.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Copies the text in captures of a real card. The fake reader needs two seconds for a picture.
class TextCopyTest : public fakes::PanelFixture {
protected:
    static constexpr double reading = fakes::FakeTextReader::duration.count();
    static constexpr double noticeTime = TextCopy::noticeTime.count();

    TextCopyTest() {
        settings.dismissAfter.set(0);
        showAll({a, b});
        textReader.addText(a->url(), "The quick\nbrown fox");
        textReader.addText(b->url(), "Hello");
    }

    std::optional<PanelState::TextCopying> copying(const CapturePointer& capture) const {
        const auto& all = state->textCopying.value();
        const auto found = all.find(capture->id());
        return found == all.end() ? std::nullopt : std::optional(found->second);
    }
    double fraction(const CapturePointer& capture) const {
        return copying(capture) ? copying(capture)->fraction : -1;
    }
    std::string notice(const CapturePointer& capture) const {
        return copying(capture) ? copying(capture)->notice : "neither reading nor notice";
    }
    bool isBeingRead(const CapturePointer& capture) const { return notice(capture).empty(); }

    const CapturePointer a = capture("a");
    const CapturePointer b = capture("b");
};

TEST_F(TextCopyTest, TheTextArrivesOnTheClipboardWithItsLines) {
    actions.copyText(a, 0);
    wait(reading);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text The quick\nbrown fox"));
    EXPECT_EQ(notice(a), "Copied 4 words");
}

TEST_F(TextCopyTest, OneWordIsSingular) {
    actions.copyText(b, 0);
    wait(reading);
    EXPECT_EQ(notice(b), "Copied 1 word");
}

TEST_F(TextCopyTest, ShowsHowMuchIsRead) {
    EXPECT_EQ(fraction(a), -1);
    actions.copyText(a, 0);
    EXPECT_EQ(fraction(a), 0);
    wait(0.5 * reading);
    EXPECT_EQ(fraction(a), 0.5);
    EXPECT_TRUE(isBeingRead(a));
    EXPECT_THAT(pasteboard.contents(), IsEmpty());
}

TEST_F(TextCopyTest, TheNoticeStandsForThreeSeconds) {
    actions.copyText(a, 0);
    wait(reading + noticeTime - 0.1);
    EXPECT_EQ(notice(a), "Copied 4 words");
    wait(0.1);
    EXPECT_EQ(copying(a), std::nullopt);
}

TEST_F(TextCopyTest, APictureWithoutWordsLeavesTheClipboardAsItIs) {
    actions.copyPaths({b});
    for (const char* text : {"", "| — ~"}) {
        textReader.addText(a->url(), text);
        actions.copyText(a, 0);
        wait(reading);
        EXPECT_EQ(notice(a), "No text found");
        EXPECT_THAT(pasteboard.contents(), ElementsAre("text /shots/b.png"));
    }
}

TEST_F(TextCopyTest, AFailureIsTold) {
    const auto damaged = capture("damaged");
    showAll({damaged});
    actions.copyText(damaged, 0);
    wait(reading);
    EXPECT_EQ(notice(damaged), "It cannot be opened.");
    EXPECT_THAT(pasteboard.contents(), IsEmpty());
    wait(noticeTime);
    EXPECT_EQ(copying(damaged), std::nullopt);
}

TEST_F(TextCopyTest, ACaptureIsReadOnceAtATime) {
    actions.copyText(a, 0);
    wait(0.5 * reading);
    actions.copyText(a, 1);
    EXPECT_EQ(fraction(a), 0.5);
    EXPECT_THAT(textReader.requests, ElementsAre(std::pair(a->url(), 0)));
    wait(0.5 * reading);
    EXPECT_EQ(pasteboard.timesWritten, 1);
}

TEST_F(TextCopyTest, ANewReadingReplacesTheNotice) {
    actions.copyText(a, 0);
    wait(reading + 1);
    actions.copyText(a, 3);
    EXPECT_TRUE(isBeingRead(a));
    EXPECT_EQ(fraction(a), 0);
    EXPECT_EQ(textReader.requests.back(), std::pair(a->url(), 3));
    wait(reading + noticeTime - 0.1);
    EXPECT_EQ(notice(a), "Copied 4 words") << "the timer of the first notice has no effect";
}

TEST_F(TextCopyTest, SeveralCapturesAreReadSideBySide) {
    actions.copyText(a, 0);
    wait(0.5 * reading);
    actions.copyText(b, 0);
    wait(0.5 * reading);
    EXPECT_EQ(notice(a), "Copied 4 words");
    EXPECT_EQ(fraction(b), 0.5);
    wait(0.5 * reading);
    EXPECT_EQ(notice(b), "Copied 1 word");
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text Hello"));
}

TEST_F(TextCopyTest, StoppingLeavesNoNotice) {
    actions.copyText(a, 0);
    actions.copyText(b, 0);
    wait(0.5 * reading);
    actions.stopCopyingText(a);
    EXPECT_EQ(copying(a), std::nullopt);
    wait(60);
    EXPECT_EQ(copying(a), std::nullopt);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text Hello")) << "the other one goes on";
}

TEST_F(TextCopyTest, StoppingDoesNotEndANotice) {
    actions.copyText(a, 0);
    wait(reading);
    actions.stopCopyingText(a);
    EXPECT_EQ(notice(a), "Copied 4 words");
}

TEST_F(TextCopyTest, ACaptureThatLeavesStopsItsReading) {
    actions.copyText(a, 0);
    actions.copyText(b, 0);
    actions.close(a);
    EXPECT_EQ(copying(a), std::nullopt);
    EXPECT_TRUE(isBeingRead(b));
    wait(reading);
    EXPECT_EQ(pasteboard.timesWritten, 1);
}

TEST_F(TextCopyTest, ACaptureThatLeavesTakesItsNoticeWithIt) {
    actions.copyText(a, 0);
    wait(reading);
    actions.trash(a);
    EXPECT_EQ(copying(a), std::nullopt);
    wait(noticeTime);
    EXPECT_EQ(copying(a), std::nullopt);
}

TEST_F(TextCopyTest, ADismissalStopsEverythingAtOnce) {
    actions.copyText(a, 0);
    actions.closeAll();
    EXPECT_THAT(state->textCopying.value(), IsEmpty());
    wait(60);
    EXPECT_THAT(pasteboard.contents(), IsEmpty());
}

TEST_F(TextCopyTest, ARenamedCaptureGoesOn) {
    actions.copyText(a, 0);
    actions.beginRenaming(a);
    actions.finishRenaming("c");
    wait(reading);
    EXPECT_EQ(notice(a), "Copied 4 words");
}

TEST_F(TextCopyTest, NothingIsReadIfTextCannotBeRecognized) {
    textReader.available = false;
    EXPECT_FALSE(actions.canCopyText(a));
    actions.copyText(a, 0);
    EXPECT_EQ(copying(a), std::nullopt);
    EXPECT_THAT(textReader.requests, IsEmpty());
}

TEST_F(TextCopyTest, RecordingsHaveNoText) {
    const auto film = recording("film");
    showAll({film});
    EXPECT_TRUE(actions.canCopyText(a));
    EXPECT_FALSE(actions.canCopyText(film));
    actions.copyText(film, 0);
    EXPECT_THAT(textReader.requests, IsEmpty());
}

TEST_F(TextCopyTest, CopyingTextIsNoUseOfTheCapture) {
    settings.removeAfterUse.set(true);
    settings.deleteAfterUse.set(true);
    actions.copyText(a, 0);
    wait(60);
    EXPECT_THAT(shownNames(), ElementsAre("a.png", "b.png"));
    EXPECT_THAT(trash.trashed, IsEmpty());
}

TEST_F(TextCopyTest, NothingHappensAfterTheControllerHasGone) {
    actions.copyText(a, 0);
    releaseController();
    EXPECT_FALSE(actions.canCopyText(b));
    actions.copyText(b, 0);
    actions.stopCopyingText(a);
    wait(60);
    EXPECT_THAT(pasteboard.contents(), IsEmpty());
}

/// The card would leave after a second.
class TextCopyCountdownTest : public TextCopyTest {
protected:
    TextCopyCountdownTest() {
        settings.dismissAfter.set(1);
        showAll({a, b});
    }
};

TEST_F(TextCopyCountdownTest, TheCountdownWaitsWhileReadingAndLeavesTimeForTheNotice) {
    actions.copyText(a, 0);
    wait(reading + 2.4);
    EXPECT_TRUE(controller().isVisible());
    EXPECT_EQ(notice(a), "Copied 4 words");
    wait(0.1);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(TextCopyCountdownTest, TheCountdownGoesOnAfterAStop) {
    actions.copyText(a, 0);
    wait(1);
    actions.stopCopyingText(a);
    wait(2.5);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(TextCopyCountdownTest, TheCountdownGoesOnAfterTwoReadings) {
    actions.copyText(a, 0);
    wait(reading);
    actions.copyText(a, 0);
    wait(reading);
    EXPECT_TRUE(controller().isVisible());
    wait(2.5);
    EXPECT_FALSE(controller().isVisible());
}

}  // namespace
}  // namespace vantle
