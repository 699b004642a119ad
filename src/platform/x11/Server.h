#pragma once

#include <functional>

#include "platform/qt/DisplayServer.h"
#include "platform/x11/ServerTime.h"

namespace vantle::x11 {

/// An X server, with a compositor's XWayland or without. Main thread only.
class Server final : public DisplayServer {
public:
    /// `whyNotNative` returns why the program does not connect to the Wayland compositor of the
    /// session; it returns an empty string if there is nothing to explain.
    explicit Server(std::function<std::string()> whyNotNative);

    std::string name() const override;
    std::vector<ReportLine> report() const override;
    bool isLost() const override;

    std::unique_ptr<Overlay> makeOverlay(QWindow& window, Overlay::Focus focus) override;
    bool placesMenusAnywhere() const override;
    std::unique_ptr<EmbeddedIcon> makeEmbeddedIcon(EmbeddedIcon::Draw draw) override;

    void setInputRegion(QWindow& window, const QRegion& region) override;
    std::unique_ptr<WindowInputRegion> makeInputRegion(QWindow& window) override;
    bool forgetsInputRegions() const override;
    bool isComposited() const override;
    bool offersBlur() const override;
    void setBlurBehind(QWindow& window, const QRegion& region) override;

    QRect usableArea(QScreen& screen) const override;

    bool grabsAllKeys() const override;
    std::unique_ptr<BorrowedSpaceBar> makeBorrowedSpaceBar() override;

    std::unique_ptr<DragSupport> supportDrag(QDrag& drag, const DragContents& contents) override;
    void setClipboard(std::unique_ptr<QMimeData> contents) override;

    void requestActivationToken(QObject& owner, TokenReceiver receiver) override;
    void bringToFront(QWindow& window) override;
    bool isOnOtherWorkspace(const QWindow& window) const override;
    void keepOutOfTaskbar(const QWindow& window) override;
    void setInTaskbar(const QWindow& window, bool isPresent) override;
    QString exportedWindowName(const QWindow& window) const override;

private:
    const std::function<std::string()> whyNotNative_;
    ServerTime time_;
    bool isSettingClipboard_ = false;
    std::unique_ptr<QMimeData> nextContents_;  ///< For the clipboard, until the time is known.
};

}  // namespace vantle::x11
