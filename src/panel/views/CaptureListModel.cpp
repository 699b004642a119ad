#include "panel/views/CaptureListModel.h"

#include <algorithm>

#include "panel/CardLayout.h"
#include "panel/NewName.h"
#include "panel/views/DisplayText.h"
#include "support/DisplayName.h"

namespace vantle {
namespace {

/// The tile of a single capture is at least as wide as the card's controls need.
double tileWidth(const Capture& capture, int count) {
    return count == 1 ? CardLayout::singleWidth(capture)
                      : CardLayout::tileSize(count, capture).width;
}

const UUID& idOf(const CapturePointer& capture) {
    return capture->id();
}

}  // namespace

int CaptureListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant CaptureListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const Capture& capture = *row.capture;
    switch (role) {
        case captureIdRole:
            return QString::fromStdString(capture.id().text());
        case fileNameRole:
            return QString::fromStdString(displayName(capture.fileName()));
        case positionRole:
            return positionOf(capture.id());
        case tileXRole:
            return row.x;
        case tileWidthRole:
            return row.width;
        case thumbnailHeightRole:
            return row.height;
        case hasThumbnailRole:
            return capture.thumbnail() != nullptr;
        case isRecordingRole:
            return capture.kind() == CaptureKind::video;
        case durationTextRole:
            return durationText(capture.duration());
        case isLeavingRole:
            return row.isLeaving;
        case isRenamingRole:
        case changeableNameRole:
        case extensionRole:
        case refusalRole:
            return nameData(capture, role);
        case trashNoticeRole:
        case canUndoTrashRole:
            return noticeData(capture.id(), role);
        case isReadingTextRole:
        case textProgressRole:
        case textNoticeRole:
            return textData(capture.id(), role);
        default:
            return markData(capture.id(), role);
    }
}

QVariant CaptureListModel::nameData(const Capture& capture, int role) const {
    const bool isRenaming = renaming_ && renaming_->captureID == capture.id();
    const std::string name = changeablePart(capture.fileName());
    switch (role) {
        case isRenamingRole:
            return isRenaming;
        case changeableNameRole:
            return QString::fromStdString(displayName(name));
        case extensionRole:
            return QString::fromStdString(displayName(capture.fileName().substr(name.size())));
        default:
            return isRenaming ? QString::fromStdString(renaming_->refusal) : QString();
    }
}

QVariant CaptureListModel::noticeData(const UUID& id, int role) const {
    const auto found = notices_.find(id);
    if (role == canUndoTrashRole)
        return found != notices_.end() && found->second == TrashNotice::moved;
    return found == notices_.end() ? QString() : trashNoticeText(found->second);
}

QVariant CaptureListModel::textData(const UUID& id, int role) const {
    const auto found = textCopying_.find(id);
    const auto text = found == textCopying_.end() ? std::nullopt : std::optional(found->second);
    switch (role) {
        case isReadingTextRole:
            return text && text->notice.empty();
        case textProgressRole:
            return text ? text->fraction : 0.0;
        default:
            return text ? QString::fromStdString(text->notice) : QString();
    }
}

QVariant CaptureListModel::markData(const UUID& id, int role) const {
    switch (role) {
        case isSelectedRole:
            return selected_.contains(id);
        case isPinnedRole:
            return pinned_.contains(id);
        case isCopiedRole:
            return copied_ == id;
        case openingFailureRole:
            return openingFailure_ && openingFailure_->captureID == id
                       ? openingFailureText(openingFailure_->reason)
                       : QString();
        default:
            return {};
    }
}

QHash<int, QByteArray> CaptureListModel::roleNames() const {
    return {{captureIdRole, "captureId"},
            {fileNameRole, "fileName"},
            {positionRole, "position"},
            {tileXRole, "tileX"},
            {tileWidthRole, "tileWidth"},
            {thumbnailHeightRole, "thumbnailHeight"},
            {hasThumbnailRole, "hasThumbnail"},
            {isRecordingRole, "isRecording"},
            {durationTextRole, "durationText"},
            {isSelectedRole, "isSelected"},
            {isPinnedRole, "isPinned"},
            {isCopiedRole, "isCopied"},
            {openingFailureRole, "openingFailure"},
            {isLeavingRole, "isLeaving"},
            {isRenamingRole, "isRenaming"},
            {changeableNameRole, "changeableName"},
            {extensionRole, "extension"},
            {refusalRole, "refusal"},
            {trashNoticeRole, "trashNotice"},
            {canUndoTrashRole, "canUndoTrash"},
            {isReadingTextRole, "isReadingText"},
            {textProgressRole, "textProgress"},
            {textNoticeRole, "textNotice"}};
}

