#pragma once

#include <QAbstractNativeEventFilter>
#include <QImage>
#include <QRect>

#include "platform/qt/EmbeddedIcon.h"

namespace vantle::x11 {

/// The icon for trays on X that embed a window of each program (the XEmbed and system tray
/// protocols). Main thread only.
class XEmbedIcon final : public EmbeddedIcon, public QAbstractNativeEventFilter {
public:
    explicit XEmbedIcon(Draw draw);
    ~XEmbedIcon() override;
    XEmbedIcon(const XEmbedIcon&) = delete;
    XEmbedIcon& operator=(const XEmbedIcon&) = delete;

    void show() override;
    void hide() override;
    bool isShown() const override { return isEmbedded_; }
    void iconChanged() override { paint(); }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    void watchForTrays();
    void dock();
    void redock();
    void destroyWindow();
    void makeWindow(std::uint32_t tray);
    void resetWindow();
    void handleWindowEvent(std::uint8_t type, const void* event);
    void click();
    void paint();
    /// Returns a picture of the background, as large as the window.
    QImage background() const;
    QRect frame() const;

    const Draw draw_;
    bool isWanted_ = false;
    bool isWatchingForTrays_ = false;
    bool isEmbedded_ = false;
    std::uint32_t tray_ = 0;    ///< The window that takes icons.
    std::uint32_t window_ = 0;  ///< The icon's own window.
    bool hasAlpha_ = false;
    std::uint8_t depth_ = 0;
    QSize size_;
};

}  // namespace vantle::x11
