#include "panel/views/SeparateBarView.h"

#include <QExposeEvent>
#include <QPainter>
#include <QQuickWindow>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/TransparentWindow.h"

namespace vantle {

class SeparateBarView::Bar final : public TransparentWindow {
public:
    explicit Bar(SeparateBarView& view) : view_(view) { makePassive(); }

protected:
    void paintEvent(QPaintEvent* event) override {
        TransparentWindow::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(view_.color_);
        const double radius = height() / 2.0;
        painter.drawRoundedRect(QRectF(0, 0, view_.length_, height()), radius, radius);
    }

    void exposeEvent(QExposeEvent* event) override {
        TransparentWindow::exposeEvent(event);
        view_.setOpen(isExposed());
    }

private:
    SeparateBarView& view_;
};

SeparateBarView::SeparateBarView(QQuickItem* parent) : QQuickItem(parent) {
    connect(this, &SeparateBarView::isWantedChanged, this, [this] { openOrClose(); });
    connect(this, &SeparateBarView::looksChanged, this, [this] {
        if (bar_) bar_->update();
    });
}

SeparateBarView::~SeparateBarView() = default;

void SeparateBarView::openOrClose() {
    bar_.reset();
    setOpen(false);
    if (!isWanted_ || !window() || !DisplayServer::current().forgetsInputRegions()) return;
    bar_ = std::make_unique<Bar>(*this);
    bar_->setGeometry(frame());
    bar_->show();
}

void SeparateBarView::setOpen(bool isOpen) {
    if (isOpen == isOpen_) return;
    isOpen_ = isOpen;
    emit isOpenChanged();
}

QRect SeparateBarView::frame() const {
    const QRectF inWindow = mapRectToScene(boundingRect());
    return inWindow.translated(window()->position()).toAlignedRect();
}

}  // namespace vantle
