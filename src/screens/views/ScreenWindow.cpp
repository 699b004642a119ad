#include "screens/views/ScreenWindow.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QScreen>
#include <memory>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/FrontWindow.h"

Q_IMPORT_QML_PLUGIN(Vantle_ScreensPlugin)

namespace vantle {
namespace {

/// Draws an item at its own size without a window on the screen. Returns a null image unless the
/// software renderer is in use: only that one draws into memory.
QImage drawnOffscreen(QQuickItem& item, double scale) {
    QQuickRenderControl control;
    QQuickWindow window(&control);
    if (window.rendererInterface()->graphicsApi() != QSGRendererInterface::Software) return {};
    QImage picture((item.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    auto target = QQuickRenderTarget::fromPaintDevice(&picture);
    target.setDevicePixelRatio(scale);
    window.setRenderTarget(target);
    window.setGeometry(QRect(QPoint(), item.size().toSize()));
    window.setColor(Qt::transparent);
    item.setParentItem(window.contentItem());
    control.polishItems();
    control.sync();
    control.render();
    item.setParentItem(nullptr);
    return picture;
}

}  // namespace

ScreenWindow::ScreenWindow(const QString& title) {
    // Not Qt::Dialog: the toolkit declares that a dialog belongs to all windows of the program, and
    // some window managers then keep one of two such windows above the other forever.
    setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
             Qt::WindowCloseButtonHint);
    setTitle(title);
    // The icon exists only if the program is installed.
    setIcon(QIcon::fromTheme(QStringLiteral("org.vantle.Vantle")));
    setResizeMode(QQuickView::SizeRootObjectToView);
}

void ScreenWindow::load(const char* view, const char* name, QObject* model) {
    properties_ = {{QString::fromLatin1(name), QVariant::fromValue(model)}};
    ViewWindow::load(QStringLiteral("Screens/%1.qml").arg(QLatin1String(view)), properties_);
}

void ScreenWindow::setContentSize(Size size) {
    const QSize points = QSizeF(size.width, size.height).toSize();
    if (points == minimumSize() && points == maximumSize()) return;
    setMinimumSize(points);
    setMaximumSize(points);
    resize(points);
}

void ScreenWindow::place() {
    if (!wasPlaced_ || !QGuiApplication::screenAt(frameGeometry().center())) return centre();
    // The position does not include the frame, because the window manager added the frame when the
    // window was shown before.
    setPosition(lastPlace_);
}

void ScreenWindow::hideEvent(QHideEvent* event) {
    lastPlace_ = position();
    wasPlaced_ = true;
    ViewWindow::hideEvent(event);
}

void ScreenWindow::centre() {
    if (!screen()) return;
    QRect place(QPoint(), size());
    place.moveCenter(DisplayServer::current().usableArea(*screen()).center());
    setPosition(place.topLeft());
}

void ScreenWindow::makeKeyAndOrderFront() {
    if (!isVisible()) {
        appear();
        place();
    }
    show();
    bringToFront(*this);
}

void ScreenWindow::orderFront() {
    if (isVisible()) return;
    appear();
    place();
    // The toolkit reads this property of its own; windows have no public way to request it.
    constexpr auto withoutKeyboard = "_q_showWithoutActivating";
    setProperty(withoutKeyboard, true);
    show();
    setProperty(withoutKeyboard, {});
}

std::optional<std::string> ScreenWindow::snapshot(double scale) {
    QQmlComponent component(engine(), source());
    const std::unique_ptr<QObject> made(component.createWithInitialProperties(properties_));
    auto* item = qobject_cast<QQuickItem*>(made.get());
    if (!item) return std::nullopt;
    item->setSize(size());
    QByteArray png;
    QBuffer buffer(&png);
    if (!drawnOffscreen(*item, scale).save(&buffer, "PNG")) return std::nullopt;
    return png.toStdString();
}

bool ScreenWindow::event(QEvent* event) {
    // The view handles the event first: Escape may close something that is open in it.
    const bool wasHandled = ViewWindow::event(event);
    if (event->type() == QEvent::KeyPress && !event->isAccepted() &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Close)) {
        close();
        return true;
    }
    return wasHandled;
}

}  // namespace vantle
