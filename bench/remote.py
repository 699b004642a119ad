"""Talks to the program on a private desktop over the bus, without starting a process for each
call."""

import re
import time

from gi.repository import Gio, GLib

from privatedesktop import wait_until

NAME, PATH, INTERFACE = "org.vantle.Vantle", "/org/vantle/Vantle", "org.vantle.Vantle"
BUS = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
ANSWER_LIMIT = 60_000  # milliseconds


class Remote:
    def __init__(self, desktop):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        address = desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def _call(self, target, method, arguments):
        answer = self._bus.call_sync(*target, method, arguments, None, Gio.DBusCallFlags.NONE,
                                     ANSWER_LIMIT, None)
        return answer.unpack()[0]

    def ask(self, action):
        """Returns the answer, and how many seconds it took."""
        begin = time.monotonic()
        answer = self._call((NAME, PATH, INTERFACE), "Ask", GLib.Variant("(saay)", (action, [])))
        return answer, time.monotonic() - begin

    def captures(self):
        """Returns the number of captures on the card."""
        return int(re.search(r"^captures: (\d+)$", self.ask("status")[0], re.MULTILINE)[1])

    def wait_until_watching(self):
        def is_watching():
            try:
                return "state: watching" in self.ask("status")[0]
            except GLib.Error:
                # The program's name is not on the bus yet.
                return False

        wait_until(is_watching, "it watches")
        time.sleep(0.5)

    def names_of(self, pid):
        """Returns how many names on the bus belong to that process, including those of its
        connections."""
        names = self._call(BUS, "ListNames", None)
        return sum(self._process_of(name) == pid for name in names)

    def _process_of(self, name):
        try:
            return self._call(BUS, "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))
        except GLib.Error:
            # The connection was closed meanwhile.
            return None
