#include "platform/freedesktop/PortalAppearance.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>
#include <array>

namespace vantle {
namespace {

using Settings = QMap<QString, QVariantMap>;

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString kde = QStringLiteral("org.kde.kdeglobals.KDE");

ColorScheme scheme(const QVariant& value) {
    switch (value.toUInt()) {
        case 1:
            return ColorScheme::dark;
        case 2:
            return ColorScheme::light;
        default:
            return ColorScheme::unknown;
    }
}

/// Returns the colour, or nothing if a component is outside 0 to 1, which means that none is set.
std::optional<Color> accent(const QVariant& value) {
    if (!value.canConvert<QDBusArgument>()) return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)")) return std::nullopt;
    std::array<double, 3> parts{};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    if (!std::ranges::all_of(parts, [](double part) { return part >= 0 && part <= 1; }))
        return std::nullopt;
    return Color{parts[0], parts[1], parts[2]};
}

/// Checks the settings of all desktops, because each has its own.
bool reducesMotion(const Settings& settings) {
    const QVariant animations = settings[gnome][QStringLiteral("enable-animations")];
    const QVariant duration = settings[kde][QStringLiteral("AnimationDurationFactor")];
    bool isNumber = false;
    const bool hasNoDuration = duration.toString().toDouble(&isNumber) == 0 && isNumber;
    return settings[appearance][QStringLiteral("reduced-motion")].toUInt() == 1 ||
           (animations.isValid() && !animations.toBool()) || hasNoDuration;
}

}  // namespace

PortalAppearance::PortalAppearance(const QDBusConnection& bus) {
    qDBusRegisterMetaType<Settings>();
    // Qt 6.4 refuses the slot unless QDBusVariant is registered.
    qRegisterMetaType<QDBusVariant>();
    QDBusConnection(bus).connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(bus);
}

void PortalAppearance::ask(const QDBusConnection& bus) {
    auto message =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    message << QStringList{appearance, gnome, kde};
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] { answered(*call); });
}

void PortalAppearance::answered(QDBusPendingCallWatcher& call) {
    const QDBusPendingReply<Settings> reply = call;
    call.deleteLater();
    // The desktop has no portal, so everything stays unknown.
    if (reply.isError()) return;
    settings_ = reply.value();
    publish();
}

void PortalAppearance::settingChanged(const QString& space, const QString& key,
                                      const QDBusVariant& value) {
    if (space != appearance && space != gnome && space != kde) return;
    settings_[space][key] = value.variant();
    publish();
}

void PortalAppearance::publish() {
    const QVariantMap common = settings_[appearance];
    const DesktopLook now{.scheme = scheme(common[QStringLiteral("color-scheme")]),
                          .accent = accent(common[QStringLiteral("accent-color")]),
                          .reducesMotion = reducesMotion(settings_)};
    if (now != look.value()) look.set(now);
}

}  // namespace vantle
