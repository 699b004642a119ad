"""A desktop for the pictures: its window frames, its wallpaper and its panel."""

import os
import pathlib
import sys

import numpy
from PIL import Image
from Xlib import Xatom, display

SCRIPTS = pathlib.Path(__file__).resolve().parents[1]
REPOSITORY = SCRIPTS.parent
sys.path += [str(SCRIPTS), str(REPOSITORY / "tests/desktop")]

from privatedesktop import PrivateDesktop, wait_until  # noqa: E402

PICTURES = REPOSITORY / "docs/pictures"
BINARY = os.environ.get("VANTLE_BINARY", REPOSITORY / "build/dev/bin/vantle")
PANEL_HEIGHT = 28

_SKY = ((46, 108, 158), (120, 184, 206), (246, 226, 200))
_RIDGES = (
    # height from the top, steepness, colour, colour at the foot
    (0.50, 0.060, (126, 178, 196), (190, 212, 210)),
    (0.60, 0.055, (82, 146, 172), (150, 192, 198)),
    (0.70, 0.060, (46, 110, 144), (104, 160, 176)),
    (0.81, 0.050, (24, 76, 112), (62, 122, 146)),
    (0.91, 0.040, (12, 46, 78), (28, 82, 112)),
)

_KWIN = """[Plugins]
blurEnabled=true
[Compositing]
Enabled=true
[org.kde.kdecoration2]
library=org.kde.breeze
ButtonsOnLeft=
ButtonsOnRight=IAX
"""
_KDE = """[WM]
activeBackground=250,250,252
activeForeground=48,46,66
inactiveBackground=243,243,246
inactiveForeground=140,138,152
"""
_GTK = """[Settings]
gtk-theme-name=Adwaita
gtk-application-prefer-dark-theme=1
gtk-font-name=Inter 10
"""

_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="{height}"/>
      <property name="icon-size" type="uint" value="18"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="background-style" type="uint" value="1"/>
      <property name="background-rgba" type="array">
        <value type="double" value="0.05"/><value type="double" value="0.1"/>
        <value type="double" value="0.17"/><value type="double" value="0.82"/>
      </property>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/><value type="int" value="3"/>
        <value type="int" value="4"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="applicationsmenu">
      <property name="show-button-icon" type="bool" value="false"/>
      <property name="button-title" type="string" value="  Applications"/>
    </property>
    <property name="plugin-2" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-3" type="string" value="systray"/>
    <property name="plugin-4" type="string" value="clock">
      <property name="digital-layout" type="uint" value="3"/>
      <property name="digital-time-format" type="string" value="  %a %-d %b  %H:%M  "/>
      <property name="digital-time-font" type="string" value="Inter 10"/>
    </property>
  </property>
</channel>
"""


def private_desktop(size, scale):
    """Returns a desktop whose compositor blurs what is behind the glass; the size is in points."""
    return PrivateDesktop(
        size=(size[0] * scale, size[1] * scale),
        compositor=False,
        tray=False,
        # The height of the title bars follows the font size.
        window_manager=["env", f"QT_FONT_DPI={80 * scale}", "kwin_x11"],
        environment={
            "KWIN_COMPOSE": "O2",
            "LIBGL_ALWAYS_SOFTWARE": "1",
            "QT_SCALE_FACTOR": str(scale),
            "GDK_SCALE": str(scale),
            "XCURSOR_THEME": "Adwaita",
            "XCURSOR_SIZE": str(24 * scale),
        },
        configuration={"kwinrc": _KWIN, "kdeglobals": _KDE},
    )


def wallpaper(size):
    """Returns ridges of hills in the mist, one behind the other."""
    width, height = size
    rows = numpy.linspace(0, 1, height)[:, None]
    columns = numpy.linspace(0, 1, width)[None, :]
    picture = _between(_SKY, numpy.broadcast_to(rows * 1.5, (height, width)))
    for number, (top, steepness, colour, foot) in enumerate(_RIDGES):
        line = top + steepness * (
            numpy.sin(columns * (5.1 + number) + number * 2.3)
            + 0.45 * numpy.sin(columns * (11.7 + 2 * number) + number * 4.1)
        )
        # One pixel of the edge is half transparent, so that the edge is smooth.
        cover = numpy.clip((rows - line) * height, 0, 1)[..., None]
        hill = _between((colour, foot), numpy.clip((rows - line) / 0.17, 0, 1))
        picture = picture * (1 - cover) + hill * cover
    return Image.fromarray(picture.round().astype(numpy.uint8))


def _between(colours, part):
    """Returns the colours along a gradient, for each part of its way from 0 to 1."""
    places = numpy.linspace(0, 1, len(colours))
    return numpy.stack(
        [numpy.interp(part, places, channel) for channel in zip(*colours)], axis=-1
    )


def write_configuration(desktop, name, text):
    path = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"], name)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)


def show_wallpaper(desktop):
    """Shows the wallpaper in its own window, as desktops do: not every compositor draws the root
    window."""
    connection = display.Display(desktop.environment["DISPLAY"])
    screen = connection.screen()
    pixmap = screen.root.create_pixmap(*desktop.size, screen.root_depth)
    context = pixmap.create_gc()
    pixmap.put_pil_image(context, 0, 0, wallpaper(desktop.size))
    window = screen.root.create_window(
        0, 0, *desktop.size, 0, screen.root_depth, background_pixmap=pixmap
    )
    kind = connection.intern_atom("_NET_WM_WINDOW_TYPE_DESKTOP")
    window.change_property(connection.intern_atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [kind])
    window.map()
    connection.sync()
    desktop.keep(connection)


def furnish(desktop):
    """Shows the wallpaper, and a panel with a tray along the upper edge."""
    write_configuration(desktop, "gtk-3.0/settings.ini", _GTK)
    write_configuration(desktop, "xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml",
                        _PANEL.format(height=PANEL_HEIGHT))
    show_wallpaper(desktop)
    desktop.start("xfce4-panel", "--disable-wm-check")
    wait_until(lambda: desktop.screen.work_area().y > 0, "the panel takes its edge of the screen")
