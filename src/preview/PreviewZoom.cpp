#include "preview/PreviewZoom.h"

#include <algorithm>
#include <cmath>

#include "preview/PreviewLayout.h"

namespace vantle {
namespace {

constexpr double maximumOfReal = 8;
constexpr double sameScale = 1e-6;

}  // namespace

PreviewZoom::PreviewZoom(Size fitted, Size real, Size maximum)
    : fitted_(fitted), real_(real), maximum_(maximum) {}

Size PreviewZoom::picture() const {
    return {fitted_.width * scale_, fitted_.height * scale_};
}

Size PreviewZoom::area() const {
    return PreviewLayout::area(picture(), maximum_);
}

double PreviewZoom::realScale() const {
    return fitted_.width > 0 ? real_.width / fitted_.width : 1;
}

bool PreviewZoom::isReal() const {
    return std::abs(scale_ - realScale()) < sameScale;
}

bool PreviewZoom::canMove() const {
    const Size shown = picture();
    const Size room = area();
    return shown.width > room.width || shown.height > room.height;
}

void PreviewZoom::fit() {
    setScale(1, {});
}

void PreviewZoom::toggleReal(Point anchor) {
    setScale(isReal() ? 1 : realScale(), anchor);
}

void PreviewZoom::zoomBy(double factor, Point anchor) {
    const double largest = std::max(1.0, realScale() * maximumOfReal);
    setScale(std::clamp(scale_ * factor, 1.0, largest), anchor);
}

void PreviewZoom::moveBy(double x, double y) {
    centre_.x += x;
    centre_.y += y;
    limit();
}

void PreviewZoom::setScale(double scale, Point anchor) {
    const double growth = scale / scale_;
    centre_.x = anchor.x + (centre_.x - anchor.x) * growth;
    centre_.y = anchor.y + (centre_.y - anchor.y) * growth;
    scale_ = scale;
    limit();
}

void PreviewZoom::limit() {
    const Size shown = picture();
    const Size room = area();
    const double x = std::max(0.0, (shown.width - room.width) / 2);
    const double y = std::max(0.0, (shown.height - room.height) / 2);
    centre_ = {std::clamp(centre_.x, -x, x), std::clamp(centre_.y, -y, y)};
}

}  // namespace vantle
