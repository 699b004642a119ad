#pragma once

#include <QAbstractNativeEventFilter>
#include <QImage>
#include <QRect>
#include <functional>

namespace vantle {

/// The icon for trays on X that swallow a window of each program (the XEmbed and system tray
/// protocols). Does nothing on another display server. Main thread only.
class XEmbedIcon final : public QAbstractNativeEventFilter {
public:
    /// `draw` gives the icon in at most so many pixels, or as small as there is one.
    explicit XEmbedIcon(std::function<QImage(int pixels)> draw);
    ~XEmbedIcon() override;
    XEmbedIcon(const XEmbedIcon&) = delete;
    XEmbedIcon& operator=(const XEmbedIcon&) = delete;

    /// Stands in a tray from now on, wherever one is or comes.
    void show();
    void hide();
    bool isShown() const { return isEmbedded_; }

    /// It looks different.
    void iconChanged() { paint(); }

    /// It was clicked; with where it stands, in pixels of the screen.
    std::function<void(const QRect& pixels)> onClick;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    void followTrays();
    void dock();
    void dockAnew();
    void destroyWindow();
    void makeWindow(std::uint32_t tray);
    void letGo();
    void handleWindowEvent(std::uint8_t type, const void* event);
    void click();
    void paint();
    /// What the icon is drawn on, as large as the window.
    QImage background() const;
    QRect frame() const;

    const std::function<QImage(int pixels)> draw_;
    bool isWanted_ = false;
    bool isFollowing_ = false;
    bool isEmbedded_ = false;
    std::uint32_t tray_ = 0;    ///< The window that takes icons.
    std::uint32_t window_ = 0;  ///< Ours.
    bool hasAlpha_ = false;
    std::uint8_t depth_ = 0;
    QSize size_;
};

}  // namespace vantle
