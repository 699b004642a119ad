#include "platform/qt/DesktopFileOpener.h"

#include <fcntl.h>

#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>

#include "platform/qt/BusCall.h"
#include "platform/qt/FileCommand.h"
#include "support/FileDescriptor.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

// The first one asks the desktop that runs; the others are for installations without it.
constexpr std::array openerPrograms{FileProgram{"xdg-open", nullptr}, FileProgram{"gio", "open"},
                                    FileProgram{"kde-open", nullptr}};

void logFailure(const Url& url, const std::string& reason) {
    systemLog("Vantle: cannot open " + url.path() + ": " + reason);
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
    else if (const Outcome failure = openByDesktop(url))
        logFailure(url, failure->message);
}

Outcome DesktopFileOpener::openByDesktop(const Url& url) {
    const auto command = commandFor(openerPrograms, {url});
    if (!command) return Failure{ENOENT, "xdg-open is not installed", url.path()};
    return launcher_.launch(command->program, command->arguments);
}

void DesktopFileOpener::openByPortal(const char* method, const Url& url) {
    const FileDescriptor file(::open(url.path().c_str(), O_PATH | O_CLOEXEC));
    if (!file) {
        logFailure(url, std::strerror(errno));
        return;
    }
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                  QStringLiteral("/org/freedesktop/portal/desktop"),
                                                  QStringLiteral("org.freedesktop.portal.OpenURI"),
                                                  QString::fromLatin1(method));
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(file.get()))
            << QVariantMap();
    callBus(bus_, message, *this, [url](const QDBusMessage& reply) {
        if (isError(reply)) logFailure(url, reply.errorMessage().toStdString());
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
