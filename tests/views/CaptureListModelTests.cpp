#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "panel/views/CaptureListModel.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CapturePointer capture(const std::string& name) {
    return Capture::create(Url::file("/shots/" + name + ".png"), Date{});
}

class CaptureListModelTest : public testing::Test {
protected:
    CaptureListModelTest() {
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                         [this](const QModelIndex&, int row, int) {
                             changes.push_back("insert " + std::to_string(row));
                         });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model,
                         [this](const QModelIndex&, int row, int) {
                             changes.push_back("remove " + std::to_string(row));
                         });
        QObject::connect(
            &model, &QAbstractItemModel::rowsMoved, &model,
            [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
                changes.push_back("move " + std::to_string(from) + " to " + std::to_string(to));
            });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &model,
                         [this] { changes.push_back("reset"); });
    }

    QVariant at(int row, int role) { return model.data(model.index(row), role); }

    CaptureListModel model;
    std::vector<std::string> changes;
    CapturePointer a = capture("a");
    CapturePointer b = capture("b");
    CapturePointer c = capture("c");
};

TEST_F(CaptureListModelTest, ANewCaptureInsertsOneRow) {
    model.setTiles({a, b});
    changes.clear();
    model.setTiles({a, b, c});
    EXPECT_THAT(changes, ElementsAre("insert 2"));
}

TEST_F(CaptureListModelTest, ARemovalLeavesTheOtherRowsAlone) {
    model.setTiles({a, b, c});
    changes.clear();
    model.setTiles({a, c});
    EXPECT_THAT(changes, IsEmpty()) << "its row stays until it has been shown leaving";
    EXPECT_EQ(at(1, CaptureListModel::isLeavingRole), true);
    EXPECT_EQ(at(2, CaptureListModel::positionRole), 1);
    model.forget(QString::fromStdString(b->id().text()));
    EXPECT_THAT(changes, ElementsAre("remove 1"));
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{a, c}));
}

TEST_F(CaptureListModelTest, AnotherOrderMovesRows) {
    model.setTiles({a, b, c});
    changes.clear();
    model.setTiles({c, a, b});
    EXPECT_THAT(changes, ElementsAre("move 2 to 0"));
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{c, a, b}));
}

TEST_F(CaptureListModelTest, ARetakenCaptureOfTheSameFileIsAnotherRow) {
    model.setTiles({a, b});
    changes.clear();
    const auto again = capture("a");
    model.setTiles({b, again});
    EXPECT_THAT(changes, ElementsAre("insert 2"));
    EXPECT_EQ(at(0, CaptureListModel::isLeavingRole), true);
    model.forget(QString::fromStdString(a->id().text()));
    EXPECT_EQ(at(1, CaptureListModel::captureIdRole), QString::fromStdString(again->id().text()));
}

TEST_F(CaptureListModelTest, ACaptureThatComesBackKeepsItsRow) {
    model.setTiles({a, b, c});
    model.setTiles({a, c});
    model.setTiles({a, c, b});
    model.forget(QString::fromStdString(b->id().text()));
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(at(2, CaptureListModel::captureIdRole), QString::fromStdString(b->id().text()));
    EXPECT_EQ(at(2, CaptureListModel::isLeavingRole), false);
}

TEST_F(CaptureListModelTest, ALeavingCaptureKeepsItsPlaceAndSize) {
    model.setTiles({a, b});
    model.setTiles({a});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 304);
    EXPECT_EQ(at(1, CaptureListModel::tileXRole), 212);
    EXPECT_EQ(at(1, CaptureListModel::tileWidthRole), 202);
}

TEST_F(CaptureListModelTest, TheSameListChangesNoRows) {
    model.setTiles({a, b});
    changes.clear();
    model.setTiles({a, b});
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(CaptureListModelTest, AllChangesAtOnceGiveTheNewOrder) {
    std::vector<CapturePointer> before;
    for (int i = 0; i < 8; ++i) before.push_back(capture(std::to_string(i)));
    model.setTiles(before);
    const std::vector<CapturePointer> after{before[7], a, before[2], before[3], b, before[0], c};
    model.setTiles(after);
    EXPECT_EQ(model.tiles(), after);
    EXPECT_THAT(changes, testing::Not(testing::Contains("reset")));
}

TEST_F(CaptureListModelTest, TileSizesFollowTheCount) {
    model.setTiles({a});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 304);
    EXPECT_EQ(at(0, CaptureListModel::thumbnailHeightRole), 190);
    int announced = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, [&] { ++announced; });
    model.setTiles({a, b});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 202);
    EXPECT_EQ(at(1, CaptureListModel::tileXRole), 212);
    EXPECT_EQ(announced, 1);
    model.setTiles({a, b, c});
    EXPECT_EQ(at(2, CaptureListModel::tileXRole), 340);
    EXPECT_EQ(at(2, CaptureListModel::thumbnailHeightRole), 100);
}

TEST_F(CaptureListModelTest, SelectionAndPinsAreFoundByIdentifier) {
    model.setTiles({a, b});
    model.setSelected({b->id()});
    model.setPinned({a->id()});
    EXPECT_EQ(at(0, CaptureListModel::isSelectedRole), false);
    EXPECT_EQ(at(1, CaptureListModel::isSelectedRole), true);
    EXPECT_EQ(at(0, CaptureListModel::isPinnedRole), true);
    EXPECT_EQ(model.capture(QString::fromStdString(b->id().text())), b);
    EXPECT_EQ(model.capture(QStringLiteral("none")), nullptr);
}

TEST_F(CaptureListModelTest, ATrashedCaptureKeepsItsPlaceForItsNotice) {
    model.setTiles({a, b, c});
    changes.clear();
    model.setTiles({a, c}, {{b->id(), TrashNotice::moved}});
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{a, b, c}));
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(at(1, CaptureListModel::trashNoticeRole), QStringLiteral("Moved to Trash"));
    EXPECT_EQ(at(1, CaptureListModel::canUndoTrashRole), true);
    EXPECT_EQ(at(0, CaptureListModel::trashNoticeRole), QString());
    EXPECT_EQ(model.stayingCapture(QString::fromStdString(b->id().text())), nullptr);
}

TEST_F(CaptureListModelTest, NoticesStayBehindTheirNeighbours) {
    model.setTiles({a, b, c});
    model.setTiles({c}, {{a->id(), TrashNotice::moved}, {b->id(), TrashNotice::moved}});
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{a, b, c}));
    const auto d = capture("d");
    model.setTiles({d, c}, {{b->id(), TrashNotice::moved}});
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{b, d, c}));
}

TEST_F(CaptureListModelTest, AnEndedNoticeLeavesItsTile) {
    model.setTiles({a, b});
    model.setTiles({a}, {{b->id(), TrashNotice::moved}});
    model.setTiles({a});
    EXPECT_EQ(model.tiles(), (std::vector<CapturePointer>{a}));
    EXPECT_EQ(at(1, CaptureListModel::isLeavingRole), true);
}

}  // namespace
}  // namespace vantle
