#include <malloc.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <system_error>

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "platform/displays/DisplayServers.h"
#include "platform/displays/ServerChoice.h"
#include "platform/freedesktop/ActivationToken.h"
#include "platform/freedesktop/DBusApplication.h"
#include "platform/freedesktop/UnixSignals.h"
#include "platform/qt/translations/Translations.h"
#include "program/LinuxPlatform.h"
#include "program/LoadedViews.h"
#include "support/SystemLog.h"

namespace {

using namespace vantle;

constexpr int wrongCommandLine = 2;  // the exit status

/// Pictures of many sizes are allocated and freed. By default the allocator begins to keep their
/// memory for later once the first large one has been freed, and forty captures then take a fifth
/// more.
void returnLargeBlocksAtOnce() {
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
}

/// Logs Qt's messages. A fatal one ends the program without a core dump; if it says that no display
/// could be opened, it is replaced, because Qt advises to reinstall the program. When the display
/// is lost, Qt logs that and then ends the program with a status that depends on Qt's version, so
/// this ends it first.
void handleQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg) {
        systemLog(message.toStdString());
        if (DisplayServer::current().isLost()) _exit(EXIT_FAILURE);
        return;
    }
    const bool hasDisplay = QGuiApplication::primaryScreen() != nullptr;
    systemLog("Vantle: " + (hasDisplay ? message.toStdString() : "cannot connect to a display"));
    _exit(EXIT_FAILURE);
}

/// The desktop's session manager may end this program but must not start it: the autostart entry
/// does that.
void joinSession(const QGuiApplication& application) {
    const auto neverRestart = [](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
    };
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &application, neverRestart,
                     Qt::DirectConnection);
}

/// Prints how a request went, and returns the exit status.
int printAnswer(const Result<std::string>& answer) {
    if (!answer) {
        std::cerr << "vantle: " << answer.failure().message << std::endl;
        return EXIT_FAILURE;
    }
    if (!answer.value().empty()) std::cout << answer.value() << std::endl;
    return EXIT_SUCCESS;
}

/// Sends a request to the running copy. Needs no display.
int ask(int& argc, char** argv, const ApplicationRequest& request) {
    const QCoreApplication application(argc, argv);
    return printAnswer(DBusApplication(programIdentifier).ask(request));
}

QGuiApplication makeApplication(int& argc, char** argv) {
    const displays::ServerChoice choice;
    return QGuiApplication(argc, argv);
}

AppDelegate::Views makeViews(Platform& platform, LoadedViews& views) {
    return {
        .makePanel =
            [&](PanelState& state, Settings& settings, CardActions actions) {
                return views.get().makePanel(platform, state, settings, std::move(actions));
            },
        .makePreview =
            [&](PreviewState& state, PreviewActions actions) {
                return views.get().makePreview(platform, state, std::move(actions));
            },
        .makeSettingsWindow =
            [&](Settings& settings) { return views.get().makeSettingsWindow(platform, settings); },
        .makeOnboardingWindow =
            [&](Settings& settings, std::function<void()> finish) {
                return views.get().makeOnboardingWindow(platform, settings, std::move(finish));
            }};
}

/// Returns the exit status if another copy is running; otherwise nothing, and the program has
/// started.
std::optional<int> launch(AppDelegate& delegate, const std::optional<ApplicationRequest>& request) {
    if (const auto answer = delegate.applicationWillFinishLaunching(request))
        return printAnswer(*answer);
    delegate.applicationDidFinishLaunching();
    if (request) printAnswer(delegate.perform(*request));
    return std::nullopt;
}

int run(int& argc, char** argv, const CommandLine& line, Translations& translations) {
    const auto& request = line.request;
    qInstallMessageHandler(handleQtMessage);
    QGuiApplication application = makeApplication(argc, argv);
    const DisplayServer::Choice server(displays::makeDisplayServer());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QString::fromLatin1(programIdentifier));
    translations.install();
    joinSession(application);
    if (request) {
        const auto answer = DBusApplication(programIdentifier).ask(*request);
        const bool isNobodyThere = !answer && answer.failure().code == ESRCH;
        if (!isNobodyThere) return printAnswer(answer);
    }

    LoadedViews views;
    Platform platform = makeLinuxPlatform(
        line.launchedByDesktop ? DBusApplication::Launch::byBus : DBusApplication::Launch::byUser,
        views);
    const UnixSignals endingSignals([&] { platform.application->terminate(); });
    std::shared_ptr<AppDelegate> delegate;
    platform.whenSettingsAreKnown([&] {
        delegate = AppDelegate::create(platform, makeViews(platform, views));
        if (const auto status = launch(*delegate, request)) QGuiApplication::exit(*status);
    });
    const int status = QGuiApplication::exec();
    delegate.reset();
    platform.trash.reset();  // waits for moves to the Trash that are under way
    // Nothing is left to be written, and the queue of a server that does not answer would never
    // end.
    if (platform.hasBlockedQueue()) _exit(status);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    returnLargeBlocksAtOnce();
    platformDataOfThisStart();
    Translations translations;
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    std::error_code noFolder;
    const auto currentFolder = std::filesystem::current_path(noFolder);
    const auto line =
        parseCommandLine(arguments, Url::file(noFolder ? "/" : currentFolder.string()));
    switch (line.kind) {
        case CommandLine::Kind::start:
            return run(argc, argv, line, translations);
        case CommandLine::Kind::sendRequest:
            return ask(argc, argv, *line.request);
        case CommandLine::Kind::print:
            std::cout << line.text << std::endl;
            return EXIT_SUCCESS;
        case CommandLine::Kind::invalid:
            std::cerr << line.text << std::endl;
            return wrongCommandLine;
    }
}
