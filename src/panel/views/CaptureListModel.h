#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>
#include <set>
#include <vector>

#include "capture/Capture.h"
#include "support/UUID.h"

namespace vantle {

/// The captures on show as rows. Changes are told as inserts, removals and moves of single rows, by
/// the captures' identifiers, so that views can animate them.
class CaptureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_NAMED_ELEMENT(CaptureList)
    QML_UNCREATABLE("made by the panel")

public:
    enum Role {
        captureIdRole = Qt::UserRole,
        fileNameRole,
        tileXRole,  ///< From the left edge of the row's first tile.
        tileWidthRole,
        thumbnailHeightRole,
        pixelSizeTextRole,
        isRecordingRole,
        durationTextRole,
        isSelectedRole,
        isPinnedRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setCaptures(const std::vector<CapturePointer>& captures);
    void setSelected(const std::set<UUID>& selected);
    void setPinned(const std::set<UUID>& pinned);

    /// Null when no capture has that identifier.
    CapturePointer capture(const QString& captureId) const;
    const std::vector<CapturePointer>& captures() const { return captures_; }

private:
    void removeMissing(const std::vector<CapturePointer>& captures);
    void insertAndMove(const std::vector<CapturePointer>& captures);
    double tileX(int row) const;
    void announce(const QList<int>& roles);

    std::vector<CapturePointer> captures_;
    std::set<UUID> selected_;
    std::set<UUID> pinned_;
};

}  // namespace vantle
