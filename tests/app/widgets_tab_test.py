#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The tab of widgets in the main window, used with keyboard, pointer and assistive technology: widgets_tab_test.py PROGRAM.

Widgets are added by Enter and by dragging them out, removed, pointed out, given other settings and skins, and brought back; what
counts is what is on the screen and in the store.
"""
import subprocess
import sys
import time

import dbus

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("skipped: gir1.2-atspi-2.0 is not installed")
    sys.exit(77)

from program import PROGRAM, Session, active_window, pointer, screen_size, wait_for

LEFT, ABOVE = 30, 32  # points of a panel left of and above its face
MARGIN, MEDIUM, SMALL = 20, 350, 170
DROP = (90, 400)


def heard():
    while GLib.MainContext.default().iteration(False):
        pass


def children(item):
    return [child for child in map(item.get_child_at_index, range(item.get_child_count())) if child]


def search(item, role, matches):
    """The first such item that is shown, outermost first."""
    try:
        if item.get_role() == role and matches(item.get_name() or ""):
            if item.get_state_set().contains(Atspi.StateType.SHOWING):
                return item
        found = (search(child, role, matches) for child in children(item))
        return next((each for each in found if each), None)
    except GLib.GError:  # it went while it was looked at
        return None


def find(role, name, last=False):
    def look():
        heard()
        program = next((item for item in children(Atspi.get_desktop(0)) if item.get_name() == "ambrelle"), None)
        window = program and next((item for item in children(program) if item.get_name() == "Ambrelle"), None)
        return window and search(window, role, lambda told: told == name or (last and told.endswith(name)))
    return wait_for(f"{role.value_nick} {name}", look)


def press(name):
    button = find(Atspi.Role.PUSH_BUTTON, name)
    wait_for(f"use of {name}", lambda: heard() or button.get_state_set().contains(Atspi.StateType.ENABLED))
    Atspi.Action.do_action(button, 0)


def rows(name):
    return children(find(Atspi.Role.LIST, name))


def middle(item):
    place = Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN)
    return place.x + place.width // 2, place.y + place.height // 2


def click(item):
    x, y = middle(item)
    pointer("mousemove", str(x), str(y), "click", "1")


def drag(start, end, *last):
    steps = [(start[0] + (end[0] - start[0]) * step // 10, start[1] + (end[1] - start[1]) * step // 10) for step in range(1, 11)]
    pointer("mousemove", *map(str, start), "sleep", "0.2", "mousedown", "1")
    for x, y in steps:
        pointer("mousemove", str(x), str(y), "sleep", "0.02")
    pointer(*last, "sleep", "0.3", "mouseup", "1")


def kinds(session):
    return [widget["kind"] for widget in session.widgets()]


def floating(session):
    """Widgets above normal windows."""
    told = (subprocess.run(["xprop", "-id", window, "_NET_WM_STATE", "_NET_WM_WINDOW_TYPE"], capture_output=True, text=True).stdout
            for window in session.windows())
    return sum("_NET_WM_STATE_ABOVE" in each for each in told)


def panel_at(session, widget, height):
    x, y = widget["origin"]
    return any(panel[:2] == (x - LEFT, height - y - SMALL - ABOVE) for panel in session.panels())


def add(session, width, height):
    Atspi.Action.do_action(find(Atspi.Role.RADIO_BUTTON, "Time", last=True), 0)
    wait_for("three cards", lambda: [row.get_name() for row in rows("Widgets")][1:] == ["Clock", "Calendar", "Countdown"])
    pointer("key", "ctrl+f", "sleep", "0.2", "key", "Down", "sleep", "0.2", "key", "Return")
    wait_for("clock in the store", lambda: kinds(session) == ["cpu", "clock"])
    clock = session.widgets()[1]
    assert clock["origin"] == [width - MARGIN - MEDIUM, height - MARGIN - SMALL], clock
    assert clock["skin"] == "neon"
    wait_for("clock on the screen", lambda: panel_at(session, clock, height))
    card = next(row for row in rows("Widgets") if row.get_name() == "Calendar")
    drag(middle(card), DROP)
    wait_for("calendar in the store", lambda: kinds(session) == ["cpu", "clock", "calendar"])
    x, y = session.widgets()[2]["origin"]
    assert abs(x + SMALL / 2 - DROP[0]) <= 1 and abs(height - y - SMALL / 2 - DROP[1]) <= 1, (x, y)
    wait_for("calendar on the screen", lambda: panel_at(session, session.widgets()[2], height))
    panels = session.panels()
    drag(middle(card), DROP, "key", "Escape")
    time.sleep(0.5)
    assert kinds(session) == ["cpu", "clock", "calendar"], "Escape added a widget"
    wait_for("end of the ghost", lambda: session.panels() == panels)


def choose(title):
    click(next(row for row in rows("On Your Desktop") if row.get_name() == title))


def remove(session):
    before = session.widgets()
    choose("Clock")
    pointer("key", "Delete")
    wait_for("clock gone", lambda: kinds(session) == ["cpu", "calendar"])
    pointer("key", "ctrl+z")
    wait_for("clock back in its place", lambda: session.widgets() == before)


def point_out(session):
    wait_for("no widget above windows", lambda: floating(session) == 0)
    choose("CPU")
    press("Locate")
    wait_for("widget above windows", lambda: floating(session) == 1)
    start = time.monotonic()
    wait_for("its own level", lambda: floating(session) == 0)
    assert time.monotonic() - start > 1, "it was hardly to be seen"
    count = len(session.windows())
    press("Widget Settings…")
    wait_for("settings", lambda: len(session.windows()) == count + 1)
    pointer("sleep", "0.3", "key", "Escape")
    wait_for("end of the settings", lambda: len(session.windows()) == count)


def use_skin(session):
    before = session.widgets()
    press("Use Neon for All Widgets")
    wait_for("one skin", lambda: {widget["skin"] for widget in session.widgets()} == {"neon"})
    pointer("key", "ctrl+z")
    wait_for("skins as before", lambda: session.widgets() == before)


def remove_all(session):
    before = session.widgets()
    pane = find(Atspi.Role.LIST, "On Your Desktop").get_parent()
    Atspi.Action.do_action(search(pane, Atspi.Role.PUSH_BUTTON, lambda name: name == "More"), 0)
    pointer("sleep", "0.5", "key", "Down", "Return")
    find(Atspi.Role.DIALOG, "Remove all 3 widgets?")
    assert session.widgets() == before, "it did not ask"
    dialog = find(Atspi.Role.DIALOG, "Remove all 3 widgets?")
    Atspi.Action.do_action(search(dialog, Atspi.Role.PUSH_BUTTON, lambda name: name == "Remove"), 0)
    wait_for("empty desktop", lambda: session.widgets() == [])
    wait_for("nothing but the window", lambda: len(session.windows()) == 1)
    pointer("key", "ctrl+z")
    wait_for("all of them back", lambda: session.widgets() == before)


def main():
    width, height = screen_size()
    dbus.SessionBus().start_service_by_name("org.a11y.Bus")
    status = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)
    session = Session({"hasLaunchedBefore": True, "animations": False, "defaultSkin": "neon", "mainWindowSize": [920, 600],
                       "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": [20, 20]}]})
    session.start()
    wait_for("widget", lambda: len(session.panels()) == 1)
    subprocess.run([PROGRAM], env=session.env, check=True)  # a second start shows the window
    wait_for("window", lambda: len(session.windows()) == 2)
    wait_for("keyboard in the window", lambda: str(active_window()) in session.windows())
    pointer("key", "ctrl+2")
    add(session, width, height)
    remove(session)
    point_out(session)
    use_skin(session)
    remove_all(session)
    session.end()
    print("added, dragged out, removed, pointed out, dressed anew and brought back")


main()
