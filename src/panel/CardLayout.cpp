#include "panel/CardLayout.h"

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

constexpr double unknownAspect = 1.6;
constexpr double singleMinimumWidth = 260;

double aspectRatio(const Capture& capture) {
    const Size pixels = capture.pixelSize();
    return pixels.width > 0 ? pixels.width / pixels.height : unknownAspect;
}

Size singleTileSize(double height, double aspect) {
    constexpr double maximumWidth = 308;
    constexpr double minimumWidth = 200;
    constexpr double minimumHeight = 120;
    double width = aspect * height;
    if (width > maximumWidth) {
        width = maximumWidth;
        height = std::max(maximumWidth / aspect, minimumHeight);
    }
    return {std::round(std::max(width, minimumWidth)), std::round(height)};
}

}  // namespace

double CardLayout::tileHeight(int count) {
    if (count <= 1) return 190;
    return count == 2 ? 126 : 100;
}

Size CardLayout::tileSize(int count, const Capture& capture) {
    const double aspect = aspectRatio(capture);
    const double height = tileHeight(count);
    if (count <= 1) return singleTileSize(height, aspect);
    const double maximumWidth = count == 2 ? 224 : 178;
    const double minimumWidth = count == 2 ? 90 : 70;
    return {std::round(std::max(std::min(aspect * height, maximumWidth), minimumWidth)), height};
}

double CardLayout::singleWidth(const Capture& capture) {
    return std::max(tileSize(1, capture).width, singleMinimumWidth);
}

double CardLayout::contentWidth(const std::vector<CapturePointer>& captures) {
    if (captures.empty()) return 0;
    if (captures.size() == 1) return singleWidth(*captures.front());
    const int count = static_cast<int>(captures.size());
    double width = spacing * (count - 1);
    for (const auto& capture : captures) width += tileSize(count, *capture).width;
    return width;
}

Rect CardLayout::windowFrame(PanelCorner corner, const Rect& visibleFrame) {
    const double x = isRight(corner) ? visibleFrame.maxX() - windowSize.width : visibleFrame.minX();
    const double y =
        isBottom(corner) ? visibleFrame.minY() : visibleFrame.maxY() - windowSize.height;
    return {{x, y}, windowSize};
}

}  // namespace vantle
