#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QQuickItem>
#include <memory>

namespace vantle {

/// A bar on a small window of its own, over the item's place on the screen. It is for compositors
/// that forget the input region of a window with each frame: a card that is redrawn for a shrinking
/// bar would take the clicks beside it. With other display servers there is no separate window, and
/// the parent item draws the bar. The bar takes no pointer input.
class SeparateBarView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    /// True if the window may open, which must be only while nothing but the bar changes.
    Q_PROPERTY(bool isWanted MEMBER isWanted_ NOTIFY isWantedChanged)
    /// The bar's length in points, from the item's left edge. The item keeps its width, because a
    /// change would redraw the card.
    Q_PROPERTY(double length MEMBER length_ NOTIFY looksChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY looksChanged)
    /// True while the window shows the bar.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    explicit SeparateBarView(QQuickItem* parent = nullptr);
    ~SeparateBarView() override;

    bool isOpen() const { return isOpen_; }

signals:
    void isWantedChanged();
    void looksChanged();
    void isOpenChanged();

private:
    class Bar;

    void openOrClose();
    void setOpen(bool isOpen);
    /// Returns the item's frame on the screen, in points.
    QRect frame() const;

    bool isWanted_ = false;
    double length_ = 0;
    QColor color_ = Qt::black;
    bool isOpen_ = false;
    std::unique_ptr<Bar> bar_;
};

}  // namespace vantle
