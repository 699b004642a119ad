#pragma once

#include <QObject>

namespace vantle::wayland {

/// Tells when the session of a compositor whose popups stay behind (Globals::Quirks) has gone to
/// another workspace. Main thread only.
class WorkspaceEvents final : public QObject {
    Q_OBJECT

public:
    WorkspaceEvents();

signals:
    void changed();
};

}  // namespace vantle::wayland
