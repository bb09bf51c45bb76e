# SPDX-License-Identifier: MIT
"""The main window of the program as a user of assistive technology finds it; a test without the means is skipped."""
import subprocess
import sys

import dbus

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("skipped: gir1.2-atspi-2.0 is not installed")
    sys.exit(77)

from program import PROGRAM, active_window, pointer, wait_for

BUTTON, CARD, CHOICE, LABEL, TAB = (Atspi.Role.PUSH_BUTTON, Atspi.Role.LIST_ITEM, Atspi.Role.RADIO_BUTTON, Atspi.Role.LABEL,
                                    Atspi.Role.PAGE_TAB)


def switch_on():
    dbus.SessionBus().start_service_by_name("org.a11y.Bus")
    status = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)
    Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # it would tell of nothing that came later


def children(item):
    return (child for child in map(item.get_child_at_index, range(item.get_child_count())) if child)


def has(item, state):
    return item.get_state_set().contains(state)


def below(item):
    """All that is below an item and can be seen."""
    for child in children(item):
        if has(child, Atspi.StateType.SHOWING):
            yield child
            yield from below(child)


def names(item):
    """What it is called, but for the places where a path may break; a drop-down by what stands beside it."""
    if item.get_role() != Atspi.Role.COMBO_BOX:
        return [item.get_name().replace("\u200b", "")]
    return [relation.get_target(0).get_name() for relation in item.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]


def heard():
    """Takes in what the program has told meanwhile."""
    while GLib.MainContext.default().iteration(False):
        pass


def programs():
    """One that was killed may stay in the list for a while."""
    return (item for item in children(Atspi.get_desktop(0)) if item.get_name() == "ambrelle")


def found(condition, window_name="Ambrelle"):
    """The first thing shown in that window, usually the main one, that meets it; nothing while there is none."""
    heard()
    try:
        windows = (window for program in programs() for window in children(program) if window.get_name() == window_name)
        return next((item for window in windows for item in below(window) if condition(item)), None)
    except GLib.Error:  # it went while it was looked at
        return None


def find(name, role=None):
    """What is shown of that name, in the main window; nothing while there is none."""
    return found(lambda item: name in names(item) and role in (None, item.get_role()))


def shown(name, role=None):
    return wait_for(f"“{name}”", lambda: find(name, role))


def gone(name, role=None):
    wait_for(f"no “{name}” any more", lambda: not find(name, role))


def press(name, role=BUTTON):
    """As assistive technology does, once it can be used."""
    def usable():
        item = find(name, role)
        return item if item and has(item, Atspi.StateType.ENABLED) else None
    Atspi.Action.do_action(wait_for(f"use of “{name}”", usable), 0)


def place(item):
    """Left and upper edge, width and height on the screen."""
    area = Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN)
    return area.x, area.y, area.width, area.height


def click(name, role=None):
    x, y, width, height = place(shown(name, role))
    pointer("mousemove", str(x + width // 2), str(y + height // 3), "click", "1")


def open_window(session):
    """By a second start; gives its number once it has the keyboard."""
    subprocess.run([PROGRAM], env=session.env, check=True)
    wait_for("main window with the keyboard", lambda: session.main_windows() and str(active_window()) in session.main_windows())
    shown("Themes", TAB)
    return session.main_windows()[0]


def cards(name):
    """What can be chosen in a grid, in its order: names with descriptions, which headings have none."""
    try:
        grid = find(name, Atspi.Role.LIST)
        return {item.get_name(): item.get_description() for item in children(grid) if item.get_description()}
    except (AttributeError, GLib.Error):  # the grid is not there, or changes
        return {}
