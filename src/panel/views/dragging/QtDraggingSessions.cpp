#include "panel/views/dragging/QtDraggingSessions.h"

#include <QDrag>
#include <QPixmap>
#include <QPointer>
#include <QWindow>
#include <optional>
#include <utility>

#include "panel/views/Appearance.h"
#include "panel/views/dragging/DragPile.h"
#include "panel/views/dragging/FlyBack.h"
#include "platform/qt/DisplayServer.h"
#include "platform/qt/FileMimeData.h"

namespace vantle {
namespace {

DragPile::Edges supportedEdges() {
    return DisplayServer::current().isComposited() ? DragPile::Edges::soft
                                                   : DragPile::Edges::opaque;
}

/// One drag, from its beginning to the answer of the program on which it was dropped.
class Session final : public QObject {
public:
    Session(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip,
            std::shared_ptr<const FileTransfer> transfer, DraggingSessions::Moved moved,
            DraggingSessions::Ended ended)
        : window_(&window),
          pile_(dragPile(items, window.devicePixelRatio(), supportedEdges())),
          start_(window.position() + pile_.frame.topLeft().toPoint()),
          hotSpot_((grip - pile_.frame.topLeft()).toPoint()),
          transfer_(std::move(transfer)),
          moved_(std::move(moved)),
          ended_(std::move(ended)) {
        for (auto& item : items) urls_.push_back(std::move(item.url));
    }

    /// Returns when the button was released or the drag was cancelled. Handles events until then.
    void run() {
        if (!window_) {
            finish(DragOperation::none);
            return;
        }
        auto carried = contents();
        auto* drag = new QDrag(window_);
        drag->setMimeData(carried.release());
        drag->setPixmap(QPixmap::fromImage(pile_.picture));
        drag->setHotSpot(hotSpot_);
        support_ =
            DisplayServer::current().supportDrag(*drag, {urls_, [this] { return contents(); }});
        // Without the grab, Escape would go to the window that has the keyboard.
        window_->setKeyboardGrabEnabled(true);
        const Qt::DropAction action = drag->exec(Qt::CopyAction);
        if (window_) window_->setKeyboardGrabEnabled(false);
        support_->ended(window_);
        if (action == Qt::IgnoreAction)
            finish(DragOperation::none);
        else
            support_->waitForAnswer(dropState_, [this](bool wasTaken) {
                finish(wasTaken ? DragOperation::copy : DragOperation::none);
            });
    }

private:
    /// Makes the contents of the drag and keeps their state.
    std::unique_ptr<FileMimeData> contents() {
        auto made =
            std::make_unique<FileMimeData>(urls_, nullptr, FileMimeData::Use::drag, transfer_);
        dropState_ = made->dropState();
        return made;
    }

    void finish(DragOperation operation) {
        if (operation == DragOperation::none && !Appearance().reducesMotion())
            FlyBack::start(pile_.picture, hotSpot_, returnPosition());
        end(operation);
    }

    /// Returns where the pile belongs now: the tiles and the card may have moved since the start.
    QPoint returnPosition() const {
        if (!window_) return start_;
        return window_->position() + (pile_.frame.topLeft() + moved_()).toPoint();
    }

    void end(DragOperation operation) {
        ended_(operation);
        deleteLater();
    }

    const QPointer<QWindow> window_;
    std::vector<Url> urls_;
    const DragPile pile_;
    const QPoint start_;
    const QPoint hotSpot_;
    const std::shared_ptr<const FileTransfer> transfer_;
    const DraggingSessions::Moved moved_;
    const DraggingSessions::Ended ended_;
    std::unique_ptr<DragSupport> support_;
    DropState dropState_;
};

}  // namespace

void QtDraggingSessions::begin(QWindow& window, std::vector<DraggingItem> items,
                               const QPointF& grip, Moved moved, Ended ended) {
    auto* session =
        new Session(window, std::move(items), grip, transfer_, std::move(moved), std::move(ended));
    // A drag runs an event loop of its own, which must not be inside the mouse event.
    QMetaObject::invokeMethod(
        session, [session] { session->run(); }, Qt::QueuedConnection);
}

}  // namespace vantle
