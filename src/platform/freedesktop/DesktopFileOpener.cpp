#include "platform/freedesktop/DesktopFileOpener.h"

#include <fcntl.h>

#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/FileCommand.h"
#include "support/FileDescriptor.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

// xdg-open uses the opener of the running desktop; the others are for systems without xdg-open.
constexpr std::array openerPrograms{FileProgram{"xdg-open", nullptr}, FileProgram{"gio", "open"},
                                    FileProgram{"kde-open", nullptr}};

void logFailure(const std::string& what, const std::string& reason) {
    systemLog("Vantle: cannot open " + what + ": " + reason);
}

}  // namespace

DesktopFileOpener::DesktopFileOpener(ProcessLauncher& launcher, Sandbox sandbox,
                                     const QDBusConnection& bus)
    : launcher_(launcher), sandbox_(sandbox), bus_(bus) {}

DesktopFileOpener::Sandbox DesktopFileOpener::currentSandbox() {
    return QFile::exists(QStringLiteral("/.flatpak-info")) ? Sandbox::flatpak : Sandbox::none;
}

void DesktopFileOpener::open(const Url& url) {
    if (sandbox_ == Sandbox::flatpak)
        openByPortal("OpenFile", url);
    else if (const Outcome failure = openByDesktop(url.path()))
        logFailure(url.path(), failure->message);
}

void DesktopFileOpener::openPage(const std::string& address) {
    if (sandbox_ == Sandbox::flatpak)
        askPortal("OpenURI", QString::fromStdString(address), address);
    else if (const Outcome failure = openByDesktop(address))
        logFailure(address, failure->message);
}

Outcome DesktopFileOpener::openByDesktop(const std::string& what) {
    const auto command = commandForArguments(openerPrograms, {what});
    if (!command)
        return Failure{ENOENT, "no program to open it is installed, such as xdg-open", what};
    return launcher_.launch(command->program, command->arguments);
}

void DesktopFileOpener::openByPortal(const char* method, const Url& url) {
    const FileDescriptor file(::open(url.path().c_str(), O_PATH | O_CLOEXEC));
    if (!file) {
        logFailure(url.path(), std::strerror(errno));
        return;
    }
    askPortal(method, QVariant::fromValue(QDBusUnixFileDescriptor(file.get())), url.path());
}

void DesktopFileOpener::askPortal(const char* method, const QVariant& what,
                                  const std::string& name) {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                  QStringLiteral("/org/freedesktop/portal/desktop"),
                                                  QStringLiteral("org.freedesktop.portal.OpenURI"),
                                                  QString::fromLatin1(method));
    message << QString() << what << QVariantMap();
    callBus(bus_, message, *this, [name](const QDBusMessage& reply) {
        if (isError(reply)) logFailure(name, reply.errorMessage().toStdString());
    });
}

void DesktopFileOpener::reveal(const std::vector<Url>& urls) {
    if (urls.empty()) return;
    if (sandbox_ == Sandbox::flatpak) {
        openByPortal("OpenDirectory", urls.front());
        return;
    }
    QStringList addresses;
    for (const Url& url : urls) addresses << QString::fromStdString(url.address());
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("/org/freedesktop/FileManager1"),
                                                  QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("ShowItems"));
    message << addresses << QString();
    const Url folder = urls.front().deletingLastPathComponent();
    callBus(bus_, message, *this, [this, folder](const QDBusMessage& reply) {
        if (isError(reply)) open(folder);
    });
}

}  // namespace vantle
