#pragma once

#include <QRect>
#include <functional>
#include <memory>

#include "platform/StatusItem.h"
#include "platform/freedesktop/tray/StatusNotifierItem.h"
#include "platform/freedesktop/tray/TrayIcon.h"
#include "platform/qt/EmbeddedIcon.h"

namespace vantle {

/// The icon in the desktop's tray: on D-Bus if there is one, otherwise in a tray that embeds
/// windows. A click opens the menu through `openMenu`; a tray that draws the menu itself shows the
/// same one.
class TrayStatusItem final : public StatusItem {
public:
    /// Opens a menu at `anchor`, in Qt's screen coordinates, and runs the action that is chosen.
    using OpenMenu = std::function<void(const Menu& menu, const QRect& anchor)>;

    enum class Click {
        opensOurMenu,
        opensMenuOfTray,  ///< For desktops on which our menu cannot be placed correctly.
    };

    TrayStatusItem(OpenMenu openMenu, Click click,
                   const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~TrayStatusItem() override;

    bool setImage(const std::string& name, const std::string& description) override;
    void setTitle(const std::string& title) override { icon_.setText(title); }
    void setAutosaveName(const std::string& name) override;
    void show() override;
    bool isShown() const override;
    /// Returns the kind of tray that shows the icon, in English, for status reports.
    std::string trayKind() const;
    void setAppearsDisabled(bool disabled) override;
    void menuChanged() override;

private:
    Menu menu() const { return menuNeedsUpdate ? menuNeedsUpdate() : Menu{}; }
    void chooseTray();
    void open(const QRect& anchor) { openMenu_(menu(), anchor); }

    const OpenMenu openMenu_;
    const Click click_;
    const QDBusConnection bus_;
    TrayIcon icon_;
    std::string description_;
    std::string autosaveName_;
    const std::unique_ptr<EmbeddedIcon> embedded_;  ///< Null if trays cannot embed windows.
    std::unique_ptr<StatusNotifierItem> onBus_;     ///< Null before show().
};

}  // namespace vantle
