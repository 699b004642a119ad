#!/usr/bin/python3
"""Reads and operates Vantle over AT-SPI, as a screen reader does. Runs on the private desktop.

It reads commands from standard input, each a JSON list on a line, and prints an answer to each:
  ["list"]               every accessible thing
  ["names"]              their names, which takes less time
  ["find", NAME]         the things of that name
  ["act", NAME, ACTION]  does an action of the thing of that name; answers whether that worked
  ["set", NAME, VALUE]   sets the value of the thing of that name; answers whether that worked
The answer is null if something left the window meanwhile.
"""

import json
import sys
import warnings

import gi

gi.require_version("Atspi", "2.0")
# Newer releases warn about the names that Debian 12's bindings use.
warnings.simplefilter("ignore")
from gi.repository import Atspi, GLib  # noqa: E402

STATES = {
    "selected": Atspi.StateType.SELECTED,
    "focused": Atspi.StateType.FOCUSED,
    "focusable": Atspi.StateType.FOCUSABLE,
    "showing": Atspi.StateType.SHOWING,
    "checked": Atspi.StateType.CHECKED,
    "read only": Atspi.StateType.READ_ONLY,
}
# Roles that older releases name differently.
ROLES = {"push button": "button", "push button menu": "button"}


def program():
    desktop = Atspi.get_desktop(0)
    # Qt's cached items have no children.
    desktop.set_cache_mask(Atspi.Cache.NONE)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child and child.get_name() == "vantle":
            return child
    return None


def descendants(item):
    for index in range(item.get_child_count()):
        child = item.get_child_at_index(index)
        if child is None:
            continue
        yield child
        yield from descendants(child)


def actions(item):
    return [Atspi.Action.get_action_name(item, i) for i in range(Atspi.Action.get_n_actions(item))]


def frame(item):
    """Returns the item's frame on the screen: left, top, width, height."""
    place = Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN)
    return [place.x, place.y, place.width, place.height]


def described(item):
    states = item.get_state_set()
    return {
        "name": item.get_name(),
        "description": item.get_description(),
        "role": ROLES.get(item.get_role_name(), item.get_role_name()),
        "states": [name for name, state in STATES.items() if states.contains(state)],
        "actions": actions(item) if item.get_action_iface() else [],
        "frame": frame(item) if item.get_component_iface() else None,
        "value": Atspi.Value.get_current_value(item) if item.get_value_iface() else None,
    }


def act(found, name, action):
    for item in found:
        if item.get_name() == name and item.get_action_iface():
            index = [one.lower() for one in actions(item)].index(action.lower())
            return Atspi.Action.do_action(item, index)
    return False


def set_value(found, name, value):
    for item in found:
        if item.get_name() == name and item.get_value_iface():
            return Atspi.Value.set_current_value(item, float(value))
    return False


def perform(what, *arguments):
    root = program()
    found = list(descendants(root)) if root else []
    if what == "list":
        return [described(item) for item in found]
    if what == "names":
        return [item.get_name() for item in found]
    if what == "find":
        return [described(item) for item in found if item.get_name() == arguments[0]]
    return {"act": act, "set": set_value}[what](found, *arguments)


def answer(command):
    try:
        return perform(*command)
    except GLib.Error:
        return None


for line in sys.stdin:
    print(json.dumps(answer(json.loads(line))), flush=True)
