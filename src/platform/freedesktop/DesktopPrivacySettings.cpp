#include "platform/freedesktop/DesktopPrivacySettings.h"

#include <QDBusArgument>
#include <utility>

#include "platform/freedesktop/BusCall.h"

namespace vantle {

DesktopPrivacySettings::DesktopPrivacySettings(std::string identifier, FileOpener& opener,
                                               DesktopFileOpener::Sandbox sandbox,
                                               const QDBusConnection& bus)
    : identifier_(std::move(identifier)), opener_(opener), sandbox_(sandbox), bus_(bus) {}

void DesktopPrivacySettings::open(const Url& folder) {
    if (sandbox_ == DesktopFileOpener::Sandbox::flatpak)
        openPageOfProgram(folder);
    else
        openProperties(folder);
}

void DesktopPrivacySettings::openPageOfProgram(const Url& folder) {
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.gnome.Settings"), QStringLiteral("/org/gnome/Settings"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
    QDBusArgument page;
    page.beginStructure();
    page << QStringLiteral("applications") << QVariantList{QString::fromStdString(identifier_)};
    page.endStructure();
    message << QStringLiteral("launch-panel") << QVariantList{QVariant::fromValue(page)}
            << QVariantMap();
    callBus(bus_, message, *this, [this, folder](const QDBusMessage& reply) {
        if (isError(reply)) openProperties(folder);
    });
}

void DesktopPrivacySettings::openProperties(const Url& folder) {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("/org/freedesktop/FileManager1"),
                                                  QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("ShowItemProperties"));
    message << QStringList{QString::fromStdString(folder.address())} << QString();
    callBus(bus_, message, *this, [this, folder](const QDBusMessage& reply) {
        if (isError(reply)) opener_.reveal({folder});
    });
}

}  // namespace vantle
