#pragma once

#include <QtQml/qqmlregistration.h>

#include <QQuickPaintedItem>

namespace vantle {

/// The translucent plate on which the card's tiles stand. Clicks are caught exactly where it is, by
/// the content above it: it takes none itself.
class GlassBackdropView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    /// An opaque plate in the colour of windows, for pictures that are to look alike everywhere.
    Q_PROPERTY(bool plain MEMBER plain_ NOTIFY changed)

public:
    explicit GlassBackdropView(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    /// Where it stands in its window, "{{x, y}, {w, h}}" in whole points from the top left;
    /// "(no window)" while it is in none.
    QString debugFrameDescription() const;

signals:
    void changed();

private:
    double cornerRadius_ = 22;
    bool plain_ = false;
};

}  // namespace vantle
