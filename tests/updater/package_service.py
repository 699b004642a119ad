"""Replaces the system's package installer: PackageKit's interface, on the given bus.

It prints each call on a line, and ends a transaction as the first argument says: "success",
"refuse" (with a message), "silent-failure", "vanish" or "refuse-method".
"""

import hashlib
import pathlib
import sys

from gi.repository import Gio, GLib

_NAME = "org.freedesktop.PackageKit"
_TRANSACTION = "/transaction"
_INTERFACES = Gio.DBusNodeInfo.new_for_xml("""
<node>
  <interface name="org.freedesktop.PackageKit">
    <method name="CreateTransaction"><arg type="o" direction="out"/></method>
  </interface>
  <interface name="org.freedesktop.PackageKit.Transaction">
    <method name="SetHints"><arg type="as" direction="in"/></method>
    <method name="InstallFiles">
      <arg type="t" direction="in"/><arg type="as" direction="in"/>
    </method>
    <signal name="ErrorCode"><arg type="u"/><arg type="s"/></signal>
    <signal name="Finished"><arg type="u"/><arg type="u"/></signal>
  </interface>
</node>""").interfaces
_SUCCESS, _FAILED, _NOT_AUTHORIZED = 1, 2, 48


def _emit(connection, name, signature, *values):
    connection.emit_signal(
        None, _TRANSACTION, f"{_NAME}.Transaction", name, GLib.Variant(signature, values)
    )


def _end(connection, ending):
    if ending == "vanish":
        sys.exit()
    if ending == "refuse":
        _emit(connection, "ErrorCode", "(us)", _NOT_AUTHORIZED, "You are not allowed to do this.")
    _emit(connection, "Finished", "(uu)", _SUCCESS if ending == "success" else _FAILED, 1)


def _answer(connection, _sender, _path, _interface, method, parameters, invocation):
    arguments = parameters.unpack()
    if method == "CreateTransaction":
        invocation.return_value(GLib.Variant("(o)", (_TRANSACTION,)))
        return
    print(method, *map(str, arguments), flush=True)
    ending = sys.argv[1]
    if method == "InstallFiles":
        if ending == "refuse-method":
            invocation.return_dbus_error(f"{_NAME}.Transaction.RefusedByPolicy", "Not today.")
            return
        package = pathlib.Path(arguments[1][0]).read_bytes()
        print("package", hashlib.sha256(package).hexdigest(), flush=True)
        GLib.idle_add(_end, connection, ending)
    invocation.return_value(None)


def _register(connection, _name):
    connection.register_object("/org/freedesktop/PackageKit", _INTERFACES[0], _answer, None, None)
    connection.register_object(_TRANSACTION, _INTERFACES[1], _answer, None, None)


Gio.bus_own_name(
    Gio.BusType.SYSTEM, _NAME, Gio.BusNameOwnerFlags.NONE, _register,
    lambda *_: print("ready", flush=True), lambda *_: sys.exit("the name is taken"),
)  # fmt: skip
GLib.MainLoop().run()
