#include "platform/x11/XEmbedIcon.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

constexpr uint16_t firstSize = 22;  // pixels, until the tray resizes the window
constexpr std::string_view name = "Vantle";

const xcb_screen_t& screen() {
    return *xcb_setup_roots_iterator(xcb_get_setup(connection())).data;
}

/// Returns the window of the current tray, or none.
xcb_window_t currentTray() {
    const auto owner = owned(xcb_get_selection_owner_reply(
        connection(), xcb_get_selection_owner(connection(), atom("_NET_SYSTEM_TRAY_S0")), nullptr));
    return owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
}

struct Visual {
    xcb_visualid_t id;
    uint8_t depth;
};

/// Returns the visual with which icons of that tray must be drawn.
Visual visualOf(xcb_window_t tray) {
    const auto property = owned(xcb_get_property_reply(
        connection(),
        xcb_get_property(connection(), false, tray, atom("_NET_SYSTEM_TRAY_VISUAL"),
                         XCB_ATOM_VISUALID, 0, 1),
        nullptr));
    const Visual plain{screen().root_visual, screen().root_depth};
    if (!property || xcb_get_property_value_length(property.get()) != 4) return plain;
    const auto wanted = *static_cast<xcb_visualid_t*>(xcb_get_property_value(property.get()));
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen()); depths.rem;
         xcb_depth_next(&depths))
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem;
             xcb_visualtype_next(&visuals))
            if (visuals.data->visual_id == wanted) return {wanted, depths.data->depth};
    return plain;
}

/// Requests the events about the window itself, in addition to those that Qt has requested.
void listen(xcb_window_t window) {
    const auto attributes = owned(xcb_get_window_attributes_reply(
        connection(), xcb_get_window_attributes(connection(), window), nullptr));
    if (!attributes) return;
    const uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection(), window, XCB_CW_EVENT_MASK, &events);
}

/// Sets the least size that the icon needs; trays with more space make it larger.
void setMinimumSize(xcb_window_t window, uint16_t pixels) {
    constexpr uint32_t hasMinimum = 1U << 4;
    // The flags, four obsolete fields, then the smallest width and height.
    std::array<uint32_t, 18> hints{hasMinimum, 0, 0, 0, 0, pixels, pixels};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
}

void setText(xcb_window_t window, const char* property, xcb_atom_t type, std::string_view text) {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(property), type, 8,
                        static_cast<uint32_t>(text.size()), text.data());
}

/// Blends one premultiplied pixel over another.
QRgb over(QRgb above, QRgb below) {
    const int rest = 255 - qAlpha(above);
    const auto mixed = [rest](int a, int b) { return a + b * rest / 255; };
    return qRgba(mixed(qRed(above), qRed(below)), mixed(qGreen(above), qGreen(below)),
                 mixed(qBlue(above), qBlue(below)), mixed(qAlpha(above), qAlpha(below)));
}

/// Draws without a QPainter, which would permanently increase the memory in use.
void drawInTheMiddle(const QImage& icon, QImage& picture) {
    const QPoint corner((picture.width() - icon.width()) / 2,
                        (picture.height() - icon.height()) / 2);
    const QRect visible = icon.rect() & picture.rect().translated(-corner);
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(icon.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y + corner.y())) + corner.x();
        for (int x = visible.left(); x <= visible.right(); ++x) to[x] = over(from[x], to[x]);
    }
}

/// Asks the tray to take the window.
void requestDock(xcb_window_t tray, xcb_window_t window) {
    constexpr uint32_t dock = 0;
    sendMessage(tray, tray, "_NET_SYSTEM_TRAY_OPCODE", {XCB_CURRENT_TIME, dock, window});
}

}  // namespace

XEmbedIcon::XEmbedIcon(Draw draw) : draw_(std::move(draw)) {}

XEmbedIcon::~XEmbedIcon() {
    if (isWatchingForTrays_) QCoreApplication::instance()->removeNativeEventFilter(this);
    hide();
}

void XEmbedIcon::show() {
    if (isWanted_) return;
    isWanted_ = true;
    watchForTrays();
    dock();
}

void XEmbedIcon::hide() {
    isWanted_ = false;
    destroyWindow();
}

void XEmbedIcon::destroyWindow() {
    if (!window_) return;
    xcb_destroy_window(connection(), window_);
    xcb_flush(connection());
    resetWindow();
}

void XEmbedIcon::redock() {
    destroyWindow();
    dock();
}

void XEmbedIcon::watchForTrays() {
    if (std::exchange(isWatchingForTrays_, true)) return;
    QCoreApplication::instance()->installNativeEventFilter(this);
    // A new tray announces itself at the root window.
    listen(rootWindow());
}

void XEmbedIcon::dock() {
    if (!isWanted_ || window_) return;
    tray_ = currentTray();
    if (!tray_) return;
    listen(tray_);
    makeWindow(tray_);
    requestDock(tray_, window_);
}

