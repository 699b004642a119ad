#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/FileOpener.h"
#include "platform/ProcessLauncher.h"
#include "support/Result.h"

namespace vantle {

/// Opens files through the desktop's opener (xdg-open or an alternative), and shows them in the
/// file manager that answers as org.freedesktop.FileManager1; if none does, opens their folder. In
/// a sandbox, uses the desktop's portal for both.
class DesktopFileOpener final : public QObject, public FileOpener {
    Q_OBJECT

public:
    enum class Sandbox { none, flatpak };

    /// `launcher` must outlive this object.
    explicit DesktopFileOpener(ProcessLauncher& launcher, Sandbox sandbox = Sandbox::none,
                               const QDBusConnection& bus = QDBusConnection::sessionBus());

    /// Returns the kind of sandbox that this process runs in.
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
