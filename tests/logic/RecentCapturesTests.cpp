#include "AppFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RecentCapturesTest : public AppFixture {
protected:
    /// Launches, adds one screenshot, and waits until it has left the card.
    CapturePointer takeAndDismiss() {
        launch();
        media->addImage(url, Size{2560, 1440}, {2560, 1440});
        save("shot.png");
        delegate->panel().dismiss();
        time.advance(Seconds(1));
        EXPECT_THAT(shown(), IsEmpty());
        return delegate->recent().front();
    }
    const std::vector<CapturePointer>& shown() const {
        return delegate->panel().state().captures.value();
    }
    void choose(const CapturePointer& recent) {
        delegate->statusBar().onShow(recent);
        time.settle();
    }

    const Url url = folder.appending("shot.png");
};

TEST_F(RecentCapturesTest, The21stCaptureRemovesTheOldest) {
    launch();
    for (int i = 1; i <= 21; ++i) save(std::to_string(i) + ".png");
    EXPECT_EQ(recentNames().size(), 20u);
    EXPECT_EQ(recentNames().front(), "21.png");
    EXPECT_EQ(recentNames().back(), "2.png");
}

TEST_F(RecentCapturesTest, AnEqualOneMovesToTheFront) {
    launch();
    save("a.png");
    save("b.png");
    files->remove(folder.appending("a.png"));
    time.settle();
    save("a.png");
    EXPECT_THAT(recentNames(), ElementsAre("a.png", "b.png"));
}

TEST_F(RecentCapturesTest, KeepPicturesAsSmallAsTheMenuNeedsThem) {
    launch();
    media->addImage(url, Size{2560, 1440}, {2560, 1440});
    save("shot.png");
    EXPECT_EQ(shown().front()->thumbnail()->pixelsWide, 800);
    const auto& kept = delegate->recent().front()->thumbnail();
    EXPECT_EQ(kept->pixelsWide, 108);
    EXPECT_EQ(kept->pixelsHigh, 60);
    EXPECT_EQ(kept->size, shown().front()->thumbnail()->size);
}

TEST_F(RecentCapturesTest, AreShownAgainWithTheirFullPicture) {
    const auto recent = takeAndDismiss();
    choose(recent);
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(*shown().front(), *recent);
    EXPECT_EQ(shown().front()->date(), recent->date());
    EXPECT_EQ(shown().front()->thumbnail()->pixelsWide, 800);
    EXPECT_TRUE(delegate->panel().isVisible());
}

TEST_F(RecentCapturesTest, AreShownWithTheSmallPictureIfTheFileIsGone) {
    const auto recent = takeAndDismiss();
    media->addDamagedImage(url, std::nullopt, {});
    choose(recent);
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front(), recent);
}

TEST_F(RecentCapturesTest, AreNotLoadedAgainWhileOnTheCard) {
    launch();
    media->addImage(url, Size{2560, 1440}, {2560, 1440});
    save("shot.png");
    save("other.png");
    const auto first = shown().front();
    const auto drawn = media->drawnSizes.size();
    choose(delegate->recent().back());
    EXPECT_EQ(media->drawnSizes.size(), drawn);
    ASSERT_THAT(shown(), SizeIs(2));
    EXPECT_EQ(shown().back(), first);  // it has moved to the end
}

TEST_F(RecentCapturesTest, AreNotShownAfterTheProgramHasEnded) {
    const auto recent = takeAndDismiss();
    const auto onShow = delegate->statusBar().onShow;
    onShow(recent);
    delegate.reset();
    time.settle();
    EXPECT_FALSE(panel.isOnScreen);
}

}  // namespace
}  // namespace vantle
