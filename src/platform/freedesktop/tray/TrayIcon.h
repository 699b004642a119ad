#pragma once

#include <QImage>
#include <array>
#include <string>

namespace vantle {

/// What stands in the tray: a picture that was drawn from assets/icons when the program was built,
/// or a text.
class TrayIcon {
public:
    /// What there are pictures for, in pixels.
    static constexpr std::array sizes = {16, 22, 24, 32, 48};

    /// False when there is no such picture.
    bool setPicture(const std::string& name);
    void setText(const std::string& text) { text_ = QString::fromStdString(text); }
    void setDimmed(bool dimmed) { isDimmed_ = dimmed; }

    /// The icon in the largest of the sizes that `pixels` has room for, premultiplied.
    QImage image(int pixels) const;

private:
    QImage picture(int size) const;
    QImage letters(int size) const;

    QString picture_;
    QString text_;
    bool isDimmed_ = false;
};

}  // namespace vantle
