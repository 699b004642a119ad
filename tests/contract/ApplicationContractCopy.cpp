// A copy of the program for the suite of Application. It prints what happens to it on standard
// output, and ends when its standard input closes.
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWindow>
#include <cstdio>
#include <string>

#include "platform/freedesktop/DBusApplication.h"
#include "platform/freedesktop/UnixSignals.h"

using namespace vantle;

namespace {

void say(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication qt(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QWindow window;
    if (QGuiApplication::arguments().contains(QStringLiteral("--window"))) window.show();
    QWindow panel;
    panel.setFlags(Qt::ToolTip);
    panel.show();

    const bool isForCall = QGuiApplication::arguments().contains(QStringLiteral("--for-call"));
    DBusApplication application("org.vantle.Vantle", isForCall ? DBusApplication::Launch::byBus
                                                               : DBusApplication::Launch::byUser);
    application.onReopen = [](bool hasVisibleWindows) {
        say(hasVisibleWindows ? "reopened with windows" : "reopened without windows");
    };
    application.onRequest = [](const ApplicationRequest& request) -> Result<std::string> {
        std::string line = "asked for " + request.action;
        for (const auto& argument : request.arguments) line += " " + argument;
        say(line);
        if (request.action == "forbidden") return Failure{0, "it is forbidden", ""};
        return "done " + request.action;
    };
    const QStringList arguments = QGuiApplication::arguments();
    const auto action = arguments.indexOf(QStringLiteral("--action"));
    if (action >= 0) {
        ApplicationRequest request{arguments.value(action + 1).toStdString(), {}};
        for (int i = static_cast<int>(action) + 2; i < argc; ++i)
            request.arguments.emplace_back(argv[i]);
        const auto answer = application.ask(request);
        say(answer ? answer.value() : "refused: " + answer.failure().message);
        return 0;
    }
    if (application.anotherCopyIsRunning()) {
        application.activateOtherCopy();
        say("second");
        return 0;
    }
    const UnixSignals ending([&application] { application.terminate(); });
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &window,
                     [&application] { application.terminate(); });
    say(application.anotherCopyIsRunning() ? "unsure" : "first");
    QGuiApplication::exec();
    say("ended");
    return 0;
}
