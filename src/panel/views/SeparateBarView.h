#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QQuickItem>
#include <memory>

namespace vantle {

/// A bar on a small window of its own, over the item's place on the screen, where a compositor
/// forgets the input region of a window with each frame: a bar that gets shorter all the time would
/// take the card's clicks from what is beside it. Elsewhere there is no such window, and who uses
/// the bar draws it. The pointer does not meet it.
class SeparateBarView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    /// Whether it may come: while nothing but the bar changes.
    Q_PROPERTY(bool isWanted MEMBER isWanted_ NOTIFY isWantedChanged)
    /// In points from the item's left edge. The item's own width stays, or there would be a frame.
    Q_PROPERTY(double length MEMBER length_ NOTIFY looksChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY looksChanged)
    /// Whether the bar is seen on the window.
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
    /// On the screen, in points.
    QRect frame() const;

    bool isWanted_ = false;
    double length_ = 0;
    QColor color_ = Qt::black;
    bool isOpen_ = false;
    std::unique_ptr<Bar> bar_;
};

}  // namespace vantle
