#include "preview/views/PreviewPanel.h"

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"
#include "preview/views/PreviewPictureProvider.h"
#include "support/Debug.h"

Q_IMPORT_QML_PLUGIN(Vantle_PreviewPlugin)

namespace vantle {

PreviewPanel::PreviewPanel(PreviewModel::Context context) : model_(std::move(context)) {
    overlay_ = DisplayServer::current().makeOverlay(*this, Overlay::Focus::accepted);
    container_ = std::make_unique<PassthroughContainerView>(window());
    setResizeMode(QQuickView::SizeRootObjectToView);
    engine()->addImageProvider(QStringLiteral("preview"), new PreviewPictureProvider(model_));
    load(QStringLiteral("Preview/PreviewView.qml"),
         {{QStringLiteral("preview"), QVariant::fromValue(&model_)}});
}

PreviewPanel::~PreviewPanel() {
    unload();
}

void PreviewPanel::open(const Rect& frame) {
    wantsKeyboard_ = true;
    overlay_->setFrame(fromScreenCoordinates(frame));
    overlay_->show();
    if (isExposed()) overlay_->takeKeyboard();
}

bool PreviewPanel::event(QEvent* event) {
    const bool isHandled = QQuickView::event(event);
    if (event->type() == QEvent::Expose && isExposed() && std::exchange(wantsKeyboard_, false))
        overlay_->takeKeyboard();
    if (event->type() == QEvent::FocusIn) Debug::log([] { return "preview gets the keys"; });
    return isHandled;
}

void PreviewPanel::giveBackKeyboard() {
    wantsKeyboard_ = false;
    overlay_->giveBackKeyboard();
}

void PreviewPanel::orderOut() {
    overlay_->hide();
}

}  // namespace vantle
