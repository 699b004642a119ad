#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/VirtualTime.h"
#include "panel/DebugSnapshots.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DebugSnapshotsTest : public testing::Test {
protected:
    DebugSnapshotsTest() {
        snapshots->onDue = [this](const std::string& path) { drawn.push_back(path); };
    }
    void wait(double seconds) { time.advance(Seconds(seconds)); }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    std::vector<std::string> drawn;
    std::shared_ptr<DebugSnapshots> snapshots = DebugSnapshots::create(scheduler);
};

TEST_F(DebugSnapshotsTest, AreDrawnWhenTheCardHasComeToRest) {
    snapshots->schedule("/tmp/card.png");
    wait(1.19);
    EXPECT_THAT(drawn, IsEmpty());
    wait(0.01);
    EXPECT_THAT(drawn, ElementsAre("/tmp/card.png"));
}

TEST_F(DebugSnapshotsTest, FewAreDrawnInABurstAndTheLastOneAlways) {
    const int crowd = 300;
    for (int i = 1; i <= crowd; ++i) {
        snapshots->schedule(std::to_string(i));
        wait(0.01);
    }
    wait(1.19);
    EXPECT_EQ(drawn.size(), 4u);  // one each second, and one of the last capture
    EXPECT_EQ(drawn.back(), "300");
    wait(10);
    EXPECT_EQ(drawn.size(), 4u);
}

TEST_F(DebugSnapshotsTest, AreNotDrawnAfterTheEnd) {
    snapshots->schedule("/tmp/card.png");
    snapshots.reset();
    wait(10);
    EXPECT_THAT(drawn, IsEmpty());
}

}  // namespace
}  // namespace vantle
