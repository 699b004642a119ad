#include <QByteArray>
#include <utility>

#include "platform/qt/ActivationToken.h"
#include "platform/qt/X11.h"

namespace vantle {
namespace {

/// Others hand it over, on the bus.
constexpr qsizetype longestToken = 1024;

QString& keptToken() {
    static QString token;
    return token;
}

/// A window manager takes it for the time of the user's click.
void tellWindowManager(const QWindow& window, const QByteArray& token) {
    xcb_change_property(x11::connection(), XCB_PROP_MODE_REPLACE, x11::number(window),
                        x11::atom("_NET_STARTUP_ID"), x11::atom("UTF8_STRING"), 8,
                        static_cast<uint32_t>(token.size()), token.constData());
    xcb_flush(x11::connection());
}

}  // namespace

void keepActivationToken(const QString& token) {
    if (token.size() <= longestToken) keptToken() = token;
}

void bringToFront(QWindow& window) {
    constexpr auto variable = "XDG_ACTIVATION_TOKEN";
    const QByteArray token = std::exchange(keptToken(), {}).toUtf8();
    window.raise();
    // On Wayland the toolkit reads it there and nowhere else.
    if (!token.isEmpty()) qputenv(variable, token);
    window.requestActivate();
    if (token.isEmpty()) return;
    qunsetenv(variable);
    if (x11::connection()) tellWindowManager(window, token);
}

}  // namespace vantle
