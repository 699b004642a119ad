"""Shows the pages in the folder beside this file in windows of a browser."""

import functools
import http.server
import pathlib
import threading

from Xlib import X, display
from Xlib.protocol import event

from privatedesktop import Rectangle, wait_until

PAGES = pathlib.Path(__file__).with_name("pages")


class Pages:
    """Serves the pages of this folder, and shows them in a browser, while the with statement
    lasts."""

    def __init__(self, desktop, scale=1):
        self._desktop = desktop
        self._scale = scale
        self._told = told = set()

        class Handler(http.server.SimpleHTTPRequestHandler):
            def do_POST(self):
                told.add(self.path)
                self.send_response(204)
                self.end_headers()

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(
            ("127.0.0.1", 0), functools.partial(Handler, directory=PAGES)
        )

    def __enter__(self):
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()

    def wait_for(self, what):
        """Waits until a page reports `what`."""
        wait_until(lambda: "/" + what in self._told, f"the page tells that it is {what}")

    def _address(self, page):
        return f"http://127.0.0.1:{self._server.server_port}/{page}.html"

    def _browser(self, profile, scale):
        return [
            "chromium", "--no-sandbox", "--test-type", "--no-first-run", "--disable-gpu",
            "--password-store=basic", "--disable-background-networking",
            "--disable-component-update", "--hide-scrollbars",
            f"--force-device-scale-factor={scale}",
            f"--user-data-dir={self._desktop.home / profile}",
        ]  # fmt: skip

    def open(self, page, title, area):
        """Opens a page in its own window, which fills the area, given in points."""
        self._desktop.start(*self._browser("browser", self._scale), f"--app={self._address(page)}",
                            f"--window-size={area.width},{area.height}")
        number = wait_until(lambda: find_window(self._desktop, title), f"{title} opens", limit=60)
        place(self._desktop, number, scaled(area, self._scale))

    def picture(self, page, size, path):
        """Saves a picture of a page at a scale of 2; the size is in points."""
        self._desktop.run(
            *self._browser("photographer", scale=2), "--headless", f"--screenshot={path}",
            f"--window-size={size[0]},{size[1]}", self._address(page),
        )  # fmt: skip


def scaled(area, scale):
    return Rectangle(*(scale * value for value in (area.x, area.y, area.width, area.height)))


def find_window(desktop, title):
    for number in desktop.screen.client_list():
        named = desktop.screen.window_property(number, "_NET_WM_NAME") or b""
        if title in named.decode("utf-8", "replace"):
            return number
    return None


def place(desktop, number, area):
    """Makes the window manager put a window there, and waits until it stays."""
    connection = display.Display(desktop.environment["DISPLAY"])
    root = connection.screen().root
    static_gravity_and_all_four = 10 | 0xF << 8 | 2 << 12
    message = event.ClientMessage(
        window=connection.create_resource_object("window", number),
        client_type=connection.intern_atom("_NET_MOVERESIZE_WINDOW"),
        data=(32, [static_gravity_and_all_four, *area.box[:2], area.width, area.height]),
    )

    def stands():
        if desktop.screen.area(number) == area:
            return True
        # A browser that is opening its window may move it again.
        root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        connection.sync()
        return False

    wait_until(stands, f"the window stands at {area}", interval=0.3)
    connection.close()
