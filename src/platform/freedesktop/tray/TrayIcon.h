#pragma once

#include <QImage>
#include <array>
#include <string>

namespace vantle {

/// The picture in the tray: drawn from assets/icons when the program was built, or a text instead.
class TrayIcon {
public:
    /// The sizes of the pictures, in pixels.
    static constexpr std::array sizes = {16, 22, 24, 32, 48};

    /// Returns false and changes nothing if there is no picture of that name.
    bool setPicture(const std::string& name);
    void setText(const std::string& text) { text_ = QString::fromStdString(text); }
    void setDimmed(bool dimmed) { isDimmed_ = dimmed; }

    /// Returns the icon in the largest size that fits into `pixels`, but at least in the smallest;
    /// premultiplied.
    QImage image(int pixels) const;

private:
    QImage picture(int size) const;
    QImage letters(int size) const;

    QString picture_;
    QString text_;
    bool isDimmed_ = false;
};

}  // namespace vantle
