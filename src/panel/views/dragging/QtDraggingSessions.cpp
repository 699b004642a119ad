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
#include "platform/qt/DragSelection.h"
#include "platform/qt/DropAnswer.h"
#include "platform/qt/DropGround.h"
#include "platform/qt/FileMimeData.h"
#include "platform/qt/FileUse.h"
#include "platform/qt/InputRegion.h"
#include "platform/wayland/Connection.h"
#include "platform/wayland/DragEnd.h"
#include "platform/wayland/PointerRelease.h"
#include "support/Debug.h"

namespace vantle {
namespace {

DragPile::Edges possibleEdges() {
    return compositorIsRunning() ? DragPile::Edges::soft : DragPile::Edges::opaque;
}

/// For who has dropped files to choose in a menu what becomes of them.
constexpr auto patience = std::chrono::seconds(20);

/// On X11 the target's own answers are heard.
void logPromise(Qt::DropAction action) {
    Debug::log([action] {
        return std::string("drop target promised=") +
               (action == Qt::IgnoreAction ? "false" : "true");
    });
}

/// One drag, from its beginning to the answer of whoever it was dropped on.
class Session final : public QObject {
public:
    Session(QWindow& window, std::vector<DraggingItem> items, const QPointF& grip,
            DraggingSessions::Moved moved, DraggingSessions::Ended ended)
        : window_(&window),
          pile_(dragPile(items, window.devicePixelRatio(), possibleEdges())),
          start_(window.position() + pile_.frame.topLeft().toPoint()),
          hotSpot_((grip - pile_.frame.topLeft()).toPoint()),
          moved_(std::move(moved)),
          ended_(std::move(ended)) {
        for (auto& item : items) urls_.push_back(std::move(item.url));
    }

    /// Returns when the button was released or the drag was given up; events go on meanwhile.
    void run() {
        if (!window_) {
            finish(DragOperation::none);
            return;
        }
        auto carried = contents();
        if (DragSelection::isNeeded()) selection_.emplace(contents());
        use_.emplace(urls_);
        auto* drag = new QDrag(window_);
        drag->setMimeData(carried.release());
        drag->setPixmap(QPixmap::fromImage(pile_.picture));
        drag->setHotSpot(hotSpot_);
        if (wayland::display()) connect(drag, &QDrag::actionChanged, drag, logPromise);
        // Without the keyboard Escape would go to the window that has it.
        window_->setKeyboardGrabEnabled(true);
        const Qt::DropAction action = exec(*drag);
        if (window_) {
            window_->setKeyboardGrabEnabled(false);
            wayland::releaseLeftButton(*window_);
        }
        if (action == Qt::IgnoreAction)
            finish(DragOperation::none);
        else
            answer_.wait(wasRead_, [this](bool wasTaken) { answered(wasTaken); });
    }

private:
    static Qt::DropAction exec(QDrag& drag) {
        const DropGround ground;
        wayland::DragEnd untoldEnd;
        QObject::connect(&drag, &QDrag::actionChanged, &untoldEnd, &wayland::DragEnd::setPromise);
        return drag.exec(Qt::CopyAction);
    }

    /// The marks are those of the last ones.
    std::unique_ptr<FileMimeData> contents() {
        auto made = std::make_unique<FileMimeData>(urls_, nullptr, FileMimeData::Use::drag);
        wasRead_ = made->readMark();
        decidesLater_ = made->decidesLaterMark();
        return made;
    }

    void answered(bool wasTaken) {
        if (!wasTaken || !*decidesLater_)
            finish(wasTaken ? DragOperation::copy : DragOperation::none);
        else
            use_->wait(patience, [this](bool wasUsed) {
                end(wasUsed ? DragOperation::copy : DragOperation::none);
            });
    }

    void finish(DragOperation operation) {
        if (operation == DragOperation::none && !Appearance().reducesMotion())
            FlyBack::start(pile_.picture, hotSpot_, home());
        end(operation);
    }

    /// Others may have come and gone on the card meanwhile, and the card may stand elsewhere.
    QPoint home() const {
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
    const DraggingSessions::Moved moved_;
    const DraggingSessions::Ended ended_;
    DropAnswer answer_;
    std::optional<DragSelection> selection_;
    std::shared_ptr<const bool> wasRead_;
    std::shared_ptr<const bool> decidesLater_;
    std::optional<FileUse> use_;
};

}  // namespace

void QtDraggingSessions::begin(QWindow& window, std::vector<DraggingItem> items,
                               const QPointF& grip, Moved moved, Ended ended) {
    auto* session = new Session(window, std::move(items), grip, std::move(moved), std::move(ended));
    // Not inside the mouse event: a drag is an event loop of its own.
    QMetaObject::invokeMethod(
        session, [session] { session->run(); }, Qt::QueuedConnection);
}

}  // namespace vantle