void XEmbedIcon::makeWindow(xcb_window_t tray) {
    const Visual visual = visualOf(tray);
    depth_ = visual.depth;
    hasAlpha_ = depth_ == 32;
    const xcb_colormap_t colormap = xcb_generate_id(connection());
    xcb_create_colormap(connection(), XCB_COLORMAP_ALLOC_NONE, colormap, rootWindow(), visual.id);
    window_ = xcb_generate_id(connection());
    // Without transparency the window shows the tray's background.
    const std::array<uint32_t, 4> values{
        hasAlpha_ ? 0U : uint32_t{XCB_BACK_PIXMAP_PARENT_RELATIVE}, 0,
        XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_BUTTON_PRESS,
        colormap};
    const uint32_t background = hasAlpha_ ? XCB_CW_BACK_PIXEL : XCB_CW_BACK_PIXMAP;
    xcb_create_window(connection(), depth_, window_, rootWindow(), 0, 0, firstSize, firstSize, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                      background | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values.data());
    xcb_free_colormap(connection(), colormap);
    size_ = QSize(firstSize, firstSize);
    setMinimumSize(window_, firstSize);
    setText(window_, "WM_NAME", XCB_ATOM_STRING, name);
    setText(window_, "_NET_WM_NAME", atom("UTF8_STRING"), name);
    setText(window_, "WM_CLASS", XCB_ATOM_STRING, std::string_view("vantle\0Vantle\0", 14));
    constexpr std::array<uint32_t, 2> information{0, 1};  // version 0; to be mapped
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window_, atom("_XEMBED_INFO"),
                        atom("_XEMBED_INFO"), 32, information.size(), information.data());
}

void XEmbedIcon::resetWindow() {
    window_ = 0;
    tray_ = 0;
    isEmbedded_ = false;
}

bool XEmbedIcon::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (type != "xcb_generic_event_t") return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const uint8_t kind = event->response_type & 0x7f;
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto* said = reinterpret_cast<const xcb_client_message_event_t*>(event);
        const bool isNewTray =
            said->type == atom("MANAGER") && said->data.data32[1] == atom("_NET_SYSTEM_TRAY_S0");
        if (isNewTray) redock();
    } else if (kind == XCB_DESTROY_NOTIFY) {
        const auto gone = reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window;
        if (gone == window_ && window_) resetWindow();
        if (gone == tray_ && tray_) redock();
    } else {
        handleWindowEvent(kind, event);
    }
    return false;
}

void XEmbedIcon::handleWindowEvent(uint8_t type, const void* event) {
    if (type == XCB_REPARENT_NOTIFY) {
        const auto& moved = *static_cast<const xcb_reparent_notify_event_t*>(event);
        if (moved.window == window_) isEmbedded_ = moved.parent != rootWindow();
    } else if (type == XCB_EXPOSE) {
        if (static_cast<const xcb_expose_event_t*>(event)->window == window_) paint();
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const auto& changed = *static_cast<const xcb_configure_notify_event_t*>(event);
        if (changed.window != window_ || size_ == QSize(changed.width, changed.height)) return;
        size_ = QSize(changed.width, changed.height);
        paint();
    } else if (type == XCB_BUTTON_PRESS) {
        const auto& pressed = *static_cast<const xcb_button_press_event_t*>(event);
        const bool isWheel = pressed.detail > 3;
        if (pressed.event == window_ && !isWheel) click();
    }
}

void XEmbedIcon::click() {
    // The press has grabbed the pointer for us until the release, and the release would also end
    // the grab of a menu that has opened meanwhile.
    xcb_ungrab_pointer(connection(), XCB_CURRENT_TIME);
    if (onClick) onClick(frame());
}

void XEmbedIcon::paint() {
    if (!isEmbedded_ || size_.isEmpty()) return;
    QImage picture = background();
    drawInTheMiddle(draw_(std::min(size_.width(), size_.height())), picture);
    const xcb_gcontext_t context = xcb_generate_id(connection());
    xcb_create_gc(connection(), context, window_, 0, nullptr);
    xcb_put_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, window_, context,
                  static_cast<uint16_t>(size_.width()), static_cast<uint16_t>(size_.height()), 0, 0,
                  0, depth_, static_cast<uint32_t>(picture.sizeInBytes()), picture.constBits());
    xcb_free_gc(connection(), context);
    xcb_flush(connection());
}

QImage XEmbedIcon::background() const {
    QImage picture(size_, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    if (hasAlpha_) return picture;
    // The window is opaque, so the background that the tray has drawn must be read.
    const auto width = static_cast<uint16_t>(size_.width());
    const auto height = static_cast<uint16_t>(size_.height());
    xcb_clear_area(connection(), false, window_, 0, 0, width, height);
    const auto drawn = owned(xcb_get_image_reply(
        connection(),
        xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0, width, height, ~0U),
        nullptr));
    if (!drawn || xcb_get_image_data_length(drawn.get()) != picture.sizeInBytes()) return picture;
    const auto* pixels = reinterpret_cast<const QRgb*>(xcb_get_image_data(drawn.get()));
    auto* opaque = reinterpret_cast<QRgb*>(picture.bits());
    std::transform(pixels, pixels + std::ptrdiff_t{width} * height, opaque,
                   [](QRgb pixel) { return pixel | 0xff000000U; });
    return picture;
}

QRect XEmbedIcon::frame() const {
    const auto place = owned(xcb_translate_coordinates_reply(
        connection(), xcb_translate_coordinates(connection(), window_, rootWindow(), 0, 0),
        nullptr));
    return place ? QRect(QPoint(place->dst_x, place->dst_y), size_) : QRect();
}

}  // namespace vantle::x11
