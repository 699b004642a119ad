#pragma once

#include <QRect>
#include <functional>
#include <memory>

#include "platform/StatusItem.h"
#include "platform/freedesktop/tray/StatusNotifierItem.h"
#include "platform/freedesktop/tray/TrayIcon.h"
#include "platform/qt/EmbeddedIcon.h"

namespace vantle {

/// The icon in whatever tray the desktop has: one on D-Bus before one that takes windows. A click
/// opens the menu as `openMenu` draws it; the menu that the tray draws by itself is the same.
class TrayStatusItem final : public StatusItem {
public:
    /// Opens a menu at a place in Qt's screen coordinates, and does what is chosen in it.
    using OpenMenu = std::function<void(const Menu& menu, const QRect& anchor)>;

    enum class Click {
        opensOurMenu,
        opensMenuOfTray,  ///< Where a menu of ours could not stand right.
    };

    TrayStatusItem(OpenMenu openMenu, Click click,
                   const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~TrayStatusItem() override;

    bool setImage(const std::string& name, const std::string& description) override;
    void setTitle(const std::string& title) override { icon_.setText(title); }
    void setAutosaveName(const std::string& name) override;
    void show() override;
    bool isShown() const override;
    /// Which kind of tray has it, in English: for reports of faults.
    std::string tray() const;
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
    const std::unique_ptr<EmbeddedIcon> embedded_;  ///< Null where trays take no windows.
    std::unique_ptr<StatusNotifierItem> onBus_;     ///< Once it is shown.
};

}  // namespace vantle
