#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <functional>

#include "support/Result.h"

namespace vantle {

/// A request to the desktop's portal that the user answers in a dialog
/// (org.freedesktop.portal.Request). Destroying it closes the dialog. Main thread only.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    /// The call that makes the request, without its options.
    struct Call {
        QString interface;
        QString method;
        QVariantList arguments;
        QVariantMap options;
    };
    /// Gets the results, or a failure: ECANCELED if the user has closed the dialog.
    using Answered = std::function<void(const Result<QVariantMap>&)>;

    /// Calls `answered` once, never inside this call. It may destroy this object only with
    /// deleteLater().
    PortalRequest(const QDBusConnection& bus, const Call& call, Answered answered);
    ~PortalRequest() override;

private slots:
    void responded(uint response, const QVariantMap& results);

private:
    void end(const Result<QVariantMap>& result);

    QDBusConnection bus_;
    Answered answered_;  ///< Null once the user has answered.
    QString handle_;     ///< The request's path on the bus.
};

/// Returns the portal's name of the window that has the keyboard, to which a dialog belongs; empty
/// if there is none.
QString portalParentWindow();

}  // namespace vantle
