"""A notification service that shows nothing, and prints a line for each notification."""

import sys

from gi.repository import Gio, GLib

_NAME = "org.freedesktop.Notifications"
_PATH = "/org/freedesktop/Notifications"
_INTERFACE = """
<node><interface name="org.freedesktop.Notifications">
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="out"/>
  </method>
  <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="GetServerInformation">
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
  </method>
</interface></node>
"""
_ANSWERS = {
    "Notify": GLib.Variant("(u)", (1,)),
    "CloseNotification": None,
    "GetCapabilities": GLib.Variant("(as)", (["body"],)),
    "GetServerInformation": GLib.Variant("(ssss)", ("test", "test", "1", "1.2")),
}


def _answer(connection, _sender, _path, _interface, method, parameters, invocation):
    if method == "Notify":
        print("notified by", parameters.unpack()[0], flush=True)
    invocation.return_value(_ANSWERS[method])
    if method == "Notify":
        # Some tools wait for this signal before they end. The first one may come before they know
        # the notification's number, so it is repeated.
        GLib.timeout_add(250, _close, connection)


def _close(connection):
    closed = GLib.Variant("(uu)", (1, 1))
    connection.emit_signal(None, _PATH, _NAME, "NotificationClosed", closed)
    return GLib.SOURCE_CONTINUE


def _register(connection, _name):
    interface = Gio.DBusNodeInfo.new_for_xml(_INTERFACE).interfaces[0]
    connection.register_object(_PATH, interface, _answer, None, None)


def _main():
    Gio.bus_own_name(
        Gio.BusType.SESSION, _NAME, Gio.BusNameOwnerFlags.NONE, _register,
        lambda *_: print("ready", flush=True), lambda *_: sys.exit("the name is taken"),
    )  # fmt: skip
    GLib.MainLoop().run()


if __name__ == "__main__":
    _main()
