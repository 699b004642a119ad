#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

/// When the panel releases the resources of the card.
class PanelReleaseTest : public fakes::PanelFixture {
protected:
    PanelReleaseTest() { settings.dismissAfter.set(0); }

    void expectReleased(int times) {
        EXPECT_EQ(panel.timesReleased, times);
        EXPECT_EQ(spareMemory.timesGivenBack, times);
    }
};

TEST_F(PanelReleaseTest, HappensTwoSecondsAfterTheCardHasLeft) {
    show({"a", "b"});
    controller().dismiss();
    wait(0.5);
    EXPECT_FALSE(panel.isOnScreen);
    wait(1.9);
    expectReleased(0);
    wait(0.1);
    expectReleased(1);
}

TEST_F(PanelReleaseTest, DoesNotHappenWhileTheCardIsVisible) {
    show({"a"});
    wait(3600);
    expectReleased(0);
}

TEST_F(PanelReleaseTest, DoesNotHappenAgain) {
    show({"a"});
    controller().dismiss();
    wait(3600);
    expectReleased(1);
    EXPECT_EQ(time.pending(), 0u);
}

TEST_F(PanelReleaseTest, WaitsForTheNextCardToLeave) {
    show({"a"});
    controller().dismiss();
    wait(2.4);
    show({"b"});
    wait(3600);
    expectReleased(0);
    controller().dismiss();
    wait(2.5);
    expectReleased(1);
}

TEST_F(PanelReleaseTest, HappensOnceForARepeatedDismissal) {
    show({"a"});
    controller().dismiss();
    wait(1);
    controller().dismiss();
    wait(3600);
    expectReleased(1);
}

TEST_F(PanelReleaseTest, DoesNotHappenWithoutACard) {
    controller().dismiss();
    wait(3600);
    expectReleased(0);
}

TEST_F(PanelReleaseTest, DoesNotHappenAfterTheControllerHasGone) {
    show({"a"});
    controller().dismiss();
    wait(1);
    releaseController();
    wait(3600);
    expectReleased(0);
}

}  // namespace
}  // namespace vantle
