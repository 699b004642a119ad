#include "platform/freedesktop/PortalFolderChooser.h"

#include <QDBusVariant>
#include <QTimer>
#include <cerrno>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.FileChooser");

/// The first version that can start in a given folder.
constexpr uint versionThatStartsInAFolder = 4;

QDBusMessage versionQuery() {
    auto message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    return message << interface << QStringLiteral("version");
}

uint version(const QDBusMessage& reply) {
    if (isError(reply)) return 0;
    return reply.arguments().value(0).value<QDBusVariant>().variant().toUInt();
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

PortalFolderChooser::~PortalFolderChooser() = default;

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

void PortalFolderChooser::open(const FolderRequest& request) {
    // The portal takes the path as bytes with a zero at the end.
    const QByteArray directory(request.directory.path().c_str(),
                               static_cast<qsizetype>(request.directory.path().size() + 1));
    const PortalRequest::Call call{
        interface,
        QStringLiteral("OpenFile"),
        {portalParentWindow(), QString::fromStdString(request.message)},
        {{QStringLiteral("accept_label"), QString::fromStdString(request.acceptLabel)},
         {QStringLiteral("directory"), true},
         {QStringLiteral("current_folder"), directory}}};
    request_ = std::make_unique<PortalRequest>(bus_, call,
                                               [this](const auto& result) { responded(result); });
}

void PortalFolderChooser::responded(const Result<QVariantMap>& result) {
    if (!result && result.failure().code != ECANCELED)
        systemLog("Vantle: the desktop cannot show its folder dialog: " + result.failure().message);
    end(result ? folder(result.value()) : std::nullopt);
}

void PortalFolderChooser::end(const std::optional<Url>& folder) {
    // The request is calling this function, so it must not be deleted yet.
    if (request_) request_.release()->deleteLater();
    if (const auto chosen = std::exchange(chosen_, nullptr)) chosen(folder);
}

}  // namespace vantle
