#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QStringList>

#include "platform/Alerts.h"

namespace vantle {

/// Provides an alert to its view. The view answers with the number of a button, from 0.
class AlertModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the alert window")

    Q_PROPERTY(bool isWarning READ isWarning CONSTANT)
    Q_PROPERTY(QString messageText READ messageText CONSTANT)
    Q_PROPERTY(QString informativeText READ informativeText CONSTANT)
    Q_PROPERTY(QStringList buttons READ buttons CONSTANT)

public:
    /// `alert` must outlive this object.
    explicit AlertModel(const Alert& alert) : alert_(alert) {}

    bool isWarning() const { return alert_.style == Alert::Style::warning; }
    QString messageText() const { return QString::fromStdString(alert_.messageText); }
    QString informativeText() const { return QString::fromStdString(alert_.informativeText); }
    QStringList buttons() const {
        QStringList titles;
        for (const auto& title : alert_.buttons) titles << QString::fromStdString(title);
        return titles;
    }

signals:
    void answered(int button);

private:
    const Alert& alert_;
};

}  // namespace vantle
