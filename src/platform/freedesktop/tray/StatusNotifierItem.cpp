#include "platform/freedesktop/tray/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <utility>

#include "platform/freedesktop/BusCall.h"

namespace vantle {
namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString menuPath = QStringLiteral("/MenuBar");
const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// Converts by hand, because Qt's conversion would keep memory allocated for good.
BusPixmap pixmap(const QImage& icon) {
    BusPixmap pixmap{icon.width(), icon.height(), {}};
    pixmap.pixels.reserve(icon.sizeInBytes());
    const auto* pixels = reinterpret_cast<const QRgb*>(icon.constBits());
    for (int i = 0; i < icon.width() * icon.height(); ++i) {
        const QRgb plain = qUnpremultiply(pixels[i]);
        for (const int part : {qAlpha(plain), qRed(plain), qGreen(plain), qBlue(plain)})
            pixmap.pixels.append(static_cast<char>(part));
    }
    return pixmap;
}

}  // namespace

StatusNotifierItem::StatusNotifierItem(Description description, const TrayIcon& icon,
                                       std::function<vantle::Menu()> makeMenu,
                                       const QDBusConnection& bus)
    : description_(std::move(description)), icon_(icon), menu_(std::move(makeMenu)), bus_(bus) {}

StatusNotifierItem::~StatusNotifierItem() {
    if (!isPublished_) return;
    bus_.unregisterObject(itemPath);
    bus_.unregisterObject(menuPath);
}

void StatusNotifierItem::start() {
    if (isPublished_) return;
    if (!bus_.isConnected()) {
        setState(false, false);
        return;
    }
    publish();
    auto* watcher =
        new QDBusServiceWatcher(watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
            [this] { registerWithWatcher(); });
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { setState(false, false); });
    for (const auto* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus_.connect(watcherName, watcherPath, watcherName, QString::fromLatin1(signal), this,
                     SLOT(askForHost()));
    registerWithWatcher();
}

void StatusNotifierItem::publish() {
    constexpr auto everything = QDBusConnection::ExportAllSlots |
                                QDBusConnection::ExportAllSignals |
                                QDBusConnection::ExportAllProperties;
    bus_.registerObject(itemPath, this, everything);
    bus_.registerObject(menuPath, &menu_, everything);
    isPublished_ = true;
}

void StatusNotifierItem::registerWithWatcher() {
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath, watcherName,
                                                  QStringLiteral("RegisterStatusNotifierItem"));
    message.setAutoStartService(false);
    message << itemPath;
    callBus(bus_, message, *this, [this](const QDBusMessage& reply) {
        if (isError(reply)) {
            setState(false, false);
            return;
        }
        isRegistered_ = true;
        askForHost();
    });
}

void StatusNotifierItem::askForHost() {
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath,
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("Get"));
    message.setAutoStartService(false);
    message << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    callBus(bus_, message, *this, [this](const QDBusMessage& reply) {
        const auto answer = reply.arguments().value(0).value<QDBusVariant>().variant();
        setState(isRegistered_, !isError(reply) && answer.toBool());
    });
}

void StatusNotifierItem::setState(bool isRegistered, bool hasHost) {
    isRegistered_ = isRegistered;
    hasHost_ = hasHost;
    isSettled_ = true;
    if (onChange) onChange();
}

BusPixmaps StatusNotifierItem::iconPixmap() const {
    // Trays choose the picture that fits best.
    BusPixmaps pixmaps;
    for (const int size : TrayIcon::sizes) pixmaps << pixmap(icon_.image(size));
    return pixmaps;
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(menuPath);
}

void StatusNotifierItem::Activate(int x, int y) {
    if (onActivate) onActivate(QPoint(x, y));
}

}  // namespace vantle
