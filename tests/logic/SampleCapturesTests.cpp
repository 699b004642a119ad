#include "AppFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Url temporary = Url::file("/tmp/user");
const Url firstFile = temporary.appending("Vantle Sample.png");
const Url secondFile = temporary.appending("Vantle Sample 2.png");

class SampleCapturesTest : public AppFixture {
protected:
    SampleCapturesTest() { (void)files->createDirectory(temporary); }

    std::vector<std::string> shownNames() const {
        std::vector<std::string> names;
        for (const auto& capture : delegate->panel().state().captures.value())
            names.push_back(capture->fileName());
        return names;
    }
};

TEST_F(SampleCapturesTest, TheSecondOneIsShown16TenthsOfASecondAfterTheFirst) {
    launch();
    platform.vantleShowDemo.notify();
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("Vantle Sample.png"));
    time.advance(Seconds(1.59));
    EXPECT_THAT(shownNames(), ElementsAre("Vantle Sample.png"));
    time.advance(Seconds(0.02));
    EXPECT_THAT(shownNames(), ElementsAre("Vantle Sample.png", "Vantle Sample 2.png"));
    const auto& captures = delegate->panel().state().captures.value();
    EXPECT_EQ(captures[1]->date() - captures[0]->date(), std::chrono::milliseconds(1600));
}

TEST_F(SampleCapturesTest, BothAreWrittenAtOnce) {
    launch();
    delegate->showDemo();
    time.settle();
    EXPECT_EQ(files->contents(firstFile), "drawing 1");
    EXPECT_EQ(files->contents(secondFile), "drawing 2");
}

TEST_F(SampleCapturesTest, TheyAreDrawnAsDescribed) {
    launch();
    delegate->showDemo();
    time.settle();
    ASSERT_EQ(canvas->drawn.size(), 2u);
    const auto components = [](const Color& color) {
        return std::vector{color.red, color.green, color.blue, color.alpha};
    };
    const Drawing& first = canvas->drawn[0];
    EXPECT_EQ(first.size, (Size{1600, 1000}));
    EXPECT_THAT(components(first.background.start), ElementsAre(0.36, 0.45, 0.98, 1.0));
    EXPECT_THAT(components(first.background.end), ElementsAre(0.86, 0.40, 0.80, 1.0));
    EXPECT_EQ(first.background.angle, -30);
    ASSERT_TRUE(first.text);
    EXPECT_EQ(first.text->text, "Sample screenshot");
    EXPECT_EQ(first.text->fontSize, 110);
    const Drawing& second = canvas->drawn[1];
    EXPECT_EQ(second.size, (Size{900, 1200}));
    EXPECT_THAT(components(second.background.start), ElementsAre(0.98, 0.62, 0.30, 1.0));
    EXPECT_THAT(components(second.background.end), ElementsAre(0.95, 0.30, 0.50, 1.0));
    EXPECT_EQ(second.background.angle, -60);
    EXPECT_FALSE(second.text);
}

TEST_F(SampleCapturesTest, TheyAreNotCopiedAndMakeNoSoundAndAreNotRecent) {
    defaults->stored["copyOnCapture"] = true;
    defaults->stored["playSound"] = true;
    launch();
    events.clear();
    delegate->showDemo();
    time.advance(Seconds(2));
    EXPECT_EQ(shownNames().size(), 2u);
    EXPECT_THAT(events, ElementsAre("panel made"));
    EXPECT_THAT(pasteboard->contents(), IsEmpty());
    EXPECT_THAT(recentNames(), IsEmpty());
}

TEST_F(SampleCapturesTest, ShowsNothingIfNothingCanBeWritten) {
    launch();
    files->makeReadOnly(temporary);
    delegate->showDemo();
    time.advance(Seconds(2));
    EXPECT_FALSE(panel.isOnScreen);
    EXPECT_THAT(alerts->shown, IsEmpty());
}

TEST_F(SampleCapturesTest, AFailureToDrawOneDoesNotPreventTheOther) {
    launch();
    canvas->failure = Failure{ENOMEM, "no memory", ""};
    delegate->showDemo();
    time.settle();
    EXPECT_FALSE(panel.isOnScreen);
    EXPECT_EQ(canvas->drawn.size(), 2u);
}

TEST_F(SampleCapturesTest, TwoCallsMakeTwoOfEachAndThePanelKeepsTheLaterOnes) {
    launch();
    delegate->showDemo();
    time.advance(Seconds(0.1));
    delegate->showDemo();
    time.advance(Seconds(2));
    EXPECT_EQ(canvas->drawn.size(), 4u);
    EXPECT_EQ(files->contents(firstFile), "drawing 3");
    EXPECT_EQ(files->contents(secondFile), "drawing 4");
    EXPECT_THAT(shownNames(), ElementsAre("Vantle Sample.png", "Vantle Sample 2.png"));
}

TEST_F(SampleCapturesTest, NothingIsShownAfterTheEnd) {
    launch();
    delegate->showDemo();
    delegate.reset();
    time.advance(Seconds(2));
    EXPECT_FALSE(panel.isOnScreen);
}

}  // namespace
}  // namespace vantle
