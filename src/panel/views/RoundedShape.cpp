#include "panel/views/RoundedShape.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace vantle {
namespace {

// The reach of a corner relative to the arc's radius, if there is room.
constexpr double widestExtent = 1.3;
constexpr int steps = 16;

/// Returns the exponent of the superellipse that meets the arc in the corner's middle. For an
/// extent of 1 the superellipse is the arc itself.
double exponent(double extent) {
    const double middle = 1 - 1 / std::numbers::sqrt2;
    return -std::numbers::ln2 / std::log(1 - middle / extent);
}

/// Blurs the rows once with a box: each value becomes the mean of the 2 × reach + 1 values around
/// it. The result is transposed, so that a second call blurs the columns and turns the picture
/// back.
void blurAndTranspose(const std::vector<std::uint8_t>& from, std::vector<std::uint8_t>& to,
                      int width, int height, int reach) {
    const int window = 2 * reach + 1;
    for (int y = 0; y < height; ++y) {
        const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
        const auto at = [&](int x) {
            return x < 0 || x >= width ? 0
                                       : static_cast<int>(from[row + static_cast<std::size_t>(x)]);
        };
        int sum = 0;
        for (int x = -reach; x < reach; ++x) sum += at(x);
        for (int x = 0; x < width; ++x) {
            sum += at(x + reach);
            to[static_cast<std::size_t>(x) * static_cast<std::size_t>(height) +
               static_cast<std::size_t>(y)] = static_cast<std::uint8_t>(sum / window);
            sum -= at(x - reach);
        }
    }
}

}  // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius) {
    if (radius <= 0) {
        QPainterPath square;
        square.addRect(rect);
        return square;
    }
    const double room = std::min(rect.width(), rect.height()) / 2;
    const double reach = std::min(radius * widestExtent, room);
    const double power = 2 / exponent(std::max(reach / radius, 1.0));
    struct Corner {
        QPointF centre;  // of the superellipse
        double firstAngle;
    };
    const QRectF inner = rect.adjusted(reach, reach, -reach, -reach);
    const std::array corners = {Corner{inner.topLeft(), 180}, Corner{inner.topRight(), 270},
                                Corner{inner.bottomRight(), 0}, Corner{inner.bottomLeft(), 90}};
    QPolygonF outline;
    for (const Corner& corner : corners) {
        for (int step = 0; step <= steps; ++step) {
            const double angle = (corner.firstAngle + 90.0 * step / steps) * std::numbers::pi / 180;
            const auto along = [power](double part) {
                return std::copysign(std::pow(std::abs(part), power), part);
            };
            outline << corner.centre +
                           QPointF(along(std::cos(angle)), along(std::sin(angle))) * reach;
        }
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

QImage softShadow(QSize rect, double cornerRadius, int blurRadius) {
    QImage mask(rect + QSize(2 * blurRadius, 2 * blurRadius), QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(
        continuousRoundedRect(QRectF(QPointF(blurRadius, blurRadius), QSizeF(rect)), cornerRadius),
        Qt::black);
    painter.end();

    const auto count =
        static_cast<std::size_t>(mask.width()) * static_cast<std::size_t>(mask.height());
    std::vector<std::uint8_t> values(count);
    std::vector<std::uint8_t> turned(count);
    const auto width = static_cast<std::size_t>(mask.width());
    for (int y = 0; y < mask.height(); ++y)
        std::copy_n(mask.constScanLine(y), width,
                    values.begin() + static_cast<std::ptrdiff_t>(width) * y);
    // Three box blurs are close to a Gaussian that fades out at the blur radius.
    const int reach = std::max(1, blurRadius / 3);
    for (int round = 0; round < 3; ++round) {
        blurAndTranspose(values, turned, mask.width(), mask.height(), reach);
        blurAndTranspose(turned, values, mask.height(), mask.width(), reach);
    }
    for (int y = 0; y < mask.height(); ++y)
        std::copy_n(values.begin() + static_cast<std::ptrdiff_t>(width) * y, width,
                    mask.scanLine(y));
    return mask;
}

}  // namespace vantle
