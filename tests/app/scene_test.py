#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Switches the decorations of the desktop off and on by the settings of the main window: scene_test.py PROGRAM.

Without a compositor and, where picom is installed, with one: whether they are seen, stand below the widgets and let
clicks through, and whether the choice outlives a restart.
"""
import os
import shutil
import subprocess
import time

from Xlib import X

from assistive import Atspi, find, open_window, switch_on
from onlooker import Screen
from program import Session, place_of, pointer, screen_size, shot, steady, wait_for
from rootpicture import fill_root

BLUE = 0x336699  # of the desktop's picture
SIDE = 170
FACE = 80, 60  # upper left corner of a clock, whose neon tube stands around it
BESIDE = FACE[0] - 24, FACE[1] + 30, 16, 60  # of the screen, where that tube is
ASIDE = 300  # left edge of the main window, half off the screen
WIDGETS = 2


def settings(height):
    widgets = [{"kind": kind, "skin": "neon", "origin": [x, height - FACE[1] - SIDE]} for kind, x in (("clock", FACE[0]), ("cpu", 470))]
    return {"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "widgets.v2": widgets}


def is_decorated():
    """Whether anything is seen beside the clock but a desktop of one colour, whichever the window manager leaves it."""
    seen = shot(*BESIDE)
    return seen != seen[:3] * (len(seen) // 3)


def open_settings(session):
    window = open_window(session)
    pointer("windowmove", window, str(ASIDE), "40")
    wait_for("window beside the clock", lambda: place_of(window)[0] >= BESIDE[0] + BESIDE[2])
    pointer("key", "ctrl+4")
    wait_for("settings", lambda: find("Search Settings"))
    pointer("key", "ctrl+f", "ctrl+a")
    pointer("type", "--delay", "20", "rings")
    pointer("key", "Return")
    wait_for("keyboard at the switch", lambda: has_keyboard(find("Scene decorations", Atspi.Role.CHECK_BOX)))


def has_keyboard(item):
    return item and item.get_state_set().contains(Atspi.StateType.FOCUSED)


def close_window(session):
    pointer("key", "ctrl+w")
    wait_for("closed window", lambda: not session.main_windows())


def toggle(session, on):
    pointer("key", "space")
    wait_for("stored choice", lambda: session.stored().get("showScene", True) == on)
    wait_for("decorations" if on else "no decorations", lambda: bool(session.scenes()) == on)


def check_shown(session):
    wait_for("decorations", is_decorated)
    order = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], capture_output=True, text=True).stdout
    numbers = [str(int(number, 16)) for number in order.partition("# ")[2].split(",")]
    scene, = session.scenes()
    panels = [panel for panel in session.windows() if panel not in session.main_windows()]
    assert all(numbers.index(scene) < numbers.index(panel) for panel in panels), "not below the widgets"
    x, y, width, height = place_of(scene)
    assert x <= BESIDE[0] and y <= BESIDE[1] and x + width > FACE[0] and y + height > FACE[1], "not about the widgets"


def check_hidden(session):
    wait_for("bare desktop", lambda: not is_decorated())
    assert not session.scenes() and len(session.windows()) - len(session.main_windows()) == WIDGETS


def check_clicks(screen, window):
    """A click at a tube reaches the window below."""
    before = screen.clicks()
    pointer("mousemove", str(BESIDE[0] + 6), str(BESIDE[1] + 30), "sleep", "0.1", "click", "1")
    wait_for("click on the window below", lambda: screen.clicks() > before)
    window.destroy()
    screen.display.sync()


def started(session):
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == WIDGETS)


def run(session):
    started(session)
    wait_for("decorations", session.scenes)
    steady("picture", lambda: shot(*BESIDE))
    check_shown(session)
    open_settings(session)
    for on in (False, True):
        toggle(session, on)
        (check_shown if on else check_hidden)(session)
    toggle(session, False)
    close_window(session)
    session.stop()

    started(session)
    time.sleep(1)  # in which none may appear
    check_hidden(session)
    open_settings(session)
    toggle(session, True)
    close_window(session)
    session.stop()
    started(session)
    wait_for("decorations", session.scenes)
    check_shown(session)
    screen = Screen()
    width, height = screen_size()
    check_clicks(screen, screen.open((0, 0, width, height), 0x406040, "DESKTOP"))


def is_composited(screen):
    return screen.display.get_selection_owner(screen.atom("_NET_WM_CM_S0")) != X.NONE


def main():
    switch_on()
    _, height = screen_size()
    fill_root(BLUE)
    subject = Session(settings(height))
    run(subject)
    subject.end()
    if shutil.which("picom"):
        compositor = subprocess.Popen(["picom", "--config", os.devnull, "--backend", "xrender", "--no-vsync"])
        wait_for("compositor", lambda: is_composited(Screen()))
        subject = Session(settings(height))
        run(subject)
        subject.end(compositor)


main()
