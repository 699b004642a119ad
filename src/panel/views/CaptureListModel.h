#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "capture/Capture.h"
#include "panel/PanelState.h"
#include "support/UUID.h"

namespace vantle {

/// The tiles on the card as rows: its captures, and the notices of those that were trashed. Changes
/// are announced as inserts, removals and moves of single rows, matched by the captures'
/// identifiers, so that views can animate them. A removed capture keeps its row, with its place and
/// size, until the view has shown it leaving.
class CaptureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_NAMED_ELEMENT(CaptureList)
    QML_UNCREATABLE("created by the panel")

public:
    enum Role {
        captureIdRole = Qt::UserRole,
        fileNameRole,
        positionRole,  ///< Among the tiles that stay, from 0; -1 for one that leaves.
        tileXRole,     ///< Distance from the left edge of the row's first tile.
        tileWidthRole,
        thumbnailHeightRole,
        hasThumbnailRole,
        isRecordingRole,
        durationTextRole,
        isSelectedRole,
        isPinnedRole,
        isCopiedRole,
        openingFailureRole,  ///< Why it could not be opened; empty if there is nothing to say.
        isRenamingRole,      ///< The user is typing its name.
        changeableNameRole,  ///< The part of its file's name that the user can change.
        extensionRole,       ///< The rest of the name, with the full stop.
        refusalRole,         ///< Why the latest name was refused; empty if none was.
        trashNoticeRole,     ///< The text of the notice that replaces the tile; empty if there is
                             ///< none.
        canUndoTrashRole,    ///< The file is in the Trash and can come back.
        isReadingTextRole,   ///< The text in its picture is being copied.
        textProgressRole,    ///< How much of its picture is read, 0 to 1.
        textNoticeRole,      ///< What became of its text; empty if there is nothing to say.
        isLeavingRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows these captures. A capture that is gone from them and has a notice keeps its tile.
    void setTiles(const std::vector<CapturePointer>& captures,
                  const std::map<UUID, TrashNotice>& notices = {});
    void setSelected(const std::set<UUID>& selected);
    void setPinned(const std::set<UUID>& pinned);
    void setCopied(const std::optional<UUID>& copied);
    void setRenaming(const std::optional<PanelState::Renaming>& renaming);
    void setOpeningFailure(const std::optional<PanelState::OpeningFailure>& failure);
    void setTextCopying(const std::map<UUID, PanelState::TextCopying>& all);

    /// Removes the row of a capture that has been shown leaving. Does nothing if the capture is
    /// back.
    void forget(const QString& captureId);
    void clear();

    /// Returns null if no row has that identifier.
    CapturePointer capture(const QString& captureId) const;
    /// Like capture(), but also returns null for a capture that is leaving or was trashed.
    CapturePointer stayingCapture(const QString& captureId) const;
    /// Returns how many of the captures that stay are selected.
    int selectedCount() const;
    /// Returns the captures of all tiles that stay, trashed ones included.
    const std::vector<CapturePointer>& tiles() const { return tiles_; }

private:
    struct Row {
        CapturePointer capture;
        double x = 0;
        double width = 0;
        double height = 0;
        bool isLeaving = false;
    };

    /// Adds the captures of the notices at the places of their tiles.
    std::vector<CapturePointer> withTrashed(std::vector<CapturePointer> captures) const;
    QVariant nameData(const Capture& capture, int role) const;
    QVariant noticeData(const UUID& id, int role) const;
    QVariant textData(const UUID& id, int role) const;
    std::vector<Row> layOut() const;
    void markLeaving();
    void updateRows(std::vector<Row> staying);
    int rowOf(const UUID& id, int from) const;
    QVariant markData(const UUID& id, int role) const;
    int positionOf(const UUID& id) const;
    void remove(int row);
    void announce(const QList<int>& roles);

    std::vector<CapturePointer> tiles_;
    std::map<UUID, TrashNotice> notices_;
    std::vector<Row> rows_;
    std::set<UUID> selected_;
    std::set<UUID> pinned_;
    std::optional<UUID> copied_;
    std::optional<PanelState::OpeningFailure> openingFailure_;
    std::optional<PanelState::Renaming> renaming_;
    std::map<UUID, PanelState::TextCopying> textCopying_;
};

}  // namespace vantle
