#pragma once

#include <QObject>

namespace vantle::wayland {

/// Ends the toolkit's drag when the pointer enters one of its windows while no target has promised
/// to take what is dragged. A compositor keeps the pointer from all windows during a drag, so the
/// drag is over by then; but some compositors do not report the end of a drop on a program that
/// does not answer. Main thread only.
class DragEnd final : public QObject {
public:
    DragEnd();

    /// Sets what the target under the pointer promises now.
    void setPromise(Qt::DropAction action) { promise_ = action; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    Qt::DropAction promise_ = Qt::IgnoreAction;
};

}  // namespace vantle::wayland
