#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The tab of widgets in the main window, used with keyboard, pointer and assistive technology: widgets_tab_test.py PROGRAM.

Widgets are added by Enter and by dragging them out, removed, pointed out, given other settings and skins, and brought back; what
counts is what is on the screen and in the store.
"""
import subprocess
import time

from assistive import BUTTON, CHOICE, Atspi, below, children, found, open_window, place, press, shown, switch_on
from program import Session, pointer, screen_size, wait_for

LEFT, ABOVE = 30, 32  # points of a panel left of and above its face
MARGIN, MEDIUM, SMALL = 20, 350, 170
DROP = (90, 400)


def rows(name):
    return list(children(shown(name, Atspi.Role.LIST)))


def middle(item):
    x, y, width, height = place(item)
    return x + width // 2, y + height // 2


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
    section = wait_for("Time", lambda: found(lambda item: item.get_role() == CHOICE and item.get_name().endswith("Time")))
    Atspi.Action.do_action(section, 0)
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
    x, y = middle(next(row for row in rows("On Your Desktop") if row.get_name() == title))
    pointer("mousemove", str(x), str(y), "click", "1")


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
    start = time.monotonic()
    press("Locate")
    wait_for("widget above windows", lambda: floating(session) == 1)
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


def press_in(item, name):
    button = next(each for each in below(item) if each.get_role() == BUTTON and each.get_name() == name)
    Atspi.Action.do_action(button, 0)


def remove_all(session):
    before = session.widgets()
    press_in(shown("On Your Desktop", Atspi.Role.LIST).get_parent(), "More")
    pointer("sleep", "0.5", "key", "Down", "Return")
    shown("Remove all 3 widgets?", Atspi.Role.DIALOG)
    assert session.widgets() == before, "it did not ask"
    press_in(shown("Remove all 3 widgets?", Atspi.Role.DIALOG), "Remove")
    wait_for("empty desktop", lambda: session.widgets() == [])
    wait_for("nothing but the window", lambda: len(session.windows()) == 1)
    pointer("key", "ctrl+z")
    wait_for("all of them back", lambda: session.widgets() == before)


def main():
    width, height = screen_size()
    switch_on()
    session = Session({"hasLaunchedBefore": True, "animations": False, "defaultSkin": "neon", "mainWindowSize": [920, 600],
                       "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": [20, 20]}]})
    session.start()
    wait_for("widget", lambda: len(session.panels()) == 1)
    open_window(session)
    pointer("key", "ctrl+2")
    add(session, width, height)
    remove(session)
    point_out(session)
    use_skin(session)
    remove_all(session)
    session.end()
    print("added, dragged out, removed, pointed out, dressed anew and brought back")


main()
