#pragma once

#include <QtQml/qqmlregistration.h>

#include <QQuickPaintedItem>

namespace vantle {

/// The black shadow of a rounded plate of this item's size minus `blur` on each side. The blurred
/// picture is made once for each size: it is painted only when that changes.
class ShadowView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY changed)
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed)

public:
    explicit ShadowView(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    double cornerRadius_ = 0;
    double blur_ = 0;
    double strength_ = 0;
};

}  // namespace vantle
