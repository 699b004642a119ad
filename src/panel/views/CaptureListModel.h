#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>
#include <optional>
#include <set>
#include <vector>

#include "capture/Capture.h"
#include "support/UUID.h"

namespace vantle {

/// The captures on the card as rows. Changes are announced as inserts, removals and moves of single
/// rows, matched by the captures' identifiers, so that views can animate them. A removed capture
/// keeps its row, with its place and size, until the view has shown it leaving.
class CaptureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_NAMED_ELEMENT(CaptureList)
    QML_UNCREATABLE("created by the panel")

public:
    enum Role {
        captureIdRole = Qt::UserRole,
        fileNameRole,
        positionRole,  ///< Among the captures that stay, from 0; -1 for one that leaves.
        tileXRole,     ///< Distance from the left edge of the row's first tile.
        tileWidthRole,
        thumbnailHeightRole,
        hasThumbnailRole,
        isRecordingRole,
        durationTextRole,
        isSelectedRole,
        isPinnedRole,
        isCopiedRole,
        isMissingRole,  ///< Its file was gone when it was needed.
        isLeavingRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setCaptures(const std::vector<CapturePointer>& captures);
    void setSelected(const std::set<UUID>& selected);
    void setPinned(const std::set<UUID>& pinned);
    void setCopied(const std::optional<UUID>& copied);
    void setMissing(const std::optional<UUID>& missing);

    /// Removes the row of a capture that has been shown leaving. Does nothing if the capture is
    /// back.
    void forget(const QString& captureId);
    void clear();

    /// Returns null if no row has that identifier.
    CapturePointer capture(const QString& captureId) const;
    /// Like capture(), but also returns null for a capture that is leaving.
    CapturePointer stayingCapture(const QString& captureId) const;
    /// Returns how many of the captures that stay are selected.
    int selectedCount() const;
    /// Returns the captures that stay.
    const std::vector<CapturePointer>& captures() const { return captures_; }

private:
    struct Row {
        CapturePointer capture;
        double x = 0;
        double width = 0;
        double height = 0;
        bool isLeaving = false;
    };

    std::vector<Row> layOut() const;
    void markLeaving();
    void updateRows(std::vector<Row> staying);
    int rowOf(const UUID& id, int from) const;
    QVariant markData(const UUID& id, int role) const;
    int positionOf(const UUID& id) const;
    void remove(int row);
    void announce(const QList<int>& roles);

    std::vector<CapturePointer> captures_;
    std::vector<Row> rows_;
    std::set<UUID> selected_;
    std::set<UUID> pinned_;
    std::optional<UUID> copied_;
    std::optional<UUID> missing_;
};

}  // namespace vantle
