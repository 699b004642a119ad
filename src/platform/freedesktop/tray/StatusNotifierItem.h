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

/// The icon for trays that ask over D-Bus (org.kde.StatusNotifierItem): offers itself to each one
/// that comes. Main thread only.
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
        QString id;     ///< By which trays remember it.
        QString title;  ///< What it is called.
        /// Whether the tray itself opens its menu when the item is clicked.
        bool isMenu = false;
    };

    /// `icon` and `bus` outlive it.
    StatusNotifierItem(Description description, const TrayIcon& icon,
                       std::function<vantle::Menu()> makeMenu, const QDBusConnection& bus);
    ~StatusNotifierItem() override;

    /// Offers the item, once. What becomes of it shows in isShown().
    void start();

    /// Whether a tray was found that shows such items.
    bool isShown() const { return isRegistered_ && hasHost_; }
    /// Whether it is known by now.
    bool isSettled() const { return isSettled_; }

    void iconChanged() { emit NewIcon(); }
    BusMenu& busMenu() { return menu_; }

    /// The item was clicked, at that place in pixels of the screen (the origin when the tray does
    /// not say).
    std::function<void(const QPoint& pixel)> onActivate;
    /// isShown() or isSettled() has changed.
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
    /// Comes before a click on the item or on a line of its menu.
    static void ProvideXdgActivationToken(const QString& token) { keepActivationToken(token); }
    static void Scroll(int, const QString&) {}

signals:
    void NewIcon();

private slots:
    void askForHost();

private:
    void publish();
    void offer();
    void settle(bool isRegistered, bool hasHost);

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
