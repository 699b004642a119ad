"""Trays of real desktops, the icon in them, and the menus that they draw."""

import colorsys
import pathlib

from privatedesktop import Rectangle, WaitTimeout, processes, wait_until, wait_until_still

_LXQT = """[General]
panels=panel1
[panel1]
plugins=statusnotifier
position=Bottom
panelSize=36
iconSize=22
[statusnotifier]
type=statusnotifier
alignment=Right
"""

_XFCE = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="%s"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""


# The numbers under which Xfce knows the left ends of the edges.
_XFCE_PLACES = {"top": "p=6;x=720;y=16", "bottom": "p=8;x=720;y=885"}


def _write(desktop, name, text):
    path = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"], name)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)


def start_lxqt_panel(desktop):
    """Starts the panel. On a busy machine its bar sometimes never appears; a second panel's bar
    does."""
    _write(desktop, "lxqt/panel.conf", _LXQT)
    panel = desktop.start("lxqt-panel")
    try:
        wait_until(lambda: has_room_taken(desktop), "the bar comes", limit=10)
    except WaitTimeout:
        processes.end(panel)
        panel = desktop.start("lxqt-panel")
        wait_until(lambda: has_room_taken(desktop), "the bar comes")
    return panel


def has_room_taken(desktop):
    return desktop.screen.work_area().height < desktop.size[1]


def start_xfce_panel(desktop, edge="bottom"):
    text = _XFCE % _XFCE_PLACES[edge]
    _write(desktop, "xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", text)
    return desktop.start("xfce4-panel", "--disable-wm-check")


class Icon:
    """Vantle's icon in a bar along the top or the bottom of the screen, right of `left`."""

    def __init__(self, desktop, edge, height=36, left=0):
        self._desktop = desktop
        width, total = desktop.size
        top = 0 if edge == "top" else total - height
        self._bar = Rectangle(left, top, width - left, height)

    def _pixels(self, least_saturation):
        """Returns the places of the icon's colours, which nothing else in a bar has."""
        picture = self._desktop.screen.screenshot(self._bar)
        found = []
        for number, (red, green, blue) in enumerate(picture.getdata()):
            hue, saturation, value = colorsys.rgb_to_hsv(red / 255, green / 255, blue / 255)
            if 0.66 < hue < 0.86 and saturation > least_saturation and value > 0.6:
                found.append((number % self._bar.width, number // self._bar.width))
        return found

    def is_bright(self):
        return len(self._pixels(0.4)) > 60

    def is_dim(self):
        return len(self._pixels(0.4)) < 20

    def places(self):
        """Returns the number of icons: groups of columns with its colours."""
        columns = sorted({x for x, _ in self._pixels(0.4)})
        return sum(1 for i, x in enumerate(columns) if i == 0 or x - columns[i - 1] > 4)

    def wait(self):
        """Waits for the icon and returns its middle."""
        wait_until(self.is_bright, "the icon is in the tray")
        pixels = wait_until_still(lambda: self._pixels(0.4), "the icon", readings=3)
        columns, rows = [x for x, _ in pixels], [y for _, y in pixels]
        self.middle = (
            self._bar.x + (min(columns) + max(columns)) // 2,
            self._bar.y + (min(rows) + max(rows)) // 2,
        )
        return self.middle


class OwnMenu:
    """The menu that Vantle draws, opened by a click on its icon."""

    LINE, CAPTURE, RULE, EDGE = 28, 32, 9, 5

    def __init__(self, desktop, icon):
        self._desktop = desktop
        desktop.screen.pointer.click(*icon.middle)
        window = wait_until(desktop.screen.menu, "the menu opens")
        wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the menu", readings=3)
        self.frame = window.frame

    def line(self, heights, number):
        """Returns the place of a line, by its number, in a menu with lines of these heights."""
        height = sum(heights) + 2 * self.EDGE
        shadow = (self.frame.height - height) // 2
        y = self.frame.y + shadow + self.EDGE + sum(heights[:number]) + heights[number] // 2
        return self.frame.centre[0], y

    def choose(self, captures, title):
        """Clicks a line of the menu, which lists that many captures."""
        heights = [self.LINE]
        if captures:
            heights += [self.CAPTURE] * captures + [self.RULE, self.LINE]
        heights += [self.RULE, self.LINE, self.LINE, self.LINE, self.RULE, self.LINE]
        numbers = {"newest capture": 1, "folder": -7, "pause": -5, "settings": -4, "quit": -1}
        number = numbers[title]
        self._desktop.screen.pointer.click(*self.line(heights, number % len(heights)))
        wait_until(lambda: self._desktop.screen.menu() is None, "the menu closes")


def open_menu_of_tray(desktop, icon):
    """Makes the tray draw the menu, and returns a picture of the screen with it."""
    before = desktop.screen.screenshot().tobytes()
    desktop.screen.pointer.click(*icon.middle, button=3)
    wait_until(lambda: desktop.screen.screenshot().tobytes() != before, "the tray's menu opens")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the menu", readings=3)
    return desktop.screen.screenshot()


def choose_by_keys(desktop, downs):
    for _ in range(downs):
        desktop.screen.keyboard.press("Down")
    desktop.screen.keyboard.press("Return")
