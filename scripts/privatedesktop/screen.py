"""Reads the screen of an X server, and sends real pointer and keyboard events to it."""

import dataclasses

from PIL import Image
from Xlib import X, XK, Xatom, display, error
from Xlib.protocol import event
from Xlib.ext import shape, xtest  # noqa: F401  (shape registers its requests on import)

from .waiting import wait_until


@dataclasses.dataclass(frozen=True)
class Rectangle:
    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2

    @property
    def box(self):
        """Returns the rectangle as PIL's crop() takes it."""
        return self.x, self.y, self.right, self.bottom

    def moved(self, x, y):
        return Rectangle(self.x + x, self.y + y, self.width, self.height)


@dataclasses.dataclass(frozen=True)
class Window:
    number: int
    frame: Rectangle
    is_mapped: bool
    is_override_redirect: bool
    class_names: tuple


class Pointer:
    """Moves, presses and releases as a mouse does."""

    def __init__(self, connection):
        self._display = connection

    def move(self, x, y):
        xtest.fake_input(self._display, X.MotionNotify, x=int(x), y=int(y))
        self._display.sync()

    def press(self, button=1):
        xtest.fake_input(self._display, X.ButtonPress, button)
        self._display.sync()

    def release(self, button=1):
        xtest.fake_input(self._display, X.ButtonRelease, button)
        self._display.sync()

    def click(self, x, y, button=1):
        self.move(x, y)
        self.press(button)
        self.release(button)

    def drag(self, start, end, steps=20):
        self.move(*start)
        self.press()
        for step in range(1, steps + 1):
            part = step / steps
            self.move(
                start[0] + (end[0] - start[0]) * part,
                start[1] + (end[1] - start[1]) * part,
            )
        self.release()


class Keyboard:
    """Types letters, digits and spaces, and presses keys by their X names."""

    def __init__(self, connection):
        self._display = connection

    def type(self, text):
        for character in text:
            keysym = XK.string_to_keysym("space" if character == " " else character)
            code = self._display.keysym_to_keycode(keysym)
            xtest.fake_input(self._display, X.KeyPress, code)
            xtest.fake_input(self._display, X.KeyRelease, code)
        self._display.sync()

    def _fake(self, kind, name):
        code = self._display.keysym_to_keycode(XK.string_to_keysym(name))
        xtest.fake_input(self._display, kind, code)
        self._display.sync()

    def hold(self, name):
        self._fake(X.KeyPress, name)

    def let_go(self, name):
        self._fake(X.KeyRelease, name)

    def press(self, name):
        self.hold(name)
        self.let_go(name)


