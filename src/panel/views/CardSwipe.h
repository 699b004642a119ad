#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>

namespace vantle {

/// The part of the card that fingers on a touchpad move. The card tells it how far the row of tiles
/// is scrolled; SwipeFilter reads that and emits the signals. Offsets are in points, velocities in
/// points a second; right and down are positive.
class CardSwipe : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double rowPosition MEMBER rowPosition_ NOTIFY rowChanged)
    Q_PROPERTY(double maximumRowPosition MEMBER maximumRowPosition_ NOTIFY rowChanged)

public:
    using QObject::QObject;

    double rowPosition() const { return rowPosition_; }
    double maximumRowPosition() const { return maximumRowPosition_; }

signals:
    void rowChanged();
    /// Emitted when the content of the row must move to the right by `offset`.
    void rowScrolled(double offset);
    void cardMoved(double offset);
    void cardReleased(double velocity);
    /// Emitted when the card has begun to leave.
    void cardThrown(double velocity);
    void tileMoved(const QString& captureId, double offset);
    void tileReleased(const QString& captureId, double velocity);
    /// Emitted when the tile has begun to leave, towards `offset`.
    void tileThrown(const QString& captureId, double offset, double velocity);

private:
    double rowPosition_ = 0;
    double maximumRowPosition_ = 0;
};

}  // namespace vantle
