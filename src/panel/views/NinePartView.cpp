#include "panel/views/NinePartView.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace vantle {
namespace {

/// The borders between the corners and the stretched part, in one direction.
using Cuts = std::array<double, 4>;

Cuts cuts(double length, double corner) {
    return {0, corner, length - corner, length};
}

/// Returns the cuts in points, for a length in points and a corner in pixels. All cuts are on whole
/// pixels: neighbours that round their common edge differently would leave a gap.
Cuts cutsInPoints(double length, int corner, double pixelsPerPoint) {
    Cuts inPoints = cuts(std::round(length * pixelsPerPoint), corner);
    for (double& cut : inPoints) cut /= pixelsPerPoint;
    return inPoints;
}

QRectF cell(const Cuts& across, const Cuts& down, std::size_t column, std::size_t row) {
    return {QPointF(across[column], down[row]), QPointF(across[column + 1], down[row + 1])};
}

constexpr std::size_t middle = 4;

/// Draws nine parts of one picture, or eight if the shape is hollow.
class NinePartNode final : public QSGNode {
public:
    NinePartNode(QQuickWindow& window, const QImage& picture, bool isHollow)
        : texture_(window.createTextureFromImage(picture)), side_(picture.width()) {
        for (auto& part : parts_) {
            if (isHollow && &part == &parts_[middle]) continue;
            part = window.createImageNode();
            part->setTexture(texture_.get());
            // The stretched parts are one pixel wide, so filtering would mix in their neighbours.
            part->setFiltering(QSGTexture::Nearest);
            appendChildNode(part);
        }
    }

    /// `size` is in points, `corner` in pixels.
    void place(QSizeF size, int corner, double pixelsPerPoint) {
        const Cuts across = cutsInPoints(size.width(), corner, pixelsPerPoint);
        const Cuts down = cutsInPoints(size.height(), corner, pixelsPerPoint);
        const Cuts source = cuts(side_, corner);
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            if (!parts_[i]) continue;
            parts_[i]->setRect(cell(across, down, i % 3, i / 3));
            parts_[i]->setSourceRect(cell(source, source, i % 3, i / 3));
        }
    }

private:
    std::unique_ptr<QSGTexture> texture_;
    double side_;
    std::array<QSGImageNode*, 9> parts_{};  // owned as children
};

}  // namespace

NinePartView::NinePartView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &NinePartView::changed, this, [this] {
        drawnPixelsPerPoint_ = 0;
        update();
    });
}

QSGNode* NinePartView::updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    const double pixelsPerPoint = window()->effectiveDevicePixelRatio();
    const double room = (std::min(width(), height()) * pixelsPerPoint - 1) / 2;
    const int corner = std::max(
        1,
        static_cast<int>(std::min(std::ceil(cornerLength() * pixelsPerPoint), std::floor(room))));
    auto* node = static_cast<NinePartNode*>(old);
    if (!node || drawnPixelsPerPoint_ != pixelsPerPoint || drawnCorner_ != corner) {
        delete node;
        node = new NinePartNode(*window(), sourcePicture(corner, pixelsPerPoint), isHollow());
        drawnPixelsPerPoint_ = pixelsPerPoint;
        drawnCorner_ = corner;
    }
    node->place(size(), corner, pixelsPerPoint);
    return node;
}

}  // namespace vantle
