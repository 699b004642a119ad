#include "screens/views/UpdateWindow.h"

#include <QCoreApplication>
#include <QQuickItem>

namespace vantle {

UpdateWindow::UpdateWindow(UpdateFlow& flow)
    : ScreenWindow(QCoreApplication::translate("UpdateWindow", "Vantle Update")),
      flow_(flow),
      model_(flow) {
    load("UpdateView", "update", &model_);
    connect(rootObject(), &QQuickItem::implicitHeightChanged, this, &UpdateWindow::fit);
    fit();
}

UpdateWindow::~UpdateWindow() {
    unload();
}

void UpdateWindow::fit() {
    const QQuickItem& view = *rootObject();
    setContentSize({view.implicitWidth(), view.implicitHeight()});
}

bool UpdateWindow::event(QEvent* event) {
    if (event->type() == QEvent::Hide) flow_.close();
    return ScreenWindow::event(event);
}

}  // namespace vantle
