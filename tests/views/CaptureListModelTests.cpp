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
    model.setCaptures({a, b});
    changes.clear();
    model.setCaptures({a, b, c});
    EXPECT_THAT(changes, ElementsAre("insert 2"));
}

TEST_F(CaptureListModelTest, ARemovalLeavesTheOtherRowsAlone) {
    model.setCaptures({a, b, c});
    changes.clear();
    model.setCaptures({a, c});
    EXPECT_THAT(changes, IsEmpty()) << "its row stays until it has been shown leaving";
    EXPECT_EQ(at(1, CaptureListModel::isLeavingRole), true);
    EXPECT_EQ(at(2, CaptureListModel::positionRole), 1);
    model.forget(QString::fromStdString(b->id().text()));
    EXPECT_THAT(changes, ElementsAre("remove 1"));
    EXPECT_EQ(model.captures(), (std::vector<CapturePointer>{a, c}));
}

TEST_F(CaptureListModelTest, AnotherOrderMovesRows) {
    model.setCaptures({a, b, c});
    changes.clear();
    model.setCaptures({c, a, b});
    EXPECT_THAT(changes, ElementsAre("move 2 to 0"));
    EXPECT_EQ(model.captures(), (std::vector<CapturePointer>{c, a, b}));
}

TEST_F(CaptureListModelTest, ARetakenCaptureOfTheSameFileIsAnotherRow) {
    model.setCaptures({a, b});
    changes.clear();
    const auto again = capture("a");
    model.setCaptures({b, again});
    EXPECT_THAT(changes, ElementsAre("insert 2"));
    EXPECT_EQ(at(0, CaptureListModel::isLeavingRole), true);
    model.forget(QString::fromStdString(a->id().text()));
    EXPECT_EQ(at(1, CaptureListModel::captureIdRole), QString::fromStdString(again->id().text()));
}

TEST_F(CaptureListModelTest, ACaptureThatComesBackKeepsItsRow) {
    model.setCaptures({a, b, c});
    model.setCaptures({a, c});
    model.setCaptures({a, c, b});
    model.forget(QString::fromStdString(b->id().text()));
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(at(2, CaptureListModel::captureIdRole), QString::fromStdString(b->id().text()));
    EXPECT_EQ(at(2, CaptureListModel::isLeavingRole), false);
}

TEST_F(CaptureListModelTest, ALeavingCaptureKeepsItsPlaceAndSize) {
    model.setCaptures({a, b});
    model.setCaptures({a});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 304);
    EXPECT_EQ(at(1, CaptureListModel::tileXRole), 212);
    EXPECT_EQ(at(1, CaptureListModel::tileWidthRole), 202);
}

TEST_F(CaptureListModelTest, TheSameListChangesNoRows) {
    model.setCaptures({a, b});
    changes.clear();
    model.setCaptures({a, b});
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(CaptureListModelTest, AllChangesAtOnceGiveTheNewOrder) {
    std::vector<CapturePointer> before;
    for (int i = 0; i < 8; ++i) before.push_back(capture(std::to_string(i)));
    model.setCaptures(before);
    const std::vector<CapturePointer> after{before[7], a, before[2], before[3], b, before[0], c};
    model.setCaptures(after);
    EXPECT_EQ(model.captures(), after);
    EXPECT_THAT(changes, testing::Not(testing::Contains("reset")));
}

TEST_F(CaptureListModelTest, TileSizesFollowTheCount) {
    model.setCaptures({a});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 304);
    EXPECT_EQ(at(0, CaptureListModel::thumbnailHeightRole), 190);
    int announced = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, [&] { ++announced; });
    model.setCaptures({a, b});
    EXPECT_EQ(at(0, CaptureListModel::tileWidthRole), 202);
    EXPECT_EQ(at(1, CaptureListModel::tileXRole), 212);
    EXPECT_EQ(announced, 1);
    model.setCaptures({a, b, c});
    EXPECT_EQ(at(2, CaptureListModel::tileXRole), 340);
    EXPECT_EQ(at(2, CaptureListModel::thumbnailHeightRole), 100);
}

TEST_F(CaptureListModelTest, SelectionAndPinsAreFoundByIdentifier) {
    model.setCaptures({a, b});
    model.setSelected({b->id()});
    model.setPinned({a->id()});
    EXPECT_EQ(at(0, CaptureListModel::isSelectedRole), false);
    EXPECT_EQ(at(1, CaptureListModel::isSelectedRole), true);
    EXPECT_EQ(at(0, CaptureListModel::isPinnedRole), true);
    EXPECT_EQ(model.capture(QString::fromStdString(b->id().text())), b);
    EXPECT_EQ(model.capture(QStringLiteral("none")), nullptr);
}

}  // namespace
}  // namespace vantle
