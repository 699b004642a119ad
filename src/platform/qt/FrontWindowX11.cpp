#include <QGuiApplication>
#include <QPointer>
#include <optional>

#include "platform/qt/ActivationToken.h"
#include "platform/qt/FrontWindow.h"
#include "platform/qt/TaskbarPresence.h"
#include "platform/qt/X11.h"

namespace vantle {
namespace {

/// The window that came to the front last, by this program or by the user.
class LastInFront {
public:
    LastInFront() {
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, [this](QWindow* window) {
            if (window && isOrdinaryWindow(*window)) window_ = window;
        });
    }

    QWindow* window() const { return window_; }
    void set(QWindow& window) { window_ = &window; }

private:
    QPointer<QWindow> window_;
};

LastInFront& lastInFront() {
    static LastInFront last;
    return last;
}

/// The workspace on which the user is, where the window is on another one.
std::optional<uint32_t> workspaceToComeTo(const QWindow& window) {
    constexpr uint32_t everywhere = 0xFFFFFFFF;
    if (!x11::connection()) return std::nullopt;
    const auto users = x11::cardinals(x11::root(), "_NET_CURRENT_DESKTOP");
    const auto own = x11::cardinals(x11::number(window), "_NET_WM_DESKTOP");
    const bool isElsewhere =
        !users.empty() && !own.empty() && own.front() != everywhere && own.front() != users.front();
    return isElsewhere ? std::optional(users.front()) : std::nullopt;
}

void bringToWorkspace(const QWindow& window, uint32_t workspace) {
    constexpr uint32_t fromApplication = 1;
    x11::sendMessage(x11::root(), x11::number(window), "_NET_WM_DESKTOP",
                     {workspace, fromApplication},
                     XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

/// An alert stands above all windows, but not above the one that the user asks for afterwards.
void lowerOthers(const QWindow& front) {
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window != &front && isOrdinaryWindow(*window) &&
            window->flags().testFlag(Qt::WindowStaysOnTopHint))
            window->setFlag(Qt::WindowStaysOnTopHint, false);
}

/// A window manager takes it for the time of the user's click.
void tellWindowManager(const QWindow& window, const QByteArray& token) {
    xcb_change_property(x11::connection(), XCB_PROP_MODE_REPLACE, x11::number(window),
                        x11::atom("_NET_STARTUP_ID"), x11::atom("UTF8_STRING"), 8,
                        static_cast<uint32_t>(token.size()), token.constData());
    xcb_flush(x11::connection());
}

void activate(QWindow& window) {
    constexpr auto variable = "XDG_ACTIVATION_TOKEN";
    const QByteArray token = takeActivationToken().toUtf8();
    window.raise();
    // On Wayland the toolkit reads it there and nowhere else.
    if (!token.isEmpty()) qputenv(variable, token);
    window.requestActivate();
    if (token.isEmpty()) return;
    qunsetenv(variable);
    if (x11::connection()) tellWindowManager(window, token);
}

}  // namespace

void bringToFront(QWindow& window) {
    lastInFront().set(window);
    lowerOthers(window);
    if (const auto workspace = workspaceToComeTo(window)) bringToWorkspace(window, *workspace);
    activate(window);
}

void bringLastToFront() {
    QWindow* last = lastInFront().window();
    if (last && last->isVisible() && !workspaceToComeTo(*last)) bringToFront(*last);
}

}  // namespace vantle
