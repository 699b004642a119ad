#include "panel/views/CapturePanel.h"

#include <QFile>
#include <QImage>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickView>
#include <QStringList>
#include <utility>

#include "panel/CardLayout.h"
#include "panel/views/ThumbnailProvider.h"
#include "platform/qt/QtGeometry.h"

Q_IMPORT_QML_PLUGIN(Vantle_PanelPlugin)
Q_IMPORT_QML_PLUGIN(Vantle_CardsPlugin)

namespace vantle {
namespace {

// A window that its manager does not manage: only that keeps the focus where it is when it is
// clicked, and stands on every workspace and above full-screen windows.
constexpr auto windowFlags =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

const QSize windowSize(static_cast<int>(CardLayout::windowSize.width),
                       static_cast<int>(CardLayout::windowSize.height));

/// The software renderer, unless the user chose one: it takes a third of the memory.
void chooseRenderer() {
    const bool isChosen = qEnvironmentVariableIsSet("QT_QUICK_BACKEND") ||
                          qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!isChosen) QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

/// The first item of that name below `item`, depth first; null when there is none.
const QQuickItem* findItem(const QQuickItem& item, const QString& name) {
    for (const QQuickItem* child : item.childItems()) {
        if (child->objectName() == name) return child;
        if (const QQuickItem* found = findItem(*child, name)) return found;
    }
    return nullptr;
}

void describeThumbnails(const QQuickItem& item, const QQuickItem& row, QStringList& frames) {
    for (const QQuickItem* child : item.childItems()) {
        if (child->objectName() == QStringLiteral("thumbnail")) {
            const QRectF frame = row.mapRectFromItem(child, child->boundingRect());
            frames << QStringLiteral("top %1, left %2, right %3")
                          .arg(frame.top())
                          .arg(frame.left())
                          .arg(row.width() - frame.right());
        }
        describeThumbnails(*child, row, frames);
    }
}

}  // namespace

CapturePanel::CapturePanel(PanelState& state, CardActions actions, PanelModel::Rendering rendering)
    : model_(state, std::move(actions), rendering) {
    chooseRenderer();
    view_ = makeView();
    view_->setFlags(windowFlags);
    container_ = std::make_unique<PassthroughContainerView>(*view_);
}

CapturePanel::~CapturePanel() = default;

std::unique_ptr<QQuickView> CapturePanel::makeView() {
    QQuickWindow::setDefaultAlphaBuffer(true);
    auto view = std::make_unique<QQuickView>();
    view->setColor(Qt::transparent);
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->resize(windowSize);
    view->setTitle(QStringLiteral("Vantle"));
    view->engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    view->engine()->addImageProvider(QStringLiteral("thumbnail"),
                                     new ThumbnailProvider([this](const QString& id) {
                                         return model_.captures()->capture(id);
                                     }));
    view->setInitialProperties({{QStringLiteral("panel"), QVariant::fromValue(&model_)}});
    view->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Cards/CaptureCardView.qml")));
    return view;
}

void CapturePanel::setFrame(const Rect& frame) {
    view_->setGeometry(fromScreenCoordinates(frame));
}

void CapturePanel::orderFrontRegardless() {
    model_.readCorner();
    view_->show();
    view_->raise();
}

void CapturePanel::orderOut() {
    view_->hide();
}

std::optional<std::string> CapturePanel::glassFrameDescription() const {
    const GlassBackdropView* glass = container_->visibleGlass();
    return glass ? std::optional(glass->debugFrameDescription().toStdString()) : std::nullopt;
}

std::string CapturePanel::thumbnailFramesDescription() const {
    const auto* row = findItem(*view_->contentItem(), QStringLiteral("tileRow"));
    QStringList frames;
    if (row) describeThumbnails(*row, *row, frames);
    return "thumbnails in the row: " + frames.join(QStringLiteral("; ")).toStdString();
}

Outcome CapturePanel::writeSnapshot(const std::string& path) {
    const auto view = makeView();
    view->create();
    const QImage picture = view->grabWindow();
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    if (!file.open(QIODevice::WriteOnly)) return Failure{0, file.errorString().toStdString(), path};
    if (picture.isNull() || !picture.save(&file, "PNG") || !file.flush())
        return Failure{0, "the picture cannot be written", path};
    return {};
}

}  // namespace vantle
