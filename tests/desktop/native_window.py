#!/usr/bin/python3
"""A GTK window that prints which clicks, keys and files reach it."""

import sys
import warnings

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
warnings.simplefilter("ignore")
from gi.repository import Gdk, Gtk  # noqa: E402


def tell(kind, *values):
    print(kind, *values, flush=True)


def on_event(_, event):
    if event.type == Gdk.EventType.BUTTON_PRESS:
        tell("click", round(event.x), round(event.y))
        # Otherwise GTK handles the event a second time, as a click on the window's frame.
        return True
    if event.type == Gdk.EventType.KEY_PRESS:
        tell("key", Gdk.keyval_name(event.keyval))
    return False


def refuse(_, context, x, y, time):
    """Refuses the drop that it has promised to take."""
    tell("refused", x, y)
    Gtk.drag_finish(context, False, False, time)
    return True


def main():
    window = Gtk.Window(title="Native window")
    window.add_events(Gdk.EventMask.BUTTON_PRESS_MASK)
    if "--takes-no-files" not in sys.argv:
        window.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
        window.drag_dest_add_uri_targets()
    if "--breaks-promises" in sys.argv:
        window.drag_dest_set(Gtk.DestDefaults.MOTION, [], Gdk.DragAction.COPY)
        window.drag_dest_add_uri_targets()
        window.connect("drag-drop", refuse)
    window.connect("focus-in-event", lambda *_: tell("focus"))
    window.connect("focus-out-event", lambda *_: tell("blur"))
    window.connect("event", on_event)
    window.connect("drag-motion", lambda _, context, x, y, time: tell("drag", x, y))
    window.connect(
        "drag-data-received",
        lambda _, context, x, y, data, *rest: [tell("drop", uri) for uri in data.get_uris()],
    )
    if "--beside-bars" in sys.argv:
        window.maximize()
    else:
        window.fullscreen()
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    main()
