#pragma once

#include <QObject>

namespace vantle {

/// Tells when KWin's Wayland session has gone to another workspace. KWin before 6 leaves popups on
/// the one where they opened, also those of layer surfaces, which are on every workspace. Main
/// thread only.
class KWinWorkspaces final : public QObject {
    Q_OBJECT

public:
    /// Whether the compositor is one that leaves popups behind.
    static bool leavePopups();

    KWinWorkspaces();

signals:
    void changed();
};

}  // namespace vantle
