#include "panel/views/CaptureListModel.h"

#include <algorithm>

#include "panel/CardLayout.h"
#include "panel/views/DisplayText.h"

namespace vantle {
namespace {

auto positionOf(const std::vector<CapturePointer>& captures, const UUID& id) {
    return std::ranges::find(captures, id, [](const auto& capture) { return capture->id(); });
}

/// Alone a capture's tile is at least as wide as the card's controls need.
double tileWidth(const Capture& capture, int count) {
    return count == 1 ? CardLayout::singleWidth(capture)
                      : CardLayout::tileSize(count, capture).width;
}

}  // namespace

int CaptureListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(captures_.size());
}

QVariant CaptureListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Capture& capture = *captures_[static_cast<std::size_t>(index.row())];
    const int count = rowCount();
    switch (role) {
        case captureIdRole:
            return QString::fromStdString(capture.id().text());
        case fileNameRole:
            return displayName(capture.fileName());
        case tileXRole:
            return tileX(index.row());
        case tileWidthRole:
            return tileWidth(capture, count);
        case thumbnailHeightRole:
            return CardLayout::tileSize(count, capture).height;
        case pixelSizeTextRole:
            return pixelSizeText(capture.pixelSize());
        case isRecordingRole:
            return capture.kind() == CaptureKind::video;
        case durationTextRole:
            return durationText(capture.duration());
        case isSelectedRole:
            return selected_.contains(capture.id());
        case isPinnedRole:
            return pinned_.contains(capture.id());
        default:
            return {};
    }
}

QHash<int, QByteArray> CaptureListModel::roleNames() const {
    return {{captureIdRole, "captureId"},
            {fileNameRole, "fileName"},
            {tileXRole, "tileX"},
            {tileWidthRole, "tileWidth"},
            {thumbnailHeightRole, "thumbnailHeight"},
            {pixelSizeTextRole, "pixelSizeText"},
            {isRecordingRole, "isRecording"},
            {durationTextRole, "durationText"},
            {isSelectedRole, "isSelected"},
            {isPinnedRole, "isPinned"}};
}

void CaptureListModel::setCaptures(const std::vector<CapturePointer>& captures) {
    removeMissing(captures);
    insertAndMove(captures);
    // The size of a tile depends on how many there are, its place on those before it.
    announce({tileXRole, tileWidthRole, thumbnailHeightRole});
}

void CaptureListModel::removeMissing(const std::vector<CapturePointer>& captures) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        const auto shown = captures_.begin() + row;
        if (positionOf(captures, (*shown)->id()) != captures.end()) continue;
        beginRemoveRows({}, row, row);
        captures_.erase(shown);
        endRemoveRows();
    }
}

void CaptureListModel::insertAndMove(const std::vector<CapturePointer>& captures) {
    for (int row = 0; row < static_cast<int>(captures.size()); ++row) {
        const CapturePointer& wanted = captures[static_cast<std::size_t>(row)];
        const auto from =
            static_cast<int>(positionOf(captures_, wanted->id()) - captures_.cbegin());
        if (from == rowCount()) {
            beginInsertRows({}, row, row);
            captures_.insert(captures_.begin() + row, wanted);
            endInsertRows();
        } else if (from != row) {
            beginMoveRows({}, from, from, {}, row);
            std::rotate(captures_.begin() + row, captures_.begin() + from,
                        captures_.begin() + from + 1);
            endMoveRows();
        }
    }
}

void CaptureListModel::setSelected(const std::set<UUID>& selected) {
    selected_ = selected;
    announce({isSelectedRole});
}

void CaptureListModel::setPinned(const std::set<UUID>& pinned) {
    pinned_ = pinned;
    announce({isPinnedRole});
}

double CaptureListModel::tileX(int row) const {
    double x = 0;
    for (int before = 0; before < row; ++before)
        x += tileWidth(*captures_[static_cast<std::size_t>(before)], rowCount()) +
             CardLayout::spacing;
    return x;
}

void CaptureListModel::announce(const QList<int>& roles) {
    if (!captures_.empty()) emit dataChanged(index(0), index(rowCount() - 1), roles);
}

CapturePointer CaptureListModel::capture(const QString& captureId) const {
    const auto found = std::ranges::find(captures_, captureId.toStdString(),
                                         [](const auto& one) { return one->id().text(); });
    return found == captures_.end() ? nullptr : *found;
}

}  // namespace vantle
