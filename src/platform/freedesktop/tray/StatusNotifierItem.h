#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QPoint>
#include <functional>
#include <memory>

#include "platform/freedesktop/ActivationToken.h"
#include "platform/freedesktop/tray/BusMenu.h"
#include "platform/freedesktop/tray/BusMenuTypes.h"
#include "platform/freedesktop/tray/TrayIcon.h"

namespace vantle {

/// The icon for trays on D-Bus (org.kde.StatusNotifierItem). Registers with each tray that starts.
/// Main thread only.
class StatusNotifierItem final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")

    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noText CONSTANT)
    Q_PROPERTY(QString IconThemePath READ noText CONSTANT)
    Q_PROPERTY(vantle::BusPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString IconAccessibleDesc READ title CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ noText CONSTANT)
    Q_PROPERTY(vantle::BusPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noText CONSTANT)
    Q_PROPERTY(vantle::BusPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noText CONSTANT)
    Q_PROPERTY(vantle::BusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    struct Description {
        QString id;     ///< The name by which trays remember the item.
        QString title;  ///< The text for the tooltip and for screen readers.
        /// True if the tray opens the menu itself when the item is clicked.
        bool isMenu = false;
    };

    /// `icon` must outlive this object.
    StatusNotifierItem(Description description, const TrayIcon& icon,
                       std::function<vantle::Menu()> makeMenu, const QDBusConnection& bus);
    ~StatusNotifierItem() override;

    /// Offers the item to the trays. Later calls do nothing. isShown() has the result.
    void start();

    /// Returns true if there is a tray that shows the item.
    bool isShown() const { return isRegistered_ && hasHost_; }
    /// Returns true as soon as isShown() is known.
    bool isSettled() const { return isSettled_; }

    void iconChanged() { emit NewIcon(); }
    BusMenu& busMenu() { return menu_; }

    /// Called when the item was clicked, with the place in pixels of the screen (the origin if the
    /// tray does not tell it).
    std::function<void(const QPoint& pixel)> onActivate;
    /// Called when isShown() or isSettled() may have changed.
    std::function<void()> onChange;

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return description_.id; }
    QString title() const { return description_.title; }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString noText() { return {}; }
    BusPixmaps iconPixmap() const;
    static BusPixmaps noPixmap() { return {}; }
    BusToolTip toolTip() const { return {{}, {}, description_.title, {}}; }
    bool itemIsMenu() const { return description_.isMenu; }
    QDBusObjectPath menu() const;

public slots:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y) { Activate(x, y); }
    void ContextMenu(int x, int y) { Activate(x, y); }
    /// Trays call this before they report a click on the item or on a line of its menu.
    static void ProvideXdgActivationToken(const QString& token) { keepActivationToken(token); }
    static void Scroll(int, const QString&) {}

signals:
    void NewIcon();

private slots:
    void askForHost();

private:
    void publish();
    void registerWithWatcher();
    void setState(bool isRegistered, bool hasHost);

    const Description description_;
    const TrayIcon& icon_;
    BusMenu menu_;
    QDBusConnection bus_;
    bool isPublished_ = false;
    bool isRegistered_ = false;
    bool hasHost_ = false;
    bool isSettled_ = false;
};

}  // namespace vantle
