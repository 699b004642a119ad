"""Windows of another program, which record the keys and clicks that reach them."""

from Xlib import X, XK, Xatom, Xutil, display

from privatedesktop import wait_until


class OtherWindow:
    def __init__(self, desktop, frame, colour=0x808080, is_full_screen=False):
        self._screen = desktop.screen
        self._display = display.Display(desktop.environment["DISPLAY"])
        desktop.keep(self._display)
        self._typed = ""
        self._clicks = []
        root = self._display.screen().root
        self._window = root.create_window(
            frame.x, frame.y, frame.width, frame.height, 0, X.CopyFromParent,
            background_pixel=colour,
            event_mask=X.KeyPressMask | X.ButtonPressMask | X.StructureNotifyMask,
        )  # fmt: skip
        self._window.set_wm_name("Other window")
        self._window.set_wm_class("other", "Other")
        self._window.set_wm_hints(flags=Xutil.InputHint, input=1)
        self._window.set_wm_normal_hints(
            flags=Xutil.USPosition | Xutil.USSize, x=frame.x, y=frame.y,
            width=frame.width, height=frame.height,
        )  # fmt: skip
        if is_full_screen:
            self._mark_full_screen()
        self._window.map()
        self._display.sync()
        wait_until(lambda: self.number in self._screen.client_list(), "the other window is managed")
        wait_until(lambda: self._screen.active_window() == self.number,
                   "the other window is active")
        wait_until(lambda: self._screen.focused_window() == self.number,
                   "the other window has the focus")

    def paint_stripes(self, width=12, colours=(0x1E285A, 0xF0C850)):
        """Fills it with vertical stripes."""
        size = self._window.get_geometry()
        pattern = self._window.create_pixmap(2 * width, 1, size.depth)
        brush = pattern.create_gc()
        for number, colour in enumerate(colours):
            brush.change(foreground=colour)
            pattern.fill_rectangle(brush, number * width, 0, width, 1)
        self._window.change_attributes(background_pixmap=pattern)
        self._window.clear_area()
        self._display.sync()

    @property
    def number(self):
        return self._window.id

    def _mark_full_screen(self):
        atom = self._display.intern_atom
        self._window.change_property(
            atom("_NET_WM_STATE"), Xatom.ATOM, 32, [atom("_NET_WM_STATE_FULLSCREEN")]
        )

    def _read_events(self):
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == X.KeyPress:
                keysym = self._display.keycode_to_keysym(event.detail, 0)
                self._typed += " " if keysym == XK.XK_space else XK.keysym_to_string(keysym) or "?"
            elif event.type == X.ButtonPress:
                self._clicks.append((event.root_x, event.root_y))

    def typed(self):
        self._read_events()
        return self._typed

    def clicks(self):
        self._read_events()
        return list(self._clicks)
