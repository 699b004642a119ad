#include "platform/freedesktop/DesktopOpenWith.h"

#include <fcntl.h>

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QFile>
#include <QList>
#include <QTimer>
#include <cerrno>
#include <utility>

#include "platform/freedesktop/BusCall.h"
#include "platform/qt/DisplayServer.h"
#include "platform/qt/ProgramIcon.h"
#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

const QString portalInterface = QStringLiteral("org.freedesktop.portal.OpenURI");

/// Short, because the portal answers this question at once or not at all.
constexpr std::chrono::milliseconds portalLimit{700};

QDBusMessage versionQuery() {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                  QStringLiteral("/org/freedesktop/portal/desktop"),
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("Get"));
    message << portalInterface << QStringLiteral("version");
    // A menu is no reason to start a portal.
    message.setAutoStartService(false);
    return message;
}

QStringList pathsOf(const std::vector<Url>& files) {
    QStringList paths;
    for (const Url& file : files) paths << QFile::decodeName(file.path().c_str());
    return paths;
}

void logFailure(const std::string& what, const Failure& failure) {
    systemLog("Vantle: cannot open " + what, failure.message);
}

}  // namespace

/// The two parts of one search.
struct DesktopOpenWith::Search {
    Found found;
    std::optional<OpeningPrograms> programs;
    std::optional<bool> offersChooser;

    void endIfComplete() {
        if (!programs || !offersChooser) return;
        programs->offersChooser = *offersChooser;
        if (const auto once = std::exchange(found, nullptr)) once(std::move(*programs));
    }
};

DesktopOpenWith::DesktopOpenWith(Options options, const QDBusConnection& bus)
    : options_(std::move(options)), bus_(bus), applications_(options_.program, options_.withheld) {}

void DesktopOpenWith::find(const std::vector<Url>& files, Found found) {
    const auto search = std::make_shared<Search>(Search{std::move(found), {}, {}});
    if (files.size() == 1)
        findChooser(search);
    else
        search->offersChooser = false;
    findPrograms(files, search);
}

void DesktopOpenWith::findPrograms(const std::vector<Url>& files,
                                   const std::shared_ptr<Search>& search) {
    applications_.run(QStringList{QStringLiteral("list")} + pathsOf(files), options_.searchLimit,
                      [this, search](const Result<QByteArray>& output) {
                          if (!output)
                              systemLog("Vantle: cannot find the programs that open a file",
                                        output.failure().message);
                          search->programs =
                              output ? programsFrom(output.value()) : OpeningPrograms();
                          search->endIfComplete();
                      });
}

void DesktopOpenWith::findChooser(const std::shared_ptr<Search>& search) {
    callBus(
        bus_, versionQuery(), *this,
        [search](const QDBusMessage& reply) {
            search->offersChooser = !isError(reply);
            search->endIfComplete();
        },
        portalLimit);
}

OpeningPrograms DesktopOpenWith::programsFrom(const QByteArray& output) const {
    constexpr qsizetype textsOfOne = 4;
    const QList<QByteArray> texts = output.split('\0');
    OpeningPrograms found;
    for (qsizetype i = 0; i + textsOfOne < texts.size(); i += textsOfOne) {
        OpeningProgram program{texts[i].toStdString(), texts[i + 1].toStdString(), nullptr,
                               !texts[i + 3].isEmpty()};
        if (program.identifier == options_.ownIdentifier) continue;
        program.icon = programIcon(texts[i + 2].toStdString(), iconSize, options_.pixelsPerPoint());
        found.programs.push_back(std::move(program));
    }
    return found;
}

void DesktopOpenWith::open(const std::vector<Url>& files, const std::string& identifier,
                           Completion completion) {
    DisplayServer::current().requestActivationToken(
        *this, [this, files, identifier, completion = std::move(completion)](const QString& token) {
            start(files, identifier, token, completion);
        });
}

void DesktopOpenWith::start(const std::vector<Url>& files, const std::string& identifier,
                            const QString& token, const Completion& completion) {
    QStringList arguments{QStringLiteral("open"), QString::fromStdString(identifier)};
    arguments << QStringLiteral("--token=") + token;
    applications_.run(arguments + pathsOf(files), options_.startLimit,
                      [identifier, completion](const Result<QByteArray>& output) {
                          if (!output) logFailure("files with " + identifier, output.failure());
                          completion(output ? Outcome() : output.failure());
                      });
}

void DesktopOpenWith::openWithOther(const Url& file, Completion completion) {
    if (std::exchange(isChoosing_, true))
        return complete(std::move(completion), systemFailure(ECANCELED));
    DisplayServer::current().requestActivationToken(
        *this, [this, file, completion = std::move(completion)](const QString& token) {
            showChooser(file, token, completion);
        });
}

void DesktopOpenWith::showChooser(const Url& file, const QString& token, Completion completion) {
    const FileDescriptor descriptor(::open(file.path().c_str(), O_PATH | O_CLOEXEC));
    if (!descriptor) {
        isChoosing_ = false;
        const Failure failure = systemFailure(errno, file.path());
        logFailure(file.path(), failure);
        return complete(std::move(completion), failure);
    }
    const PortalRequest::Call call{
        portalInterface,
        QStringLiteral("OpenFile"),
        {portalParentWindow(), QVariant::fromValue(QDBusUnixFileDescriptor(descriptor.get()))},
        {{QStringLiteral("ask"), true}, {QStringLiteral("activation_token"), token}}};
    chooser_ = std::make_unique<PortalRequest>(
        bus_, call, [this, file, completion = std::move(completion)](const auto& result) {
            answered(file, result, completion);
        });
}

void DesktopOpenWith::answered(const Url& file, const Result<QVariantMap>& result,
                               const Completion& completion) {
    isChoosing_ = false;
    // The request is calling this function, so it must not be deleted yet.
    if (chooser_) chooser_.release()->deleteLater();
    if (!result && result.failure().code != ECANCELED) logFailure(file.path(), result.failure());
    completion(result ? Outcome() : result.failure());
}

void DesktopOpenWith::complete(Completion completion, const Outcome& outcome) {
    QTimer::singleShot(0, this,
                       [completion = std::move(completion), outcome] { completion(outcome); });
}

}  // namespace vantle
