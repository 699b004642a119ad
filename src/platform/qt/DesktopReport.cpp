#include "platform/qt/DesktopReport.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStringList>

namespace vantle {
namespace {

QString screenText(const QScreen& screen) {
    const QRect frame = screen.geometry();
    return QStringLiteral("%1 × %2 at %3, %4, scale %5")
        .arg(frame.width())
        .arg(frame.height())
        .arg(frame.x())
        .arg(frame.y())
        .arg(screen.devicePixelRatio());
}

std::string screens() {
    QStringList texts;
    for (const QScreen* screen : QGuiApplication::screens()) texts << screenText(*screen);
    return texts.join(QStringLiteral("; ")).toStdString();
}

std::string languages() {
    return QLocale::system().uiLanguages().join(QStringLiteral(", ")).toStdString();
}

}  // namespace

std::vector<ReportLine> desktopReport() {
    return {{"Qt", std::string(qVersion()) + ", built with " QT_VERSION_STR ", " +
                       QGuiApplication::platformName().toStdString()},
            {"languages", languages()},
            {"screens", screens()}};
}

}  // namespace vantle
