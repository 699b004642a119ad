// The settings portal as a program, for tests of the whole desktop. It reads lines like
// "color-scheme 1" or "reduced-motion 1" from standard input and answers "ok" to each; it ends when
// its input closes.
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>
#include <string>

#include "contract/SettingsPortal.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    vantle::SettingsPortal portal(QDBusConnection::sessionBus());
    if (!portal.isThere()) return 1;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string key;
        unsigned value = 0;
        if (!(std::cin >> key >> value)) {
            QCoreApplication::quit();
            return;
        }
        portal.set(QStringLiteral("org.freedesktop.appearance"), QString::fromStdString(key),
                   value);
        std::puts("ok");
        std::fflush(stdout);
    });
    std::puts("ok");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
