#include "panel/views/DisplayText.h"

#include <cmath>

namespace vantle {

QString displayName(const std::string& name) {
    constexpr char16_t firstControlPicture = 0x2400;
    constexpr char16_t deletePicture = 0x2421;
    QString text = QString::fromUtf8(name);
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code < 0x20) character = QChar(static_cast<char16_t>(firstControlPicture + code));
        if (code == 0x7f) character = QChar(deletePicture);
    }
    return text;
}

QString pixelSizeText(Size pixels) {
    if (!(pixels.width > 0)) return {};
    return QStringLiteral("%1 × %2").arg(std::lround(pixels.width)).arg(std::lround(pixels.height));
}

QString durationText(double seconds) {
    if (!std::isfinite(seconds)) return {};
    const long whole = std::lround(seconds);
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace vantle
