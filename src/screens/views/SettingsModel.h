#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QQuickItem>
#include <functional>
#include <vector>

#include "menus/MenuWindow.h"
#include "platform/FolderChooser.h"
#include "platform/Scheduler.h"
#include "screens/BehaviorControls.h"
#include "screens/FolderPicker.h"
#include "settings/Settings.h"
#include "support/Observers.h"

namespace vantle {

/// Provides the settings to their views, which change them through this model. It follows every
/// change of the settings, so that the views always show what is stored.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the window")

    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(double minimum MEMBER minimum_ CONSTANT)
    Q_PROPERTY(double maximum MEMBER maximum_ CONSTANT)
    Q_PROPERTY(double step MEMBER step_ CONSTANT)
    /// The path of the folder as shown to the user.
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    Q_PROPERTY(bool neverDismiss READ neverDismiss WRITE setNeverDismiss NOTIFY changed)
    /// The slider's position in seconds, within its range.
    Q_PROPERTY(double dismissAfter READ dismissAfter WRITE setDismissAfter NOTIFY changed)
    Q_PROPERTY(QString dismissAfterText READ dismissAfterText NOTIFY changed)
    Q_PROPERTY(bool removeAfterUse READ removeAfterUse WRITE setRemoveAfterUse NOTIFY changed)
    Q_PROPERTY(bool deleteAfterUse READ deleteAfterUse WRITE setDeleteAfterUse NOTIFY changed)
    Q_PROPERTY(bool showRecordings READ showRecordings WRITE setShowRecordings NOTIFY changed)
    /// A sentence that says where the desktop saves recordings; empty if that is unknown.
    Q_PROPERTY(QString recordingsPlace READ recordingsPlace NOTIFY changed)
    Q_PROPERTY(bool copyOnCapture READ copyOnCapture WRITE setCopyOnCapture NOTIFY changed)
    Q_PROPERTY(QString corner READ corner NOTIFY changed)
    Q_PROPERTY(bool hideSystemThumbnail READ hideSystemThumbnail WRITE setHideSystemThumbnail NOTIFY
                   changed)
    /// Reasons why the folder, the system's thumbnail and the Dock setting cannot be changed; empty
    /// if they can.
    Q_PROPERTY(QString folderObstacle READ folderObstacle NOTIFY changed)
    Q_PROPERTY(QString thumbnailObstacle READ thumbnailObstacle NOTIFY changed)
    Q_PROPERTY(QString dockObstacle READ dockObstacle NOTIFY changed)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(bool showInDock READ showInDock WRITE setShowInDock NOTIFY changed)

public:
    /// All members must outlive the model.
    struct Context {
        Settings& settings;
        const FileManager& files;
        FolderChooser& folderChooser;
        Application& application;
        Scheduler& scheduler;
        /// Returns where the desktop's recorder saves; may be empty.
        const std::function<Url()>& recordingsFolder;
        /// Notified when the user requests the sample captures.
        const Observers<>& vantleShowDemo;
    };

    explicit SettingsModel(const Context& context);

    /// Must be called before the views are shown.
    void appear();

    QString version() const;
    QString folder() const;
    bool neverDismiss() const { return controls_.neverDismiss(); }
    double dismissAfter() const { return controls_.sliderValue(); }
    QString dismissAfterText() const;
    bool removeAfterUse() const { return settings_.removeAfterUse.value(); }
    bool deleteAfterUse() const { return settings_.deleteAfterUse.value(); }
    bool showRecordings() const { return settings_.showRecordings.value(); }
    QString recordingsPlace() const { return recordingsPlace_; }
    bool copyOnCapture() const { return settings_.copyOnCapture.value(); }
    QString corner() const;
    bool hideSystemThumbnail() const { return settings_.hideSystemThumbnail.value(); }
    QString folderObstacle() const { return folderObstacle_; }
    QString thumbnailObstacle() const { return thumbnailObstacle_; }
    QString dockObstacle() const { return dockObstacle_; }
    bool launchAtLogin() const { return settings_.launchAtLogin.value(); }
    bool showInDock() const { return settings_.showInDock.value(); }

    void setNeverDismiss(bool on);
    void setDismissAfter(double seconds);
    void setRemoveAfterUse(bool on);
    void setDeleteAfterUse(bool on);
    void setShowRecordings(bool on);
    void setCopyOnCapture(bool on);
    void setHideSystemThumbnail(bool on);
    void setLaunchAtLogin(bool on);
    void setShowInDock(bool on);

    /// Opens the menu below `button`.
    Q_INVOKABLE void openFolderMenu(QQuickItem* button);
    Q_INVOKABLE void openCornerMenu(QQuickItem* button);
    Q_INVOKABLE void showSample();

signals:
    void changed();

private:
    void follow();
    void readObstacles();
    void readRecordingsPlace();
    Menu cornerMenu();
    void open(const Menu& menu, const QQuickItem& button);

    // QML properties declared with MEMBER need members.
    const double minimum_ = BehaviorControls::minimum;
    const double maximum_ = BehaviorControls::maximum;
    const double step_ = BehaviorControls::step;

    Settings& settings_;
    const Observers<>& vantleShowDemo_;
    FolderPicker picker_;
    BehaviorControls controls_;
    QString folderObstacle_;
    QString thumbnailObstacle_;
    const QString dockObstacle_;
    const std::function<Url()>& recordingsFolder_;
    QString recordingsPlace_;
    std::unique_ptr<MenuWindow> menu_;  ///< Created when first needed.
    std::vector<Subscription> subscriptions_;
};

}  // namespace vantle
