#pragma once

#include <QObject>

namespace vantle::wayland {

/// Reports when the user goes to another workspace. Works only with the compositor that needs it:
/// the one whose popups stay on their workspace (Globals::Quirks). Main thread only.
class WorkspaceEvents final : public QObject {
    Q_OBJECT

public:
    WorkspaceEvents();

signals:
    void changed();
};

}  // namespace vantle::wayland
