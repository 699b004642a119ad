#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>

namespace vantle {

/// The colours of the desktop's palette, as the card names them.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QColor primary READ primary CONSTANT)
    Q_PROPERTY(QColor secondary READ secondary CONSTANT)
    Q_PROPERTY(QColor accent READ accent CONSTANT)

public:
    using QObject::QObject;

    static bool isDark();
    static QColor primary();
    static QColor secondary();
    static QColor accent();
    static QColor windowBackground();
    /// The translucent stuff of the plate where nothing blurs what is behind it.
    static QColor popoverMaterial();
};

}  // namespace vantle
