#include "platform/x11/DragSelection.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QStringList>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

xcb_atom_t atomOf(const QString& type) {
    return atom(type.toUtf8().constData());
}

/// Writes the data into the property that the request names. Returns false if the data does not fit
/// into one request.
bool write(const xcb_selection_request_event_t& request, xcb_atom_t type, uint8_t bits,
           const void* data, std::size_t count) {
    constexpr std::size_t header = 64;  // upper limit for the request's own fields
    xcb_connection_t* x = connection();
    const std::size_t bytes = count * bits / 8;
    if (bytes + header > std::size_t{4} * xcb_get_maximum_request_length(x)) return false;
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, request.requestor, request.property, type, bits,
                        static_cast<uint32_t>(count), data);
    return true;
}

void sendNotify(const xcb_selection_request_event_t& request, bool isWritten) {
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.time = request.time;
    answer.property = isWritten ? request.property : xcb_atom_t{XCB_ATOM_NONE};
    // All events have the same size on the wire.
    std::array<char, 32> event{};
    std::memcpy(event.data(), &answer, sizeof answer);
    xcb_send_event(connection(), false, request.requestor, XCB_EVENT_MASK_NO_EVENT, event.data());
    xcb_flush(connection());
}

}  // namespace

class DragSelection::Owner final : public QAbstractNativeEventFilter {
public:
    explicit Owner(std::unique_ptr<QMimeData> contents) : contents_(std::move(contents)) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_SELECTION_REQUEST) return false;
        const auto& request = *reinterpret_cast<const xcb_selection_request_event_t*>(event);
        if (request.selection != atom("XdndSelection")) return false;
        sendNotify(request, answer(request));
        return true;
    }

private:
    bool answer(const xcb_selection_request_event_t& request) const {
        if (request.target == atom("TARGETS")) return writeTargets(request);
        for (const QString& type : contents_->formats())
            if (request.target == atomOf(type)) {
                const QByteArray data = contents_->data(type);
                return write(request, request.target, 8, data.constData(),
                             static_cast<std::size_t>(data.size()));
            }
        return false;
    }

    bool writeTargets(const xcb_selection_request_event_t& request) const {
        std::vector<xcb_atom_t> types{atom("TARGETS")};
        for (const QString& type : contents_->formats()) types.push_back(atomOf(type));
        return write(request, XCB_ATOM_ATOM, 32, types.data(), types.size());
    }

    const std::unique_ptr<QMimeData> contents_;
};

DragSelection::DragSelection(std::unique_ptr<QMimeData> contents)
    : owner_(std::make_unique<Owner>(std::move(contents))) {}

DragSelection::~DragSelection() = default;

}  // namespace vantle::x11
