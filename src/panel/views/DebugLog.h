#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>

#include "support/Debug.h"

namespace vantle {

/// Lets QML write to the debug log.
class DebugLog : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static void write(const QString& line) {
        Debug::log([&line] { return line.toStdString(); });
    }
};

}  // namespace vantle
