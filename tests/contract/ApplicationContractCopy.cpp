// A copy of the program for the suite of Application. It says on standard output what happens to
// it, and ends when its standard input does.
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWindow>
#include <cstdio>
#include <string>

#include "platform/qt/DBusApplication.h"
#include "platform/qt/UnixSignals.h"

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

    vantle::DBusApplication application("org.vantle.Vantle");
    application.onReopen = [](bool hasVisibleWindows) {
        say(hasVisibleWindows ? "reopened with windows" : "reopened without windows");
    };
    application.onAction = [](const std::string& action) {
        const bool isKnown = action == "known";
        if (isKnown) say("asked for known");
        return isKnown;
    };
    const QStringList arguments = QGuiApplication::arguments();
    if (application.anotherCopyIsRunning()) {
        const auto action = arguments.indexOf(QStringLiteral("--action"));
        application.activateOtherCopy(action < 0 ? std::string()
                                                 : arguments.value(action + 1).toStdString());
        say("second");
        return 0;
    }
    const vantle::UnixSignals ending([&application] { application.terminate(); });
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &window,
                     [&application] { application.terminate(); });
    say(application.anotherCopyIsRunning() ? "unsure" : "first");
    QGuiApplication::exec();
    say("ended");
    return 0;
}
