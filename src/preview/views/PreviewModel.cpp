#include "preview/views/PreviewModel.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <utility>

#include "panel/views/DisplayText.h"
#include "preview/PreviewLayout.h"
#include "support/DisplayName.h"

namespace vantle {
namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("Preview", text);
}

QSizeF toQt(Size size) {
    return {size.width, size.height};
}

QRectF toQt(const Rect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

}  // namespace

PreviewModel::PreviewModel(Context context) : context_(std::move(context)) {
    observe();
}

void PreviewModel::observe() {
    PreviewState& state = context_.state;
    const auto follow = [this](auto& published, auto& kept, auto changed) {
        subscriptions_.push_back(published.observe([this, &kept, changed](const auto& value) {
            kept = value;
            emit(this->*changed)();
        }));
    };
    follow(state.isOpen, isOpen_, &PreviewModel::isOpenChanged);
    follow(state.capture, capture_, &PreviewModel::captureChanged);
    follow(state.facts, facts_, &PreviewModel::factsChanged);
    follow(state.cannotBeDrawn, cannotBeDrawn_, &PreviewModel::cannotBeDrawnChanged);
    follow(state.zoom, zoom_, &PreviewModel::zoomChanged);
    follow(state.canCopyText, canCopyText_, &PreviewModel::canCopyTextChanged);
    follow(state.textCopying, text_, &PreviewModel::textChanged);
    follow(state.tile, tile_, &PreviewModel::tileChanged);
    subscriptions_.push_back(state.picture.observe([this](const ImagePointer& picture) {
        picture_ = picture;
        ++pictureNumber_;
        emit pictureChanged();
    }));
    connect(this, &PreviewModel::captureChanged, this, &PreviewModel::factsChanged);
}

QString PreviewModel::captureId() const {
    return capture_ ? QString::fromStdString(capture_->id().text()) : QString();
}

QString PreviewModel::fileName() const {
    return capture_ ? QString::fromStdString(displayName(capture_->fileName())) : QString();
}

bool PreviewModel::isRecording() const {
    return capture_ && capture_->kind() == CaptureKind::video;
}

QString PreviewModel::durationText() const {
    return isRecording() ? vantle::durationText(capture_->duration()) : QString();
}

QString PreviewModel::thumbnail() const {
    return capture_ && capture_->thumbnail()
               ? QStringLiteral("image://preview/thumbnail/") + captureId()
               : QString();
}

QString PreviewModel::picture() const {
    return picture_ ? QStringLiteral("image://preview/picture/%1").arg(pictureNumber_) : QString();
}

ImagePointer PreviewModel::image(const QString& id) const {
    const QString kind = id.section(QLatin1Char('/'), 0, 0);
    const QString name = id.section(QLatin1Char('/'), 1);
    if (kind == QStringLiteral("picture"))
        return name == QString::number(pictureNumber_) ? picture_ : nullptr;
    return capture_ && name == captureId() ? capture_->thumbnail() : nullptr;
}

QString PreviewModel::details() const {
    if (!capture_) return {};
    QStringList parts;
    if (facts_.count > 1)
        parts << translated(QT_TRANSLATE_NOOP("Preview", "%1 of %2"))
                     .arg(facts_.position + 1)
                     .arg(facts_.count);
    if (hasPages())
        parts << translated(QT_TRANSLATE_NOOP("Preview", "page %1 of %2"))
                     .arg(facts_.page + 1)
                     .arg(facts_.pageCount);
    if (!facts_.isVector) parts << pixelSizeText(facts_.pixels);
    if (isRecording()) parts << durationText();
    if (facts_.bytes)
        parts << QLocale().formattedDataSize(*facts_.bytes, 1, QLocale::DataSizeSIFormat);
    parts << relativeDateText(capture_->date(), context_.clock.now());
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

QRectF PreviewModel::tile() const {
    if (tile_) return toQt(*tile_);
    // Without a tile, the preview grows out of its own middle a little.
    constexpr double start = 0.9;
    const QRectF whole = glass();
    QRectF small(QPointF(), whole.size() * start);
    small.moveCenter(whole.center());
    return small;
}

QRectF PreviewModel::glass() const {
    return toQt(PreviewLayout::glass(zoom_.area(), context_.state.window));
}

QSizeF PreviewModel::pictureSize() const {
    return toQt(zoom_.picture());
}

QPointF PreviewModel::pictureCentre() const {
    return {zoom_.centre().x, zoom_.centre().y};
}

QSizeF PreviewModel::area() const {
    return toQt(zoom_.area());
}

double PreviewModel::margin() {
    return PreviewLayout::margin;
}

double PreviewModel::barHeight() {
    return PreviewLayout::barHeight;
}

std::vector<DragItem> PreviewModel::dragItems(const QString&) const {
    auto items = context_.actions.dragItems();
    if (items.empty() && capture_) items.push_back({capture_->url(), capture_->thumbnail()});
    return items;
}

void PreviewModel::dragBegan() {
    isDragging_ = true;
    emit isDraggingChanged();
    context_.actions.dragBegan();
}

void PreviewModel::dragEnded(bool completed, const std::vector<Url>& urls) {
    isDragging_ = false;
    emit isDraggingChanged();
    context_.actions.dragEnded(completed, urls);
}

void PreviewModel::toggleRealPixels(const QPointF& anchor) {
    context_.actions.toggleRealPixels({anchor.x(), anchor.y()});
}

void PreviewModel::zoomBy(double factor, const QPointF& anchor) {
    context_.actions.zoomBy(factor, {anchor.x(), anchor.y()});
}

}  // namespace vantle
