#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>
#include <optional>
#include <set>
#include <vector>

#include "capture/Capture.h"
#include "support/UUID.h"

namespace vantle {

/// The captures on the card as rows. Changes are told as inserts, removals and moves of single
/// rows, by the captures' identifiers, so that views can animate them. A capture that is taken out
/// keeps its row, where it was and as large as it was, until the view has shown it leaving.
class CaptureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_NAMED_ELEMENT(CaptureList)
    QML_UNCREATABLE("made by the panel")

public:
    enum Role {
        captureIdRole = Qt::UserRole,
        fileNameRole,
        positionRole,  ///< Among the captures that stay, from 0.
        tileXRole,     ///< From the left edge of the row's first tile.
        tileWidthRole,
        thumbnailHeightRole,
        hasThumbnailRole,
        isRecordingRole,
        durationTextRole,
        isSelectedRole,
        isPinnedRole,
        isCopiedRole,
        isMissingRole,  ///< Its file was gone when it was to be used.
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

    /// Takes the row of a capture that has been shown leaving; nothing when it is back.
    void forget(const QString& captureId);
    void clear();

    /// Null when no row has that identifier.
    CapturePointer capture(const QString& captureId) const;
    /// The same; null as well for a capture that leaves.
    CapturePointer present(const QString& captureId) const;
    /// How many of those that stay are selected.
    int selectedCount() const;
    /// Those that stay.
    const std::vector<CapturePointer>& captures() const { return captures_; }

private:
    struct Row {
        CapturePointer capture;
        double x = 0;
        double width = 0;
        double height = 0;
        bool isLeaving = false;
    };

    std::vector<Row> laidOut() const;
    void markLeaving();
    void bringIntoOrder(std::vector<Row> staying);
    int rowOf(const UUID& id, int from) const;
    QVariant marks(const UUID& id, int role) const;
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
