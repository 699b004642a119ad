#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <memory>
#include <optional>

#include "platform/FolderChooser.h"
#include "platform/freedesktop/PortalRequest.h"
#include "support/Result.h"

namespace vantle {

/// Asks the desktop portal (org.freedesktop.portal.FileChooser), which shows the desktop's own
/// dialog. If there is no portal or it cannot start in a given folder (before version 4), uses
/// `next` instead.
class PortalFolderChooser final : public QObject, public FolderChooser {
public:
    explicit PortalFolderChooser(std::unique_ptr<FolderChooser> next,
                                 const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~PortalFolderChooser() override;

    void choose(const FolderRequest& request, Chosen chosen) override;

private:
    void open(const FolderRequest& request);
    void responded(const Result<QVariantMap>& result);
    void end(const std::optional<Url>& folder);

    std::unique_ptr<FolderChooser> next_;
    QDBusConnection bus_;
    Chosen chosen_;                           ///< Set while a dialog is open.
    std::unique_ptr<PortalRequest> request_;  ///< Set while the portal's dialog is open.
};

}  // namespace vantle
