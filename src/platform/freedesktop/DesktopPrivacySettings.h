#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/FileOpener.h"
#include "platform/PrivacySettings.h"
#include "platform/freedesktop/DesktopFileOpener.h"

namespace vantle {

/// Opens the folder's properties in the file manager (org.freedesktop.FileManager1), which shows
/// and changes the permissions; if no file manager answers, shows the folder. In a sandbox, opens
/// GNOME's settings page for this program instead, because the sandbox limits what it can read.
class DesktopPrivacySettings final : public QObject, public PrivacySettings {
    Q_OBJECT

public:
    /// `opener` must outlive this object; `identifier` is the program's identifier on the desktop.
    DesktopPrivacySettings(std::string identifier, FileOpener& opener,
                           DesktopFileOpener::Sandbox sandbox,
                           const QDBusConnection& bus = QDBusConnection::sessionBus());

    void open(const Url& folder) override;

private:
    void openPageOfProgram(const Url& folder);
    void openProperties(const Url& folder);

    const std::string identifier_;
    FileOpener& opener_;
    const DesktopFileOpener::Sandbox sandbox_;
    const QDBusConnection bus_;
};

}  // namespace vantle