void CaptureListModel::setTiles(const std::vector<CapturePointer>& captures,
                                const std::map<UUID, TrashNotice>& notices) {
    notices_ = notices;
    tiles_ = withTrashed(captures);
    markLeaving();
    updateRows(layOut());
    // The size of a tile depends on the number of tiles, its place on the tiles before it.
    announce({fileNameRole, changeableNameRole, extensionRole, isLeavingRole, positionRole,
              tileXRole, tileWidthRole, thumbnailHeightRole, trashNoticeRole, canUndoTrashRole});
}

std::vector<CapturePointer> CaptureListModel::withTrashed(
    std::vector<CapturePointer> captures) const {
    auto place = captures.begin();
    for (const auto& tile : tiles_) {
        const auto kept = std::ranges::find(captures, tile->id(), idOf);
        if (kept != captures.end())
            place = std::next(kept);
        else if (notices_.contains(tile->id()))
            place = std::next(captures.insert(place, tile));
    }
    return captures;
}

std::vector<CaptureListModel::Row> CaptureListModel::layOut() const {
    const int count = static_cast<int>(tiles_.size());
    std::vector<Row> rows;
    double x = 0;
    for (const auto& capture : tiles_) {
        const double width = tileWidth(*capture, count);
        rows.push_back({capture, x, width, CardLayout::tileSize(count, *capture).height});
        x += width + CardLayout::spacing;
    }
    return rows;
}

void CaptureListModel::markLeaving() {
    for (Row& row : rows_) row.isLeaving = positionOf(row.capture->id()) < 0;
}

/// Puts the rows of the captures that stay into their order. The rows that are leaving keep their
/// places between them.
void CaptureListModel::updateRows(std::vector<Row> staying) {
    int row = 0;
    for (Row& wanted : staying) {
        while (row < rowCount() && rows_[static_cast<std::size_t>(row)].isLeaving) ++row;
        const int from = rowOf(wanted.capture->id(), row);
        if (from == rowCount()) {
            beginInsertRows({}, row, row);
            rows_.insert(rows_.begin() + row, std::move(wanted));
            endInsertRows();
        } else {
            if (from != row) {
                beginMoveRows({}, from, from, {}, row);
                std::rotate(rows_.begin() + row, rows_.begin() + from, rows_.begin() + from + 1);
                endMoveRows();
            }
            rows_[static_cast<std::size_t>(row)] = std::move(wanted);
        }
        ++row;
    }
}

int CaptureListModel::rowOf(const UUID& id, int from) const {
    while (from < rowCount() && rows_[static_cast<std::size_t>(from)].capture->id() != id) ++from;
    return from;
}

void CaptureListModel::setSelected(const std::set<UUID>& selected) {
    selected_ = selected;
    announce({isSelectedRole});
}

void CaptureListModel::setPinned(const std::set<UUID>& pinned) {
    pinned_ = pinned;
    announce({isPinnedRole});
}

void CaptureListModel::setCopied(const std::optional<UUID>& copied) {
    copied_ = copied;
    announce({isCopiedRole});
}

void CaptureListModel::setRenaming(const std::optional<PanelState::Renaming>& renaming) {
    renaming_ = renaming;
    announce({isRenamingRole, refusalRole});
}

void CaptureListModel::setOpeningFailure(const std::optional<PanelState::OpeningFailure>& failure) {
    openingFailure_ = failure;
    announce({openingFailureRole});
}

void CaptureListModel::setTextCopying(const std::map<UUID, PanelState::TextCopying>& all) {
    textCopying_ = all;
    announce({isReadingTextRole, textProgressRole, textNoticeRole});
}

void CaptureListModel::forget(const QString& captureId) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        const Row& candidate = rows_[static_cast<std::size_t>(row)];
        if (candidate.isLeaving && candidate.capture->id().text() == captureId.toStdString())
            remove(row);
    }
}

void CaptureListModel::clear() {
    beginResetModel();
    tiles_.clear();
    rows_.clear();
    endResetModel();
}

void CaptureListModel::remove(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

int CaptureListModel::positionOf(const UUID& id) const {
    const auto found = std::ranges::find(tiles_, id, idOf);
    return found == tiles_.end() ? -1 : static_cast<int>(found - tiles_.begin());
}

void CaptureListModel::announce(const QList<int>& roles) {
    if (!rows_.empty()) emit dataChanged(index(0), index(rowCount() - 1), roles);
}

int CaptureListModel::selectedCount() const {
    return static_cast<int>(std::ranges::count_if(
        tiles_, [this](const auto& capture) { return selected_.contains(capture->id()); }));
}

CapturePointer CaptureListModel::stayingCapture(const QString& captureId) const {
    const auto found = capture(captureId);
    const bool stays = found && positionOf(found->id()) >= 0 && !notices_.contains(found->id());
    return stays ? found : nullptr;
}

CapturePointer CaptureListModel::capture(const QString& captureId) const {
    const auto found = std::ranges::find(rows_, captureId.toStdString(),
                                         [](const Row& row) { return row.capture->id().text(); });
    return found == rows_.end() ? nullptr : found->capture;
}

}  // namespace vantle
