#include "platform/x11/ServerTime.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QMetaObject>
#include <utility>
#include <vector>

#include "platform/x11/Connection.h"

namespace vantle::x11 {

/// An invisible window. The server reports a change of its property with the current time.
class ServerTime::Clock final : public QObject, public QAbstractNativeEventFilter {
public:
    Clock() {
        window_.setFlags(Qt::ToolTip);
        window_.create();
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    void ask(Work work) {
        waiting_.push_back(std::move(work));
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
            this, [this, time = notify->time] { finish(time); }, Qt::QueuedConnection);
        return false;
    }

private:
    static xcb_atom_t timeAtom() { return atom("VANTLE_TIME"); }

    void finish(std::uint32_t time) {
        for (const auto& work : std::exchange(waiting_, {})) work(time);
    }

    QWindow window_;
    std::vector<Work> waiting_;
};

ServerTime::ServerTime() = default;
ServerTime::~ServerTime() = default;

void ServerTime::refreshThen(Work work) {
    if (!clock_) clock_ = std::make_unique<Clock>();
    clock_->ask(std::move(work));
}

}  // namespace vantle::x11
