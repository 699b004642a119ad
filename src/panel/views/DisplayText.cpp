#include "panel/views/DisplayText.h"

#include <QCoreApplication>
#include <QStringList>
#include <array>
#include <chrono>
#include <cmath>

namespace vantle {
namespace {

struct Unit {
    std::chrono::seconds length;
    const char* past;
    const char* future;
    int minimumCount = 1;  ///< The smallest count for which this unit is used.
};

using namespace std::chrono_literals;

// The largest unit comes first. Only days are written out, so only they have a plural in English.
constexpr std::array units = {
    Unit{std::chrono::years(1), QT_TRANSLATE_N_NOOP("RelativeDate", "%n yr. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n yr.")},
    Unit{std::chrono::months(1), QT_TRANSLATE_N_NOOP("RelativeDate", "%n mo. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n mo.")},
    Unit{std::chrono::weeks(1), QT_TRANSLATE_N_NOOP("RelativeDate", "%n wk. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n wk.")},
    Unit{std::chrono::days(1), QT_TRANSLATE_N_NOOP("RelativeDate", "%n days ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n days"), 2},
    Unit{std::chrono::days(1), QT_TRANSLATE_N_NOOP("RelativeDate", "%n day ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n day")},
    Unit{1h, QT_TRANSLATE_N_NOOP("RelativeDate", "%n hr. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n hr.")},
    Unit{1min, QT_TRANSLATE_N_NOOP("RelativeDate", "%n min. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n min.")},
    Unit{1s, QT_TRANSLATE_N_NOOP("RelativeDate", "%n sec. ago"),
         QT_TRANSLATE_N_NOOP("RelativeDate", "in %n sec.")},
};

}  // namespace

QString pixelSizeText(Size pixels) {
    if (!(pixels.width > 0)) return {};
    return QStringLiteral("%1 × %2").arg(std::lround(pixels.width)).arg(std::lround(pixels.height));
}

QString relativeDateText(Date date, Date now) {
    const auto distance = date < now ? now - date : date - now;
    for (const Unit& unit : units) {
        if (distance < unit.minimumCount * unit.length) continue;
        const char* text = date < now ? unit.past : unit.future;
        const auto count = static_cast<int>(distance / unit.length);
        return QCoreApplication::translate("RelativeDate", text, nullptr, count);
    }
    return QCoreApplication::translate("RelativeDate", "now");
}

QString subtitle(Size pixels, Date date, Date now) {
    QStringList parts{pixelSizeText(pixels), relativeDateText(date, now)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

QString durationText(double seconds) {
    if (!std::isfinite(seconds)) return {};
    const long whole = std::lround(seconds);
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

QString openingFailureText(PanelState::OpeningFailure::Reason reason) {
    return reason == PanelState::OpeningFailure::Reason::fileIsGone
               ? QCoreApplication::translate("OpeningFailure", "The file is gone")
               : QCoreApplication::translate("OpeningFailure", "Could not be opened");
}

QString trashNoticeText(TrashNotice notice) {
    switch (notice) {
        case TrashNotice::moved:
            return QCoreApplication::translate("TrashNotice", "Moved to Trash");
        case TrashNotice::notMoved:
            return QCoreApplication::translate("TrashNotice", "Could not be moved to the Trash");
        case TrashNotice::notPutBack:
            return QCoreApplication::translate("TrashNotice", "Could not be put back");
    }
    return {};
}

QString pointText(const QPointF& point) {
    return QStringLiteral("{%1, %2}").arg(point.x()).arg(point.y());
}

QString rectText(const QRectF& rect) {
    return QStringLiteral("{%1, {%2, %3}}")
        .arg(pointText(rect.topLeft()))
        .arg(rect.width())
        .arg(rect.height());
}

}  // namespace vantle
