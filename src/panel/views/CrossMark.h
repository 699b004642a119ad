#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QPainter>
#include <QQuickPaintedItem>

namespace vantle {

/// The cross of a closing button, in the size of this item.
class CrossMark : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY changed)

public:
    explicit CrossMark(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {
        connect(this, &CrossMark::changed, this, [this] { update(); });
    }

    void paint(QPainter* painter) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(color_, lineWidth_, Qt::SolidLine, Qt::RoundCap));
        const double inset = lineWidth_ / 2;
        const QRectF box = boundingRect().adjusted(inset, inset, -inset, -inset);
        painter->drawLine(box.topLeft(), box.bottomRight());
        painter->drawLine(box.topRight(), box.bottomLeft());
    }

signals:
    void changed();

private:
    QColor color_ = Qt::white;
    double lineWidth_ = 1.8;
};

}  // namespace vantle
