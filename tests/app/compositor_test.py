#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program beside the Wayland compositor of this session, whichever it is: compositor_test.py PROGRAM.

Two widgets, one of them pinned, and a window of another program: they stand where they were stored, below and above the
window; are dragged by as much as the pointer moves, have menus that a click elsewhere ends, and are arranged until Escape.
"""
import os

from layers import Ambrelle, escape_until
from sway import Desktop, Devices, OtherWindows
from waiting import wait_for

WIDTH, HEIGHT = map(int, os.environ["AMBRELLE_TEST_EXTENT"].split("x"))
SMALL = 170  # points of a widget
PLAIN, PINNED = (200, 300), (600, 300)  # upper left corners of the faces
EMPTY, ASIDE = (1100, 150), (1200, 60)  # of the ground; some compositors draw the pointer into pictures
WINDOW = "#2060c0"


class Layout:
    """Where the compositor is asked nothing."""

    pixel = staticmethod(Desktop.pixel)

    @staticmethod
    def extent():
        return 0, 0, WIDTH, HEIGHT


def spot(face):
    """A point of a face where nothing is written."""
    return face[0] + SMALL // 2, face[1] + SMALL - 8


def middle(face):
    return face[0] + SMALL // 2, face[1] + SMALL // 2


def seen(*faces):
    return [Layout.pixel(*spot(face)) for face in faces]


def beside_a_window(devices):
    """A window covers the plain widget and gets the click there; the pinned one stays above and keeps its own."""
    windows = OtherWindows()
    windows.open("other", WINDOW)
    windows.tell("enlarge other")
    wait_for("the window over the plain widget", lambda: Layout.pixel(*spot(PLAIN)) == WINDOW[1:])
    assert Layout.pixel(*spot(PINNED)) != WINDOW[1:], "the pinned widget is covered too"
    devices.move(*middle(PINNED))
    devices.click()

    def entered():  # some windows hear nothing before they have grown
        devices.move(*ASIDE)
        devices.move(*middle(PLAIN))
        while not windows.lines.empty():
            windows.heard.append(windows.lines.get())
        return "other entered" in windows.heard
    wait_for("pointer in the window", entered)
    devices.click()
    x, y = middle(PLAIN)
    windows.expect(f"other pressed {x} {y}")
    assert not [line for line in windows.heard if "pressed" in line], windows.heard
    windows.end()


def dragged(ambrelle, devices, start, way):
    """In line with nothing, so that it stays where it is let go."""
    ground = Layout.pixel(*EMPTY)
    before = [widget["origin"] for widget in ambrelle.settings()["widgets.v2"]]
    x, y = middle(start)
    devices.drag((x, y), *((x + way[0] * step // 20, y + way[1] * step // 20) for step in range(1, 21)))
    end = start[0] + way[0], start[1] + way[1]
    wait_for("the widget under the pointer", lambda: Layout.pixel(*spot(end)) != ground)
    assert Layout.pixel(*spot(start)) == ground, "it is still where it was, too"
    devices.step("release left")
    moved = [before[0][0] + way[0], before[0][1] - way[1]]
    wait_for(f"{moved} in the store", lambda: ambrelle.settings()["widgets.v2"][0]["origin"] == moved)
    assert ambrelle.settings()["widgets.v2"][1]["origin"] == before[1]
    wait_for("the widget where it was dropped", lambda: Layout.pixel(*spot(end)) != ground)
    return end


def has_a_menu(devices, face):
    devices.move(*middle(face))
    x, y = middle(face)
    beside = x + 110, y + 60  # right of the face, where menus open
    plain = Layout.pixel(*beside)
    devices.click("right")
    wait_for("menu", lambda: Layout.pixel(*beside) != plain)
    devices.move(*ASIDE)
    devices.click()
    wait_for("end of the menu", lambda: Layout.pixel(*beside) == plain)


def is_arranged(ambrelle, devices, face):
    devices.move(*ASIDE)
    plain = Layout.pixel(*EMPTY)
    for _ in range(2):
        ambrelle.act("edit")
        wait_for("backdrop", lambda: Layout.pixel(*EMPTY) != plain)
        wait_for("the widgets above it", lambda: Layout.pixel(*EMPTY) not in seen(face, PINNED))
        escape_until(devices, "end of it", lambda: Layout.pixel(*EMPTY) == plain)
    wait_for("the widgets afterwards", lambda: plain not in seen(face, PINNED))


def main():
    widgets = [{"kind": "cpu", "skin": "paper", "pinned": face is PINNED, "origin": [face[0], HEIGHT - face[1] - SMALL]}
               for face in (PLAIN, PINNED)]
    ambrelle = Ambrelle({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "overlap": "show",
                         "widgets.v2": widgets})
    devices = Devices(Layout)
    devices.move(*ASIDE)
    ground = Layout.pixel(*EMPTY)
    try:
        ambrelle.run()
        wait_for("widgets", lambda: ground not in seen(PLAIN, PINNED))
        beside_a_window(devices)
        wait_for("the plain widget without the window", lambda: Layout.pixel(*spot(PLAIN)) != WINDOW[1:])
        wait_for("the ground without the window", lambda: Layout.pixel(*EMPTY) == ground)
        face = dragged(ambrelle, devices, PLAIN, (640, -170))
        face = dragged(ambrelle, devices, face, (-503, 331))
        has_a_menu(devices, face)
        is_arranged(ambrelle, devices, face)
        ambrelle.stop()
    finally:
        devices.end()
        ambrelle.end()


main()
