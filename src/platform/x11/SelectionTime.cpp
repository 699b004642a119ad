#include "platform/x11/SelectionTime.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

#include "platform/x11/Connection.h"

namespace vantle::x11 {

/// An invisible window. The server reports a change of its property with the current time.
class SelectionTime::Clock final : public QObject, public QAbstractNativeEventFilter {
public:
    Clock() {
        window_.setFlags(Qt::ToolTip);
        window_.create();
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    void ask(std::function<void()> work) {
        work_ = std::move(work);
        xcb_connection_t* x = connection();
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, windowId(window_), timeAtom(),
                            XCB_ATOM_INTEGER, 32, 0, nullptr);
        xcb_flush(x);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) return false;
        const auto* notify = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (notify->window != windowId(window_) || notify->atom != timeAtom()) return false;
        // Qt reads the time from the event after this filter returns.
        QMetaObject::invokeMethod(
            this, [this] { finish(); }, Qt::QueuedConnection);
        return false;
    }

private:
    static xcb_atom_t timeAtom() { return atom("VANTLE_TIME"); }

    void finish() {
        if (const auto work = std::exchange(work_, nullptr)) work();
    }

    QWindow window_;
    std::function<void()> work_;
};

SelectionTime::SelectionTime() = default;
SelectionTime::~SelectionTime() = default;

void SelectionTime::refreshThen(std::function<void()> work) {
    if (!clock_) clock_ = std::make_unique<Clock>();
    clock_->ask(std::move(work));
}

}  // namespace vantle::x11
