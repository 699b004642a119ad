#include "platform/freedesktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <cerrno>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/qt/DisplayServer.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

constexpr uint responseSuccess = 0;
constexpr uint responseCancelled = 1;

QString nextToken() {
    static unsigned count = 0;
    return QStringLiteral("vantle%1").arg(++count);
}

QString handleOf(const QDBusConnection& bus, const QString& token) {
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return path + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
}

}  // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const Call& call, Answered answered)
    : bus_(bus), answered_(std::move(answered)) {
    if (!bus_.isConnected()) {
        QTimer::singleShot(0, this, [this] { end(systemFailure(ENOTCONN)); });
        return;
    }
    auto* watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { end(systemFailure(ECANCELED)); });
    const QString token = nextToken();
    handle_ = handleOf(bus_, token);
    bus_.connect(service, handle_, requestInterface, QStringLiteral("Response"), this,
                 SLOT(responded(uint, QVariantMap)));
    auto message = QDBusMessage::createMethodCall(service, path, call.interface, call.method);
    QVariantMap options = call.options;
    options.insert(QStringLiteral("handle_token"), token);
    message.setArguments(call.arguments + QVariantList{options});
    callBus(bus_, message, *this, [this](const QDBusMessage& reply) {
        if (isError(reply)) end(Failure{EIO, reply.errorMessage().toStdString(), {}});
    });
}

PortalRequest::~PortalRequest() {
    if (!answered_) return;
    bus_.send(QDBusMessage::createMethodCall(service, handle_, requestInterface,
                                             QStringLiteral("Close")));
}

void PortalRequest::responded(uint response, const QVariantMap& results) {
    if (response == responseSuccess)
        end(results);
    else
        end(systemFailure(response == responseCancelled ? ECANCELED : EIO));
}

void PortalRequest::end(const Result<QVariantMap>& result) {
    bus_.disconnect(service, handle_, requestInterface, QStringLiteral("Response"), this,
                    SLOT(responded(uint, QVariantMap)));
    if (const auto answered = std::exchange(answered_, nullptr)) answered(result);
}

QString portalParentWindow() {
    const QWindow* window = QGuiApplication::focusWindow();
    return window ? DisplayServer::current().exportedWindowName(*window) : QString();
}

}  // namespace vantle
