#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>

#include "panel/CardLayout.h"

namespace vantle {

/// Gives QML the constants of CardLayout with which the card is drawn: `CardLayout.padding`.
class QmlCardLayout : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(CardLayout)
    QML_SINGLETON

    Q_PROPERTY(double padding READ padding CONSTANT)
    Q_PROPERTY(double innerMargin READ innerMargin CONSTANT)
    Q_PROPERTY(double maxContentWidth READ maxContentWidth CONSTANT)
    Q_PROPERTY(double thumbnailCornerRadius READ thumbnailCornerRadius CONSTANT)

public:
    static double padding() { return CardLayout::padding; }
    static double innerMargin() { return CardLayout::innerMargin; }
    static double maxContentWidth() { return CardLayout::maxContentWidth; }
    static double thumbnailCornerRadius() { return CardLayout::thumbnailCornerRadius; }
};

}  // namespace vantle
