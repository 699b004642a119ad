#include "platform/x11/StartupToken.h"

#include <QCoreApplication>

namespace vantle::x11 {

QString startupToken(std::uint32_t time) {
    static unsigned count = 0;
    return QStringLiteral("vantle-%1-%2_TIME%3")
        .arg(QCoreApplication::applicationPid())
        .arg(++count)
        .arg(time);
}

}  // namespace vantle::x11
