#include "platform/x11/SpaceBarGrab.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

constexpr xcb_keysym_t space = 0x20;
constexpr xcb_keysym_t numLock = 0xff7f;

/// Found anew for each grab, because the user can change the mapping at any time.
struct Keys {
    std::vector<std::uint8_t> codes;  ///< Of the keys that type a space.
    std::uint16_t numLock = 0;        ///< The modifier by that name; 0 if there is none.
};

/// Returns the codes of the keys that have that meaning without other keys.
std::vector<std::uint8_t> codesOf(xcb_keysym_t wanted, xcb_get_keyboard_mapping_reply_t& mapping,
                                  std::uint8_t first) {
    const int width = mapping.keysyms_per_keycode;
    const xcb_keysym_t* meaning = xcb_get_keyboard_mapping_keysyms(&mapping);
    const int count = width > 0 ? xcb_get_keyboard_mapping_keysyms_length(&mapping) / width : 0;
    std::vector<std::uint8_t> codes;
    for (int key = 0; key < count; ++key, meaning += width)
        if (*meaning == wanted) codes.push_back(static_cast<std::uint8_t>(first + key));
    return codes;
}

/// Returns the modifier that one of these keys is; 0 if none is.
std::uint16_t modifierOf(const std::vector<std::uint8_t>& codes,
                         xcb_get_modifier_mapping_reply_t& mapping) {
    constexpr int modifiers = 8;
    const int width = mapping.keycodes_per_modifier;
    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(&mapping);
    for (int i = 0; i < modifiers * width; ++i)
        if (keys[i] != 0 && std::ranges::find(codes, keys[i]) != codes.end())
            return static_cast<std::uint16_t>(1U << static_cast<unsigned>(i / width));
    return 0;
}

Keys currentKeys(xcb_connection_t* x) {
    const xcb_setup_t& setup = *xcb_get_setup(x);
    const auto first = setup.min_keycode;
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - first + 1);
    const auto keyboard = xcb_get_keyboard_mapping(x, first, count);
    const auto modifier = xcb_get_modifier_mapping(x);
    const auto mapping = owned(xcb_get_keyboard_mapping_reply(x, keyboard, nullptr));
    const auto modifiers = owned(xcb_get_modifier_mapping_reply(x, modifier, nullptr));
    if (!mapping || !modifiers) return {};
    return {codesOf(space, *mapping, first),
            modifierOf(codesOf(numLock, *mapping, first), *modifiers)};
}

/// Takes the key unless another program has taken it. The server's answer is of no use: without
/// the key nothing happens.
void grab(xcb_connection_t* x, std::uint8_t code, std::uint16_t modifiers) {
    const auto request = xcb_grab_key_checked(x, false, rootWindow(), modifiers, code,
                                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_discard_reply(x, request.sequence);
}

}  // namespace

SpaceBarGrab::SpaceBarGrab() {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

SpaceBarGrab::~SpaceBarGrab() {
    giveBack();
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

void SpaceBarGrab::take() {
    if (!grabbed_.empty()) return;
    xcb_connection_t* x = connection();
    const Keys keys = currentKeys(x);
    // The server distinguishes a key with a lock from one without.
    const std::array<std::uint16_t, 4> locks{
        0, XCB_MOD_MASK_LOCK, keys.numLock,
        static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | keys.numLock)};
    for (const std::uint8_t code : keys.codes)
        for (const std::uint16_t lock : locks) grab(x, code, lock);
    xcb_flush(x);
    grabbed_ = keys.codes;
}

void SpaceBarGrab::giveBack() {
    if (grabbed_.empty()) return;
    xcb_connection_t* x = connection();
    for (const std::uint8_t code : grabbed_)
        xcb_ungrab_key(x, code, rootWindow(), XCB_MOD_MASK_ANY);
    xcb_flush(x);
    grabbed_.clear();
}

bool SpaceBarGrab::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (type != "xcb_generic_event_t") return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7f) != XCB_KEY_PRESS) return false;
    const auto* pressed = reinterpret_cast<const xcb_key_press_event_t*>(event);
    const bool isTaken = std::ranges::find(grabbed_, pressed->detail) != grabbed_.end();
    if (pressed->event != rootWindow() || !isTaken) return false;
    onPress();
    return true;
}

}  // namespace vantle::x11
