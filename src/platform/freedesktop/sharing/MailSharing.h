#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/ProcessLauncher.h"
#include "platform/SharingSource.h"
#include "support/Environment.h"

namespace vantle {

/// A new message with the files attached, in the user's mail program: by the desktop's portal, else
/// by xdg-email. Not offered where no program takes mail addresses.
class MailSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    /// `launcher` outlives it.
    MailSharing(ProcessLauncher& launcher, Environment environment,
                const QDBusConnection& bus = QDBusConnection::sessionBus());

    void find(Found found) override;

private:
    bool hasMailProgram() const;
    void composeByPortal(const std::vector<Url>& files);
    void composeByDesktop(const std::vector<Url>& files);

    ProcessLauncher& launcher_;
    const Environment environment_;
    const QDBusConnection bus_;
};

}  // namespace vantle
