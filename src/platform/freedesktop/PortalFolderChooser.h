#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <memory>

#include "platform/FolderChooser.h"

namespace vantle {

/// Asks the desktop portal (org.freedesktop.portal.FileChooser), which shows the desktop's own
/// dialog. If there is no portal or it cannot start in a given folder (before version 4), uses
/// `next` instead.
class PortalFolderChooser final : public QObject, public FolderChooser {
    Q_OBJECT

public:
    explicit PortalFolderChooser(std::unique_ptr<FolderChooser> next,
                                 const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~PortalFolderChooser() override;

    void choose(const FolderRequest& request, Chosen chosen) override;

private slots:
    void responded(uint response, const QVariantMap& results);

private:
    void watchPortal();
    void open(const FolderRequest& request);
    void end(const std::optional<Url>& folder);
    void closeRequest();

    std::unique_ptr<FolderChooser> next_;
    bool watchesPortal_ = false;
    QDBusConnection bus_;
    Chosen chosen_;   ///< Set while a dialog is open.
    QString handle_;  ///< The open dialog's path on the bus; empty if none is open.
    unsigned count_ = 0;
};

}  // namespace vantle
