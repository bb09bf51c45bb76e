#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program beside the window manager of this display: manager_test.py PROGRAM.

Two widgets, one of them pinned, an ordinary window of another program and a desktop's: says in one line each what holds,
and ends with 1 unless everything does. It asks the X server, so that it judges every window manager alike, and none.
"""
import os
import sys
import time

from Xlib import X

from onlooker import DESKTOP, PINNED, PLACE, PLAIN, SMALL, WINDOW, Screen, holds, settings, spot
from program import Session, hover, pointer, screen_size, wait_for

LEFT, ABOVE = 30, 32  # points of a panel left of and above its face


class Report:
    def __init__(self):
        self.failed = False

    def __call__(self, what, holds):
        print(f"{'yes' if holds else 'NO '}  {what}", flush=True)
        self.failed = self.failed or not holds


def middle(face):
    return face[0] + SMALL // 2, face[1] + SMALL // 2


def drag(start, by):
    hover(*start)
    pointer("mousedown", "1")
    for step in range(1, 11):
        pointer("mousemove", str(start[0] + by[0] * step // 10), str(start[1] + by[1] * step // 10))
    pointer("sleep", "0.1", "mouseup", "1", "mousemove", "1", "1")


def panel_at(session, face):
    return any(panel[:2] == (face[0] - LEFT, face[1] - ABOVE) for panel in session.panels())


def check_alone(screen, session, report):
    """Widgets on the empty desktop."""
    plain, pinned = screen.pixel(*spot(PLAIN)), screen.pixel(*spot(PINNED))
    before = screen.focus()
    for face in (PLAIN, PINNED):
        hover(*middle(face))
        pointer("click", "1", "sleep", "0.3")
    pointer("mousemove", "1", "1")
    report("a click on the empty desktop moves no focus", screen.focus() == before)
    dragged = (PLAIN[0] + 40, PLAIN[1] + 30)
    drag(middle(PLAIN), (40, 30))
    report("a drag moves the panel to the pixel", holds(lambda: panel_at(session, dragged)))
    drag(middle(dragged), (-40, -30))
    report("and back", holds(lambda: panel_at(session, PLAIN)))
    return plain, pinned


def check_desktop(screen, report, colours):
    width, height = screen_size()
    desktop = screen.open((0, 0, width, height), DESKTOP, "DESKTOP")
    if os.environ.get("AMBRELLE_TEST_MANAGER") != "i3":  # tiles a desktop like any other window
        report("widgets above the desktop of another program", holds(
            lambda: all(screen.pixel(*spot(face)) != DESKTOP for face in (PLAIN, PINNED))))
    desktop.destroy()
    screen.display.sync()
    return holds(lambda: (screen.pixel(*spot(PLAIN)), screen.pixel(*spot(PINNED))) == colours)


def check_windows(screen, report):
    first = screen.open(PLACE, WINDOW)
    report("a window covers the widget, the pinned one stays above", screen.has_layers(first))
    pointer("mousemove", *map(str, middle(PLAIN)), "sleep", "0.2", "click", "1")
    report("a click at the covered widget reaches the window", holds(lambda: screen.clicks() == 1, 3))
    first.set_input_focus(X.RevertToPointerRoot, X.CurrentTime)
    screen.display.sync()
    report("the window has the keyboard", holds(lambda: screen.focus() == first.id, 3))
    hover(*middle(PINNED))
    pointer("sleep", "0.2", "click", "1", "sleep", "0.3")
    report("a click on the pinned widget leaves it there", screen.focus() == first.id and screen.clicks() == 1)
    report("and changes no order", screen.has_layers(first))
    first.destroy()
    second = screen.open(PLACE, WINDOW)
    report("the same with a new window", screen.has_layers(second))
    second.destroy()
    screen.display.sync()


def main():
    _, height = screen_size()
    session = Session(settings(height))
    screen, report = Screen(), Report()
    pointer("mousemove", "1", "1")
    work = screen.root.get_full_property(screen.atom("_NET_WORKAREA"), X.AnyPropertyType)
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == 2)
    report("widgets stand where they were stored", holds(lambda: panel_at(session, PLAIN) and panel_at(session, PINNED)))
    time.sleep(1)  # everything is watched by now
    colours = check_alone(screen, session, report)
    report("and come back when it closes", check_desktop(screen, report, colours))
    check_windows(screen, report)
    after = screen.root.get_full_property(screen.atom("_NET_WORKAREA"), X.AnyPropertyType)
    report("no strip of the screen is reserved", (work and list(work.value)) == (after and list(after.value)))
    session.end()
    sys.exit(report.failed)


main()
