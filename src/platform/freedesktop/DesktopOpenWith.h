#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/OpenWith.h"
#include "platform/freedesktop/ApplicationsProgram.h"
#include "platform/freedesktop/PortalRequest.h"

namespace vantle {

/// The programs that the desktop's files of associations name, found and started by the separate
/// program vantle-applications. The chooser is that of the desktop's portal
/// (org.freedesktop.portal.OpenURI); it is offered for one file, and only if the portal is running.
class DesktopOpenWith final : public QObject, public OpenWith {
public:
    struct Options {
        QString program;                    ///< The path of vantle-applications.
        std::vector<std::string> withheld;  ///< Variables that other programs must not get.
        std::string ownIdentifier;          ///< The name of this program's own desktop file.
        std::function<double()> pixelsPerPoint;
        /// How long a search and a start may take.
        std::chrono::milliseconds searchLimit{3000};
        std::chrono::milliseconds startLimit{30'000};
    };

    explicit DesktopOpenWith(Options options,
                             const QDBusConnection& bus = QDBusConnection::sessionBus());

    void find(const std::vector<Url>& files, Found found) override;
    void open(const std::vector<Url>& files, const std::string& identifier,
              Completion completion) override;
    void openWithOther(const Url& file, Completion completion) override;

private:
    struct Search;

    void findPrograms(const std::vector<Url>& files, const std::shared_ptr<Search>& search);
    void findChooser(const std::shared_ptr<Search>& search);
    OpeningPrograms programsFrom(const QByteArray& output) const;
    void start(const std::vector<Url>& files, const std::string& identifier, const QString& token,
               const Completion& completion);
    void showChooser(const Url& file, const QString& token, Completion completion);
    void answered(const Url& file, const Result<QVariantMap>& result, const Completion& completion);
    /// Calls the completion in the next turn of the run loop.
    void complete(Completion completion, const Outcome& outcome);

    const Options options_;
    const QDBusConnection bus_;
    ApplicationsProgram applications_;
    std::unique_ptr<PortalRequest> chooser_;  ///< Set while the portal's dialog is open.
    bool isChoosing_ = false;                 ///< True from the request until the answer.
};

}  // namespace vantle