class Screen:
    """The only screen of an X server."""

    def __init__(self, name):
        self._display = display.Display(name)
        self._root = self._display.screen().root
        screen = self._display.screen()
        self.size = (screen.width_in_pixels, screen.height_in_pixels)
        self.pointer = Pointer(self._display)
        self.keyboard = Keyboard(self._display)

    def close(self):
        self._display.close()

    def screenshot(self, area=None):
        """Returns a PIL image of the screen, or of a Rectangle of it."""
        area = area or Rectangle(0, 0, *self.size)
        raw = self._root.get_image(
            area.x, area.y, area.width, area.height, X.ZPixmap, 0xFFFFFFFF
        )
        size = (area.width, area.height)
        return Image.frombytes("RGB", size, raw.data, "raw", "BGRX")

    def _property(self, window, name, kind=X.AnyPropertyType):
        try:
            answer = window.get_full_property(self._display.intern_atom(name), kind)
        except error.BadWindow:
            # The window was destroyed meanwhile.
            return None
        return answer.value if answer else None

    def root_property(self, name):
        return self._property(self._root, name)

    def is_composited(self):
        return self.owns("_NET_WM_CM_S0")

    def has_tray(self):
        return self.owns("_NET_SYSTEM_TRAY_S0")

    def owns(self, selection):
        """Returns true if a program owns that selection."""
        return bool(self._display.get_selection_owner(self._display.intern_atom(selection)))

    def work_area(self):
        values = self.root_property("_NET_WORKAREA")
        return Rectangle(*values[:4]) if values else Rectangle(0, 0, *self.size)

    def client_list(self):
        """Returns the windows that a taskbar or a pager shows."""
        return list(self.root_property("_NET_CLIENT_LIST") or [])

    def stacked(self):
        """Returns the same windows, lowest first."""
        return list(self.root_property("_NET_CLIENT_LIST_STACKING") or [])

    def dialogs(self):
        """Returns Vantle's windows that the window manager manages."""
        return [w for w in self.client_list() if "vantle" in self._class_names(w)]

    def _class_names(self, window_number):
        window = self._display.create_resource_object("window", window_number)
        try:
            return [name.lower() for name in window.get_wm_class() or ()]
        except error.XError:
            # The window was destroyed meanwhile.
            return []

    def active_window(self):
        values = self.root_property("_NET_ACTIVE_WINDOW")
        return values[0] if values else 0

    def focused_window(self):
        focus = self._display.get_input_focus().focus
        return focus if isinstance(focus, int) else focus.id

    def current_workspace(self):
        return self.root_property("_NET_CURRENT_DESKTOP")[0]

    def make_workspaces(self, count):
        self._send_to_root("_NET_NUMBER_OF_DESKTOPS", self._root, [count, 0, 0, 0, 0])
        wait_until(
            lambda: self.root_property("_NET_NUMBER_OF_DESKTOPS")[0] == count,
            f"there are {count} workspaces",
        )

    def switch_workspace(self, number):
        """Repeats the request until the workspace changes: a window manager that has just activated
        a window may switch back to it."""

        def is_there():
            if self.current_workspace() == number:
                return True
            self._send_to_root("_NET_CURRENT_DESKTOP", self._root, [number, X.CurrentTime, 0, 0, 0])
            return False

        wait_until(is_there, f"the workspace {number} is shown", interval=0.5)

    def change_state(self, window_number, action, state):
        """Asks the window manager to add (1) or remove (0) a _NET_WM_STATE."""
        window = self._display.create_resource_object("window", window_number)
        atom = self._display.intern_atom(state)
        self._send_to_root("_NET_WM_STATE", window, [action, atom, 0, 1, 0])

    def ask_to_move(self, window_number, x, y):
        """Asks the window manager to move the window, as the window's own program would."""
        window = self._display.create_resource_object("window", window_number)
        window.configure(x=x, y=y)
        self._display.sync()

    def ask_to_close(self, window_number):
        """Asks the window to close, as the button in its title bar does."""
        window = self._display.create_resource_object("window", window_number)
        self._send_to_root("_NET_CLOSE_WINDOW", window, [X.CurrentTime, 1, 0, 0, 0])

    def _send_to_root(self, name, window, values):
        message = event.ClientMessage(
            window=window, client_type=self._display.intern_atom(name), data=(32, values)
        )
        mask = X.SubstructureRedirectMask | X.SubstructureNotifyMask
        self._root.send_event(message, event_mask=mask)
        self._display.sync()

    def windows(self):
        """Returns the children of the root window, lowest first."""
        found = []
        for window in self._root.query_tree().children:
            try:
                found.append(self._describe(window))
            except error.XError:
                # The window was destroyed meanwhile.
                continue
        return found

    def _describe(self, window):
        attributes = window.get_attributes()
        geometry = window.get_geometry()
        return Window(
            number=window.id,
            frame=Rectangle(geometry.x, geometry.y, geometry.width, geometry.height),
            is_mapped=attributes.map_state == X.IsViewable,
            is_override_redirect=bool(attributes.override_redirect),
            class_names=window.get_wm_class() or (),
        )

    def _own_windows(self):
        """Returns Vantle's windows on the screen that no window manager manages."""
        return [
            window
            for window in self.windows()
            if window.is_mapped
            and window.is_override_redirect
            and "vantle" in (name.lower() for name in window.class_names)
        ]

    def panels(self):
        """Returns Vantle's panels on the screen; there should be at most one."""
        return [window for window in self._own_windows() if window.frame.width > 700]

    def menu(self):
        """Returns the menu that Vantle draws, if it is open."""
        menus = [w for w in self._own_windows() if w.frame.width <= 700 and w.frame.height > 60]
        return menus[0] if menus else None

    def panel(self):
        panels = self.panels()
        return panels[0] if panels else None

    def input_areas(self, window_number):
        """Returns the parts of a window that take clicks, in screen coordinates."""
        window = self._display.create_resource_object("window", window_number)
        geometry = window.get_geometry()
        answer = window.shape_get_rectangles(shape.SK.Input)
        return [
            Rectangle(area.x, area.y, area.width, area.height).moved(geometry.x, geometry.y)
            for area in answer.rectangles
        ]

    def set_root_property(self, name):
        """Sets a property of the root window, as a compositor does to announce a feature."""
        atom = self._display.intern_atom(name)
        self._root.change_property(atom, Xatom.CARDINAL, 32, [0])
        self._display.sync()

    def area(self, window_number):
        """Returns the area of a window on the screen, without its frame."""
        window = self._display.create_resource_object("window", window_number)
        geometry = window.get_geometry()
        place = window.translate_coords(self._root, 0, 0)
        return Rectangle(-place.x, -place.y, geometry.width, geometry.height)

    def window_property(self, window_number, name):
        window = self._display.create_resource_object("window", window_number)
        return self._property(window, name)

    def atom_name(self, atom):
        return self._display.get_atom_name(atom)

    def states(self, window_number):
        """Returns the names of a window's _NET_WM_STATEs."""
        atoms = self.window_property(window_number, "_NET_WM_STATE") or []
        return {self.atom_name(atom) for atom in atoms}

    def title(self, window_number):
        window = self._display.create_resource_object("window", window_number)
        # The older property holds Latin letters only.
        return self._property(window, "_NET_WM_NAME") or self._property(window, "WM_NAME",
                                                                        Xatom.STRING)
