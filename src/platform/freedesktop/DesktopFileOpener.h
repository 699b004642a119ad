#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/FileOpener.h"
#include "platform/ProcessLauncher.h"
#include "support/Result.h"

namespace vantle {

/// Asks the desktop: files are opened by its own opener (xdg-open, or what there is instead), and
/// shown by whichever file manager answers as org.freedesktop.FileManager1; where none does, their
/// folder is opened. In a sandbox the desktop's portal is asked for both.
class DesktopFileOpener final : public QObject, public FileOpener {
    Q_OBJECT

public:
    enum class Sandbox { none, flatpak };

    /// `launcher` outlives it.
    explicit DesktopFileOpener(ProcessLauncher& launcher, Sandbox sandbox = Sandbox::none,
                               const QDBusConnection& bus = QDBusConnection::sessionBus());

    /// What this process runs in.
    static Sandbox currentSandbox();

    void open(const Url& url) override;
    void reveal(const std::vector<Url>& urls) override;
    void openPage(const std::string& address) override;

private:
    Outcome openByDesktop(const std::string& what);
    void openByPortal(const char* method, const Url& url);
    void askPortal(const char* method, const QVariant& what, const std::string& name);

    ProcessLauncher& launcher_;
    const Sandbox sandbox_;
    const QDBusConnection bus_;
};

}  // namespace vantle
