#include "platform/x11/DropAnswer.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QTimer>
#include <optional>
#include <utility>

#include "platform/x11/Connection.h"
#include "support/Debug.h"

namespace vantle::x11 {
namespace {

constexpr auto timeout = std::chrono::seconds(20);
// Since this version of the protocol the answer says whether the contents were taken; in older
// versions there is an answer only if they were.
constexpr std::uint32_t versionWithAnswer = 5;

std::uint32_t protocolVersion(xcb_connection_t* x, xcb_window_t target) {
    const auto reply = owned(xcb_get_property_reply(
        x, xcb_get_property(x, 0, target, atom("XdndAware"), XCB_GET_PROPERTY_TYPE_ANY, 0, 1),
        nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) < 4) return 0;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

}  // namespace

class DropAnswer::Watch final : public QObject, public QAbstractNativeEventFilter {
public:
    Watch() {
        QCoreApplication::instance()->installNativeEventFilter(this);
        timeout_.setSingleShot(true);
        timeout_.setInterval(timeout);
        connect(&timeout_, &QTimer::timeout, this, [this] { answer(false); });
    }

    void wait(std::function<void(bool)> done) {
        done_ = std::move(done);
        if (!answer_ && !watchTarget()) answer_ = false;
        if (answer_)
            answer(*answer_);
        else
            timeout_.start();
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const int type = event->response_type & 0x7f;
        if (type == XCB_CLIENT_MESSAGE)
            handleMessage(*reinterpret_cast<const xcb_client_message_event_t*>(event));
        if (type == XCB_DESTROY_NOTIFY && done_ &&
            reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window == target_)
            answer(false);
        return false;
    }

private:
    void handleMessage(const xcb_client_message_event_t& message) {
        const auto* data = message.data.data32;
        if (message.type == atom("XdndStatus")) handleStatus(data[0], (data[1] & 1) != 0);
        if (message.type != atom("XdndFinished") || data[0] != target_) return;
        answer(protocolVersion(connection(), target_) < versionWithAnswer || (data[1] & 1) != 0);
    }

    void handleStatus(xcb_window_t target, bool isPromised) {
        // A new drag has begun: the previous answer was about an earlier one.
        answer_.reset();
        if (target == target_ && isPromised == isPromised_) return;
        target_ = target;
        isPromised_ = isPromised;
        Debug::log([isPromised] {
            return std::string("drop target promised=") + (isPromised ? "true" : "false");
        });
    }

    /// Watches for the end of the target's window. Returns false if the window has already gone.
    bool watchTarget() {
        xcb_connection_t* x = connection();
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        const auto error = owned(xcb_request_check(
            x, xcb_change_window_attributes_checked(x, target_, XCB_CW_EVENT_MASK, &mask)));
        return !error;
    }

    /// Reports the answer in a later turn, because `done` may destroy this object.
    void answer(bool wasTaken) {
        answer_ = wasTaken;
        timeout_.stop();
        if (done_)
            QMetaObject::invokeMethod(
                this, [done = std::exchange(done_, nullptr), wasTaken] { done(wasTaken); },
                Qt::QueuedConnection);
    }

    xcb_window_t target_ = XCB_NONE;  ///< The program that last sent a status.
    bool isPromised_ = false;
    std::optional<bool> answer_;
    std::function<void(bool)> done_;
    QTimer timeout_;
};

DropAnswer::DropAnswer() : watch_(std::make_unique<Watch>()) {}

DropAnswer::~DropAnswer() = default;

void DropAnswer::wait(std::function<void(bool wasTaken)> done) {
    watch_->wait(std::move(done));
}

}  // namespace vantle::x11
