#include "platform/freedesktop/PortalFolderChooser.h"

#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/qt/DisplayServer.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// The first version that can start in a given folder.
constexpr uint versionThatStartsInAFolder = 4;
constexpr uint responseSuccess = 0;

QDBusMessage versionQuery() {
    auto message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    return message << interface << QStringLiteral("version");
}

uint version(const QDBusMessage& reply) {
    if (isError(reply)) return 0;
    return reply.arguments().value(0).value<QDBusVariant>().variant().toUInt();
}

/// Returns the portal's name of the window that the dialog belongs to; empty if there is none.
QString parentWindow() {
    const QWindow* window = QGuiApplication::focusWindow();
    return window ? DisplayServer::current().exportedWindowName(*window) : QString();
}

std::optional<Url> folder(const QVariantMap& results) {
    const QStringList addresses = results[QStringLiteral("uris")].toStringList();
    if (addresses.isEmpty()) return std::nullopt;
    auto url = Url::fromFileAddress(addresses.constFirst().toStdString());
    if (!url)
        systemLog("Vantle: the folder dialog returned something that is not a local folder: " +
                  addresses.constFirst().toStdString());
    return url;
}

}  // namespace

PortalFolderChooser::PortalFolderChooser(std::unique_ptr<FolderChooser> next,
                                         const QDBusConnection& bus)
    : next_(std::move(next)), bus_(bus) {}

PortalFolderChooser::~PortalFolderChooser() {
    if (handle_.isEmpty()) return;
    bus_.send(QDBusMessage::createMethodCall(service, handle_, requestInterface,
                                             QStringLiteral("Close")));
}

void PortalFolderChooser::choose(const FolderRequest& request, Chosen chosen) {
    if (chosen_) {
        QTimer::singleShot(0, this, [chosen = std::move(chosen)] { chosen(std::nullopt); });
        return;
    }
    chosen_ = std::move(chosen);
    callBus(bus_, versionQuery(), *this, [this, request](const QDBusMessage& reply) {
        if (version(reply) >= versionThatStartsInAFolder)
            open(request);
        else
            next_->choose(request, [this](const auto& folder) { end(folder); });
    });
}

void PortalFolderChooser::watchPortal() {
    if (std::exchange(watchesPortal_, true)) return;
    auto* watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        if (!handle_.isEmpty()) end(std::nullopt);
    });
}

void PortalFolderChooser::open(const FolderRequest& request) {
    watchPortal();
    const QString token = QStringLiteral("vantle%1").arg(++count_);
    const QString sender = bus_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    handle_ = path + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
    bus_.connect(service, handle_, requestInterface, QStringLiteral("Response"), this,
                 SLOT(responded(uint, QVariantMap)));
    auto message =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("OpenFile"));
    // The portal takes the path as bytes with a zero at the end.
    const QByteArray directory(request.directory.path().c_str(),
                               static_cast<qsizetype>(request.directory.path().size() + 1));
    message << parentWindow() << QString::fromStdString(request.message)
            << QVariantMap{
                   {QStringLiteral("handle_token"), token},
                   {QStringLiteral("accept_label"), QString::fromStdString(request.acceptLabel)},
                   {QStringLiteral("directory"), true},
                   {QStringLiteral("current_folder"), directory}};
    callBus(bus_, message, *this, [this](const QDBusMessage& reply) {
        if (!isError(reply)) return;
        systemLog("Vantle: the desktop cannot show its folder dialog: " +
                  reply.errorMessage().toStdString());
        end(std::nullopt);
    });
}

void PortalFolderChooser::responded(uint response, const QVariantMap& results) {
    end(response == responseSuccess ? folder(results) : std::nullopt);
}

void PortalFolderChooser::end(const std::optional<Url>& folder) {
    closeRequest();
    if (const auto chosen = std::exchange(chosen_, nullptr)) chosen(folder);
}

void PortalFolderChooser::closeRequest() {
    if (handle_.isEmpty()) return;
    bus_.disconnect(service, handle_, requestInterface, QStringLiteral("Response"), this,
                    SLOT(responded(uint, QVariantMap)));
    handle_.clear();
}

}  // namespace vantle
