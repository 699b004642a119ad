#include "platform/freedesktop/sharing/MailSharing.h"

#include <fcntl.h>

#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QStringList>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/FileCommand.h"
#include "support/FileDescriptor.h"
#include "support/Localization.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr std::array mailPrograms{FileProgram{"xdg-email", "--attach"}};

using Descriptors = QList<QDBusUnixFileDescriptor>;

QDBusMessage portalCall(const char* interface, const char* method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                          QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QString::fromLatin1(interface),
                                          QString::fromLatin1(method));
}

/// Returns true if the file, a list of default or of all programs, names one for mail addresses.
bool namesMailProgram(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) return false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith("x-scheme-handler/mailto=") && line.contains(".desktop")) return true;
    }
    return false;
}

}  // namespace

MailSharing::MailSharing(ProcessLauncher& launcher, Environment environment,
                         const QDBusConnection& bus)
    : launcher_(launcher), environment_(std::move(environment)), bus_(bus) {
    qDBusRegisterMetaType<Descriptors>();
}

bool MailSharing::hasMailProgram() const {
    const auto folders = [this](const char* variable, const QString& otherwise) {
        const auto value = environment_(variable);
        return (value && !value->empty() ? QString::fromStdString(*value) : otherwise)
            .split(QLatin1Char(':'), Qt::SkipEmptyParts);
    };
    const QString home = QString::fromStdString(environment_("HOME").value_or(""));
    for (const auto& folder : folders("XDG_CONFIG_HOME", home + QStringLiteral("/.config")) +
                                  folders("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg")))
        if (namesMailProgram(folder + QStringLiteral("/mimeapps.list"))) return true;
    for (const auto& folder :
         folders("XDG_DATA_HOME", home + QStringLiteral("/.local/share")) +
             folders("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share")))
        for (const auto* name : {"/applications/mimeapps.list", "/applications/mimeinfo.cache"})
            if (namesMailProgram(folder + QString::fromLatin1(name))) return true;
    return false;
}

void MailSharing::find(Found found) {
    if (!hasMailProgram()) {
        found({});
        return;
    }
    auto message = portalCall("org.freedesktop.DBus.Properties", "Get");
    message << QStringLiteral("org.freedesktop.portal.Email") << QStringLiteral("version");
    message.setAutoStartService(false);
    const auto answered = [this, found = std::move(found)](const QDBusMessage& reply) {
        SharingOffer offer{localized("SharingServicePicker", "Mail…"), "envelope", {}};
        if (!isError(reply))
            offer.perform = [this](const auto& files) { composeByPortal(files); };
        else if (commandFor(mailPrograms, {}))
            offer.perform = [this](const auto& files) { composeByDesktop(files); };
        found(offer.perform ? std::vector{offer} : std::vector<SharingOffer>{});
    };
    callBus(bus_, message, *this, answered, timeout);
}

void MailSharing::composeByPortal(const std::vector<Url>& files) {
    Descriptors attachments;
    for (const Url& file : files) {
        const FileDescriptor descriptor(open(file.path().c_str(), O_RDONLY | O_CLOEXEC));
        if (descriptor) attachments << QDBusUnixFileDescriptor(descriptor.get());
    }
    auto message = portalCall("org.freedesktop.portal.Email", "ComposeEmail");
    message << QString()
            << QVariantMap{{QStringLiteral("attachment_fds"), QVariant::fromValue(attachments)}};
    callBus(bus_, message, *this, [this, files](const QDBusMessage& reply) {
        if (isError(reply)) composeByDesktop(files);
    });
}

void MailSharing::composeByDesktop(const std::vector<Url>& files) {
    const auto command = commandFor(mailPrograms, files);
    const Outcome failure =
        command ? launcher_.launch(command->program, command->arguments)
                : Outcome(Failure{
                      ENOENT, "no program to compose mail is installed, such as xdg-email", {}});
    if (failure) systemLog("Vantle: cannot compose a mail: " + failure->message);
}

}  // namespace vantle
