#include "platform/x11/UsableArea.h"

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "platform/qt/QtGeometry.h"
#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

QRect between(int left, int top, int right, int bottom) {
    return {left, top, right - left, bottom - top};
}

int area(const QRect& rect) {
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

QRect inPoints(const QRect& pixels, const QScreen& screen) {
    const QSizeF size = QSizeF(pixels.size()) / screen.devicePixelRatio();
    return {fromPixels(pixels.topLeft(), screen), size.toSize()};
}

QRect frameOf(xcb_window_t window) {
    auto* x = connection();
    const auto geometry = owned(xcb_get_geometry_reply(x, xcb_get_geometry(x, window), nullptr));
    const auto place = owned(xcb_translate_coordinates_reply(
        x, xcb_translate_coordinates(x, window, rootWindow(), 0, 0), nullptr));
    if (!geometry || !place) return {};
    return {place->dst_x, place->dst_y, geometry->width, geometry->height};
}

/// Returns what a window reserves: the widths at the left, right, top and bottom edge of all
/// screens, then the first and last pixel along each of these edges (the whole edge if it does not
/// say).
std::vector<uint32_t> requested(xcb_window_t window) {
    constexpr std::size_t withoutEnds = 4;
    constexpr std::size_t withEnds = 12;
    auto wanted = cardinals(window, "_NET_WM_STRUT_PARTIAL");
    if (wanted.size() >= withEnds) return wanted;
    wanted = cardinals(window, "_NET_WM_STRUT");
    if (wanted.size() < withoutEnds) return {};
    wanted.resize(withoutEnds);
    for (std::size_t edge = 0; edge < withoutEnds; ++edge) {
        wanted.push_back(0);
        wanted.push_back(INT16_MAX);
    }
    return wanted;
}

void addStruts(xcb_window_t window, const QSize& all, std::vector<Strut>& struts) {
    const auto wanted = requested(window);
    if (wanted.empty()) return;
    const auto at = [&wanted](std::size_t i) {
        return static_cast<int>(std::min<uint32_t>(wanted[i], INT16_MAX));
    };
    const std::array reserved = {
        between(0, at(4), at(0), at(5) + 1),
        between(all.width() - at(1), at(6), all.width(), at(7) + 1),
        between(at(8), 0, at(9) + 1, at(2)),
        between(at(10), all.height() - at(3), at(11) + 1, all.height()),
    };
    const QRect panel = frameOf(window);
    for (const QRect& part : reserved)
        if (!part.isEmpty()) struts.push_back({panel, part});
}

std::vector<Strut> struts() {
    std::vector<Strut> found;
    const QSize all = frameOf(rootWindow()).size();
    for (const xcb_window_t window : cardinals(rootWindow(), "_NET_CLIENT_LIST"))
        addStruts(window, all, found);
    return found;
}

/// Returns the usable area of `screen` if the desktop announces one for each screen; otherwise
/// empty.
QRect announcedArea(const QRect& screen) {
    const auto workspace = cardinals(rootWindow(), "_NET_CURRENT_DESKTOP");
    const std::string name =
        "_GTK_WORKAREAS_D" + std::to_string(workspace.empty() ? 0 : workspace.front());
    const auto values = cardinals(rootWindow(), name.c_str());
    QRect largest;
    for (std::size_t i = 0; i + 3 < values.size(); i += 4) {
        const auto at = [&](std::size_t offset) { return static_cast<int>(values[i + offset]); };
        const QRect here = QRect(at(0), at(1), at(2), at(3)) & screen;
        if (area(here) > area(largest)) largest = here;
    }
    return largest;
}

}  // namespace

QRect withoutStruts(const QRect& screen, const std::vector<Strut>& struts) {
    QRect left = screen;
    for (const auto& [panel, reserved] : struts) {
        const QRect taken = reserved & screen;
        if (taken.isEmpty() || !screen.contains(panel.center())) continue;
        QRect above = left, below = left, before = left, after = left;
        above.setBottom(std::min(left.bottom(), taken.top() - 1));
        below.setTop(std::max(left.top(), taken.bottom() + 1));
        before.setRight(std::min(left.right(), taken.left() - 1));
        after.setLeft(std::max(left.left(), taken.right() + 1));
        // The panel lies along the edge for which the largest part of the screen remains.
        left = std::ranges::max({above, below, before, after}, {}, area);
    }
    return left;
}

QRect usableArea(QScreen& screen) {
    // With one screen the window manager announces the area, and the toolkit reads it.
    if (QGuiApplication::screens().size() < 2) return screen.availableGeometry();
    const QRect whole = frameInPixels(screen);
    const QRect announced = announcedArea(whole);
    return inPoints(announced.isEmpty() ? withoutStruts(whole, struts()) : announced, screen);
}

}  // namespace vantle::x11
