#include "panel/views/CapturePanel.h"

#include <QFile>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStringList>
#include <utility>

#include "panel/CardLayout.h"
#include "panel/views/DragThumbnailView.h"
#include "panel/views/ThumbnailProvider.h"
#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

const QSize windowSize(static_cast<int>(CardLayout::windowSize.width),
                       static_cast<int>(CardLayout::windowSize.height));

/// Collects every item of type `Kind` below `item`, depth first.
template <typename Kind>
void collect(const QQuickItem& item, std::vector<const Kind*>& found) {
    for (const QQuickItem* child : item.childItems()) {
        if (const auto* kind = qobject_cast<const Kind*>(child)) found.push_back(kind);
        collect(*child, found);
    }
}

std::vector<const DragThumbnailView*> thumbnails(const QQuickWindow& window) {
    std::vector<const DragThumbnailView*> found;
    collect(*window.contentItem(), found);
    return found;
}

/// Returns the part of the item that nothing clips, in scene coordinates.
QRectF visibleRect(const QQuickItem& item) {
    QRectF visible = item.mapRectToScene(item.boundingRect());
    for (const QQuickItem* above = item.parentItem(); above; above = above->parentItem())
        if (above->clip()) visible &= above->mapRectToScene(above->boundingRect());
    return visible;
}

/// Returns the row of tiles that contains the thumbnail.
const QQuickItem* rowOf(const QQuickItem& thumbnail) {
    const QQuickItem* above = &thumbnail;
    while (above && above->objectName() != QStringLiteral("tileRow")) above = above->parentItem();
    return above;
}

}  // namespace

CapturePanel::CapturePanel(PanelModel::Context context) : model_(std::move(context)) {
    view_ = makeView();
    overlay_ = DisplayServer::current().makeOverlay(*view_, Overlay::Focus::refused);
    view_->onMarquee = [this](const auto& rect) {
        if (onMarquee) onMarquee(rect);
    };
    view_->onBackgroundClick = [this] {
        if (onBackgroundClick) onBackgroundClick();
    };
    container_ = std::make_unique<PassthroughContainerView>(*view_);
    pressFilter_ = std::make_unique<PressFilter>(*view_, *container_, model_);
    swipeFilter_ = std::make_unique<SwipeFilter>(*view_, *container_, model_);
    previewKeyFilter_ = std::make_unique<PreviewKeyFilter>(*view_, model_);
    view_->onFlick = [this](double velocity) { swipeFilter_->throwCard(velocity); };
    QObject::connect(&model_, &PanelModel::isPresentedChanged, view_.get(), [this] {
        if (!model_.isPresented()) endInteraction();
    });
}

CapturePanel::~CapturePanel() = default;

std::unique_ptr<FirstMouseHostingView> CapturePanel::makeView() {
    auto view = std::make_unique<FirstMouseHostingView>();
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->resize(windowSize);
    view->engine()->addImageProvider(QStringLiteral("thumbnail"),
                                     new ThumbnailProvider([this](const QString& id) {
                                         return model_.captures()->capture(id);
                                     }));
    view->loadCard(model_);
    return view;
}

void CapturePanel::setFrame(const Rect& frame) {
    overlay_->setFrame(fromScreenCoordinates(frame));
}

void CapturePanel::orderFrontRegardless() {
    model_.updateCorner();
    overlay_->show();
}

void CapturePanel::orderOut() {
    overlay_->hide();
    model_.clearCaptures();
}

void CapturePanel::releaseResources() {
    // The tiles' graphics are freed with the next frame, which a hidden window never draws.
    const bool isDrawn = view_->handle() && DisplayServer::current().drawsHiddenWindows();
    if (isDrawn && view_->rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
        view_->grabWindow();
    view_->releaseResources();
    view_->engine()->collectGarbage();
}

Rect CapturePanel::onScreen(const Rect& inContent) const {
    const QRect content =
        QRectF(inContent.origin.x, inContent.origin.y, inContent.size.width, inContent.size.height)
            .toAlignedRect();
    return toScreenCoordinates({view_->mapToGlobal(content.topLeft()), content.size()},
                               primaryScreenGeometry());
}

void CapturePanel::takeKeyboard() {
    if (!view_->isExposed()) return;
    overlay_->takeKeyboard();
    QMetaObject::invokeMethod(view_->rootObject(), "focusNewest");
}

void CapturePanel::endInteraction() {
    view_->endMarquee();
    overlay_->giveBackKeyboard();
}

std::optional<std::string> CapturePanel::glassFrameDescription() const {
    const GlassBackdropView* glass = container_->visibleGlass();
    return glass ? std::optional(glass->debugFrameDescription().toStdString()) : std::nullopt;
}

std::string CapturePanel::thumbnailFramesDescription() const {
    QStringList frames;
    for (const auto* thumbnail : thumbnails(*view_)) {
        const QQuickItem* row = rowOf(*thumbnail);
        const QRectF frame = row->mapRectFromItem(thumbnail, thumbnail->boundingRect());
        frames << QStringLiteral("top %1, left %2, right %3")
                      .arg(frame.top())
                      .arg(frame.left())
                      .arg(row->width() - frame.right());
    }
    return "thumbnails in the row: " + frames.join(QStringLiteral("; ")).toStdString();
}

std::vector<VisibleThumbnail> CapturePanel::visibleThumbnails() const {
    std::vector<VisibleThumbnail> visible;
    for (const auto* thumbnail : thumbnails(*view_)) {
        const auto capture = model_.captures()->capture(thumbnail->captureId());
        if (!capture) continue;
        const QRectF frame = visibleRect(*thumbnail);
        visible.push_back(
            {capture->id(), {{frame.x(), frame.y()}, {frame.width(), frame.height()}}});
    }
    return visible;
}

Outcome CapturePanel::writeSnapshot(const std::string& path) {
    const auto view = makeView();
    view->create();
    const QImage picture = view->grabWindow();
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    if (!file.open(QIODevice::WriteOnly)) return Failure{0, file.errorString().toStdString(), path};
    if (picture.isNull() || !picture.save(&file, "PNG") || !file.flush())
        return Failure{0, "cannot write the PNG file", path};
    return {};
}

}  // namespace vantle
