#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/FileOpener.h"
#include "platform/PrivacySettings.h"
#include "platform/freedesktop/DesktopFileOpener.h"

namespace vantle {

/// Who may read a folder is decided by its permissions, which the file manager shows and changes,
/// asked as org.freedesktop.FileManager1; where none answers, the folder is shown. A program in a
/// sandbox is held back by that: GNOME has a page for what it may do.
class DesktopPrivacySettings final : public QObject, public PrivacySettings {
    Q_OBJECT

public:
    /// `opener` outlives it; `identifier` is by what the desktop knows the program.
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
