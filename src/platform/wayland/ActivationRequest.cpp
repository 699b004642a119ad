#include "platform/wayland/ActivationRequest.h"

#include <xdg-activation-client-protocol.h>

#include <QGuiApplication>
#include <QTimer>
#include <utility>

#include "platform/wayland/Connection.h"

namespace vantle::wayland {
namespace {

constexpr std::chrono::seconds patience{1};

/// One request. Deletes itself when it is answered; belongs to its owner until then.
class ActivationRequest final : public QObject {
public:
    ActivationRequest(QObject& owner, DisplayServer::TokenReceiver receiver)
        : QObject(&owner),
          receiver_(std::move(receiver)),
          token_(xdg_activation_v1_get_activation_token(globals().activation)) {
        static constexpr xdg_activation_token_v1_listener listener{done};
        xdg_activation_token_v1_add_listener(token_, &listener, this);
        if (wl_seat* user = seat())
            xdg_activation_token_v1_set_serial(token_, lastInputSerial(), user);
        QWindow* window = QGuiApplication::focusWindow();
        if (wl_surface* focused = window ? surface(*window) : nullptr)
            xdg_activation_token_v1_set_surface(token_, focused);
        xdg_activation_token_v1_commit(token_);
        wl_display_flush(display());
        QTimer::singleShot(patience, this, [this] { end({}); });
    }
    ~ActivationRequest() override { xdg_activation_token_v1_destroy(token_); }

private:
    static void done(void* data, xdg_activation_token_v1*, const char* token) {
        static_cast<ActivationRequest*>(data)->end(QString::fromUtf8(token));
    }

    void end(const QString& token) {
        const auto receiver = std::exchange(receiver_, nullptr);
        deleteLater();
        if (receiver) receiver(token);
    }

    DisplayServer::TokenReceiver receiver_;
    xdg_activation_token_v1* const token_;
};

}  // namespace

void requestActivationToken(QObject& owner, DisplayServer::TokenReceiver receiver) {
    if (globals().activation)
        new ActivationRequest(owner, std::move(receiver));
    else
        receiver({});
}

}  // namespace vantle::wayland
