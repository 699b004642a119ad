#pragma once

#include <QImage>
#include <string>

namespace vantle {

/// What stands in the tray: one of the pictures in assets/icons, or a text.
class TrayIcon {
public:
    /// False when there is no such picture.
    bool setPicture(const std::string& name);
    void setText(const std::string& text) { text_ = QString::fromStdString(text); }
    void setDimmed(bool dimmed) { isDimmed_ = dimmed; }

    /// The icon as wide and high as `pixels`, premultiplied.
    QImage image(int pixels) const;

private:
    void draw(QPainter& painter, int pixels) const;

    QByteArray picture_;
    QString text_;
    bool isDimmed_ = false;
};

}  // namespace vantle
