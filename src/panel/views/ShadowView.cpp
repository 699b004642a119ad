#include "panel/views/ShadowView.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "panel/views/RoundedShape.h"

namespace vantle {
namespace {

/// Where the corners end and what is stretched between them begins, in one direction.
using Cuts = std::array<double, 4>;

Cuts cuts(double length, double corner) {
    const double kept = std::min(corner, length / 2);
    return {0, kept, length - kept, length};
}

QRectF cell(const Cuts& across, const Cuts& down, std::size_t column, std::size_t row) {
    return {QPointF(across[column], down[row]), QPointF(across[column + 1], down[row + 1])};
}

/// Nine parts of one picture.
class ShadowNode final : public QSGNode {
public:
    ShadowNode(QQuickWindow& window, const QImage& picture)
        : texture_(window.createTextureFromImage(picture)), side_(picture.width()) {
        for (auto& part : parts_) {
            part = window.createImageNode();
            part->setTexture(texture_.get());
            // What is stretched is one pixel wide: nothing of its neighbours may come in.
            part->setFiltering(QSGTexture::Nearest);
            appendChildNode(part);
        }
    }

    /// All in points.
    void place(QSizeF size, double corner, double pixelsPerPoint) {
        const Cuts across = cuts(size.width(), corner);
        const Cuts down = cuts(size.height(), corner);
        const Cuts source = cuts(side_, corner * pixelsPerPoint);
        for (std::size_t i = 0; i < parts_.size(); ++i) {
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

ShadowView::ShadowView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &ShadowView::changed, this, [this] {
        drawnPixelsPerPoint_ = 0;
        update();
    });
}

QSGNode* ShadowView::updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    const double pixelsPerPoint = window()->effectiveDevicePixelRatio();
    // Beyond the corner itself the blur reaches as far inwards as outwards.
    const int corner =
        static_cast<int>(std::ceil((2 * blur_ + 1.5 * cornerRadius_) * pixelsPerPoint));
    auto* node = static_cast<ShadowNode*>(old);
    if (!node || drawnPixelsPerPoint_ != pixelsPerPoint) {
        delete node;
        node = new ShadowNode(*window(), cornersOnly(corner, pixelsPerPoint));
        drawnPixelsPerPoint_ = pixelsPerPoint;
    }
    node->place(size(), corner / pixelsPerPoint, pixelsPerPoint);
    return node;
}

QImage ShadowView::cornersOnly(int corner, double pixelsPerPoint) const {
    const int blurred = static_cast<int>(std::lround(blur_ * pixelsPerPoint));
    const int side = 2 * corner + 1;
    const QSize plate(side - 2 * blurred, side - 2 * blurred);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(strength_);
    painter.drawImage(0, 0, softShadow(plate, cornerRadius_ * pixelsPerPoint, blurred));
    return picture;
}

}  // namespace vantle
