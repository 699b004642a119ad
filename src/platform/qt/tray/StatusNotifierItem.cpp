#include "platform/qt/tray/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QtEndian>
#include <array>
#include <utility>

#include "platform/qt/BusCall.h"

namespace vantle {
namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString menuPath = QStringLiteral("/MenuBar");
const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

// Trays take the one that fits best.
constexpr std::array iconSizes = {16, 22, 24, 32, 48};

BusPixmap pixmap(const QImage& icon) {
    const QImage argb = icon.convertToFormat(QImage::Format_ARGB32);
    BusPixmap pixmap{argb.width(), argb.height(),
                     QByteArray(argb.sizeInBytes(), Qt::Uninitialized)};
    qToBigEndian<quint32>(argb.constBits(), argb.width() * argb.height(), pixmap.pixels.data());
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
        settle(false, false);
        return;
    }
    publish();
    auto* watcher =
        new QDBusServiceWatcher(watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { offer(); });
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { settle(false, false); });
    for (const auto* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus_.connect(watcherName, watcherPath, watcherName, QString::fromLatin1(signal), this,
                     SLOT(askForHost()));
    offer();
}

void StatusNotifierItem::publish() {
    constexpr auto everything = QDBusConnection::ExportAllSlots |
                                QDBusConnection::ExportAllSignals |
                                QDBusConnection::ExportAllProperties;
    bus_.registerObject(itemPath, this, everything);
    bus_.registerObject(menuPath, &menu_, everything);
    isPublished_ = true;
}

void StatusNotifierItem::offer() {
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath, watcherName,
                                                  QStringLiteral("RegisterStatusNotifierItem"));
    message.setAutoStartService(false);
    message << itemPath;
    callBus(bus_, message, *this, [this](const QDBusMessage& reply) {
        if (isError(reply)) {
            settle(false, false);
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
        settle(isRegistered_, !isError(reply) && answer.toBool());
    });
}

void StatusNotifierItem::settle(bool isRegistered, bool hasHost) {
    isRegistered_ = isRegistered;
    hasHost_ = hasHost;
    isSettled_ = true;
    if (onChange) onChange();
}

BusPixmaps StatusNotifierItem::iconPixmap() const {
    BusPixmaps pixmaps;
    for (const int size : iconSizes) pixmaps << pixmap(icon_.image(size));
    return pixmaps;
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(menuPath);
}

void StatusNotifierItem::Activate(int x, int y) {
    if (onActivate) onActivate(QPoint(x, y));
}

}  // namespace vantle
