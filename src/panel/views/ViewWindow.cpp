#include "panel/views/ViewWindow.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <mutex>

#include "panel/views/SymbolProvider.h"

Q_IMPORT_QML_PLUGIN(Vantle_PanelPlugin)
Q_IMPORT_QML_PLUGIN(Vantle_CardsPlugin)

namespace vantle {
namespace {

void chooseRendering() {
    // The software renderer takes a third of the memory. It is used unless the user chose another.
    const bool isChosen = qEnvironmentVariableIsSet("QT_QUICK_BACKEND") ||
                          qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!isChosen) QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
    // Native text looks the same with every renderer, and sharp on ordinary screens.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

}  // namespace

QuickRendering::QuickRendering() {
    static std::once_flag isChosen;
    std::call_once(isChosen, chooseRendering);
}

ViewWindow::ViewWindow() {
    setColor(Qt::transparent);
    setTitle(QStringLiteral("Vantle"));
    engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine()->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
}

void ViewWindow::load(const QString& file, const QVariantMap& properties) {
    setInitialProperties(properties);
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/") + file));
    // The view is part of the program or of its dependencies, so the installation is broken.
    if (!rootObject()) qFatal("cannot load the view %s", qUtf8Printable(file));
}

void ViewWindow::unload() {
    delete rootObject();
    // The software renderer keeps the pictures of a closed window until another one draws a frame.
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (auto* other = qobject_cast<QQuickWindow*>(window); other && other != this)
            other->update();
}

}  // namespace vantle
