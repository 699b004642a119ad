#include "preview/PreviewLayout.h"

#include <algorithm>
#include <cmath>

namespace vantle {

Size PreviewLayout::maximumArea(Size screen) {
    return {std::max(screen.width * screenFraction - 2 * margin, minimumArea.width),
            std::max(screen.height * screenFraction - margin - barHeight, minimumArea.height)};
}

Size PreviewLayout::fitted(Size pixels, double pixelsPerPoint, Size maximum, bool isVector) {
    if (!(pixels.width > 0) || !(pixels.height > 0)) return minimumArea;
    const Size own{pixels.width / pixelsPerPoint, pixels.height / pixelsPerPoint};
    const double room = std::min(maximum.width / own.width, maximum.height / own.height);
    const double scale = isVector ? room : std::min(room, 1.0);
    return {own.width * scale, own.height * scale};
}

Size PreviewLayout::area(Size picture, Size maximum) {
    return {std::round(std::clamp(picture.width, minimumArea.width, maximum.width)),
            std::round(std::clamp(picture.height, minimumArea.height, maximum.height))};
}

Rect PreviewLayout::glass(Size area, Size screen) {
    const Size size{area.width + 2 * margin, area.height + margin + barHeight};
    return {{std::round((screen.width - size.width) / 2),
             std::round((screen.height - size.height) / 2)},
            size};
}

}  // namespace vantle
