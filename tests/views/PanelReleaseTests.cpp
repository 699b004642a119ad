#include <QSGNode>

#include "CardFixture.h"

namespace vantle {
namespace {

class CountedNode final : public QSGNode {
public:
    explicit CountedNode(int& count) : count_(count) { ++count_; }
    ~CountedNode() override { --count_; }

private:
    int& count_;
};

/// An item that counts its scene graph nodes, so that a test sees whether they still exist.
class DrawnItem final : public QQuickItem {
public:
    explicit DrawnItem(int& nodes) : nodes_(nodes) { setFlag(ItemHasContents); }

private:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override {
        return old ? old : new CountedNode(nodes_);
    }

    int& nodes_;
};

class PanelReleaseTest : public CardFixture {
protected:
    PanelReleaseTest() {
        show({capture("a"), capture("b")});
        makeCard();
    }
};

TEST_F(PanelReleaseTest, ReleasesTheNodesOfTheCard) {
    int nodes = 0;
    auto item = std::make_unique<DrawnItem>(nodes);
    item->setParentItem(window().contentItem());
    ASSERT_TRUE(QTest::qWaitFor([&] { return nodes == 1; }));
    state.visible.set(false);
    panel->orderOut();
    item.reset();
    panel->releaseResources();
    EXPECT_EQ(nodes, 0);
}

TEST_F(PanelReleaseTest, TheNextCardIsDrawnAsTheFirstOneWas) {
    const QImage before = window().grabWindow();
    const auto captures = state.captures.value();
    state.visible.set(false);
    rest();
    panel->orderOut();
    panel->releaseResources();
    EXPECT_FALSE(window().isVisible());
    state.captures.set(captures);
    panel->orderFrontRegardless();
    state.visible.set(true);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
    rest();
    EXPECT_EQ(window().grabWindow(), before);
}

}  // namespace
}  // namespace vantle
