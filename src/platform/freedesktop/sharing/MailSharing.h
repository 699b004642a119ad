#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/ProcessLauncher.h"
#include "platform/SharingSource.h"
#include "support/Environment.h"

namespace vantle {

/// Offers a new message with the files attached in the user's mail program, through the desktop's
/// portal or, if there is none, xdg-email. Offers nothing if no program handles mail addresses.
class MailSharing final : public QObject, public SharingSource {
    Q_OBJECT

public:
    /// `launcher` must outlive this object.
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
