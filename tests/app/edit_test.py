#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Edit mode of the whole program on the display of this test: edit_test.py PROGRAM.

It is started from the menu. A dragged widget comes in line with another one and is stored there, one dragged over another stays
above it, a click on a face ends nothing, the backdrops follow the screens, and Escape or a click on an empty spot brings everything
back, the keyboard too.
"""
import subprocess

from Xlib import X
from Xlib.error import BadWindow

from onlooker import WINDOW, Screen, holds
from program import Session, hover, pointer, screen_size, two_screens, wait_for, window_with_keyboard
from status_host import StatusHost

LEFT, ABOVE = 30, 32  # points of a panel left of and above its face
SMALL = 170
WIDGETS = [{"kind": "cpu", "skin": "glass", "origin": [300, 500]}, {"kind": "disk", "skin": "glass", "origin": [700, 200]}]


def describe(window, *properties):
    return subprocess.run(["xprop", "-id", window, *properties], capture_output=True, text=True).stdout


def backdrops(session):
    return [window for window in session.windows() if "_NET_WM_WINDOW_TYPE_NORMAL" in describe(window)]


def has_focus(session):
    return window_with_keyboard() in map(int, backdrops(session))


def face(widget, height):
    """The middle of its face in pixels of the screen."""
    x, y = widget["origin"]
    return x + SMALL / 2, height - y - SMALL / 2


def drag(start, by):
    x, y = start
    hover(x, y)
    pointer("mousedown", "1")
    for step in range(1, 21):
        pointer("mousemove", str(int(x + by[0] * step / 20)), str(int(y + by[1] * step / 20)))
    pointer("sleep", "0.1", "mouseup", "1")


def begin(session, host, count=1):
    host.choose(lambda line: "Edit" in str(line.get("label")))
    wait_for("backdrop on every screen", lambda: len(backdrops(session)) == count)
    wait_for("keyboard at a backdrop", lambda: has_focus(session))


def ended(session):
    wait_for("end of edit mode", lambda: not backdrops(session))
    wait_for("widgets below windows", lambda: len(session.panels()) == len(WIDGETS) and not any(
        "_NET_WM_STATE_ABOVE" in describe(window, "_NET_WM_STATE") for window in session.windows()))


def arrange(session, host, height):
    begin(session, host)
    start = face(WIDGETS[1], height)
    drag(start, (300 - 700 + 4, 0))  # to within four points of the other one's left edge
    wait_for("stored place in line", lambda: session.widgets()[1]["origin"] == [300, 200])
    wait_for("panel in line", lambda: any(
        panel[:2] == (300 - LEFT, height - 200 - SMALL - ABOVE) for panel in session.panels()))
    wait_for("end of the guides", lambda: len(session.windows()) == len(WIDGETS) + 1)
    assert backdrops(session), "a drag ended edit mode"
    pointer("click", "1")
    pointer("sleep", "0.3")
    assert backdrops(session), "a click on a face ended edit mode"
    pointer("mousemove", "1100", "400", "sleep", "0.2", "click", "1")
    ended(session)


def stack(session):
    """The program's windows from bottom to top, whoever put a frame round them."""
    mine = {int(window) for window in session.windows()}

    def within(window):
        try:
            children = window.query_tree().children
        except BadWindow:  # closed since its parent was asked, as window managers do with helpers of theirs
            return
        for child in children:
            yield child
            yield from within(child)

    screen = Screen()
    order = [window.id for window in within(screen.root) if window.id in mine]
    screen.display.close()
    return order


def stay_on_top(session, host, height):
    """The older widget is dragged over the newer one, which lay above it."""
    older, newer = before = stack(session)

    def order():
        return [window for window in stack(session) if window in before]
    begin(session, host)
    wait_for("the same order in edit mode", lambda: holds(lambda: order() == [older, newer]), 15)
    drag(face(WIDGETS[0], height), (60, 230))
    wait_for("stored place", lambda: session.widgets()[0]["origin"][1] < 300)
    wait_for("dragged widget on top", lambda: holds(lambda: order() == [newer, older]), 15)
    pointer("key", "Escape")
    ended(session)
    wait_for("dragged widget on top afterwards", lambda: holds(lambda: order() == [newer, older]), 15)


def follow_screens(session, host, width, height):
    begin(session, host)
    with two_screens(width, height):
        wait_for("backdrop on the new screen", lambda: len(backdrops(session)) == 2)
        wait_for("keyboard at one of them", lambda: has_focus(session))
    wait_for("single backdrop", lambda: len(backdrops(session)) == 1)
    wait_for("keyboard at it", lambda: has_focus(session))
    pointer("key", "Escape")
    ended(session)


def return_keyboard(session, host):
    screen = Screen()
    other = screen.open((600, 100, 300, 200), WINDOW)
    other.set_input_focus(X.RevertToPointerRoot, X.CurrentTime)
    screen.display.sync()
    wait_for("keyboard at the other window", lambda: screen.focus() == other.id)
    begin(session, host)
    pointer("key", "Escape")
    ended(session)
    wait_for("keyboard where it was before", lambda: screen.focus() == other.id)
    screen.display.close()


def main():
    width, height = screen_size()
    host = StatusHost()
    session = Session({"hasLaunchedBefore": True, "animations": False, "widgets.v2": WIDGETS})
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == len(WIDGETS))
    wait_for("tray item", lambda: host.iterate() or host.item)
    arrange(session, host, height)
    stay_on_top(session, host, height)
    follow_screens(session, host, width, height)
    return_keyboard(session, host)
    begin(session, host)
    session.end()
    host.close()
    print("arranged in line, followed the screens, ended by a click and by Escape, gave back the keyboard")


main()
