#include "screens/views/AlertWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QScreen>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/FrontWindow.h"

Q_IMPORT_QML_PLUGIN(Vantle_ScreensPlugin)

namespace vantle {

AlertWindow::AlertWindow(const Alert& alert)
    : model_(alert), answer_(static_cast<int>(alert.buttons.size()) - 1) {
    // Not Qt::Dialog, for the reason given in ScreenWindow.cpp.
    setFlags(Qt::Window | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
             Qt::WindowCloseButtonHint);
    setResizeMode(QQuickView::SizeViewToRootObject);
    load(QStringLiteral("Screens/AlertView.qml"),
         {{QStringLiteral("alert"), QVariant::fromValue(&model_)}});
    connect(&model_, &AlertModel::answered, this, [this](int button) { answer(button); });
}

AlertWindow::~AlertWindow() {
    unload();
}

int AlertWindow::run() {
    const QSize size = rootObject()->size().toSize();
    setMinimumSize(size);
    setMaximumSize(size);
    QRect place(QPoint(), size);
    if (QScreen* shown = screen())
        place.moveCenter(DisplayServer::current().usableArea(*shown).center());
    setGeometry(place);
    show();
    bringToFront(*this);
    loop_.exec();
    return answer_;
}

void AlertWindow::answer(int button) {
    answer_ = button;
    hide();
    loop_.quit();
}

bool AlertWindow::event(QEvent* event) {
    if (event->type() == QEvent::Close) loop_.quit();
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            answer(answer_);
            return true;
        }
    }
    return QQuickView::event(event);
}

}  // namespace vantle
