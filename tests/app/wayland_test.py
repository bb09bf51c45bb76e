#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program on a Wayland compositor: widgets are there, are dragged by as much as the pointer moves, have menus
that a click elsewhere ends, are arranged until Escape, and go to the screen that is left when theirs is unplugged. The
program's path is the first argument."""
from layers import Ambrelle, escape_until
from sway import Desktop, Devices
from waiting import wait_for


def first_start(ambrelle, desktop):
    """The main window opens once; what remains is the desktop with its widgets."""
    ambrelle.run()
    wait_for("main window", lambda: "Ambrelle" in desktop.windows())
    wait_for("widgets", lambda: len(ambrelle.widgets()) == 12)
    desktop.command('[title="Ambrelle"] kill')
    wait_for("closed window", lambda: "Ambrelle" not in desktop.windows())


def middle(widget, desktop):
    """A point of the layout inside a widget, as it is stored (y up, from the screen's lower left corner)."""
    output = desktop.outputs()["WL-1"]["rect"]
    x, y = widget["origin"]
    return round(output["x"] + x + 40), round(output["y"] + output["height"] - y - 40)


def is_dragged_exactly(ambrelle, desktop, devices):
    before = ambrelle.widgets()["clock"]["origin"]
    x, y = middle(ambrelle.widgets()["clock"], desktop)
    empty = desktop.pixel(x + 420, y + 130)
    devices.drag((x, y), *((x + 20 * step, y + 6 * step) for step in range(1, 21)))
    wait_for("the widget under the pointer", lambda: desktop.pixel(x + 420, y + 130) != empty)
    devices.step("release left")

    def moved():
        now = ambrelle.widgets()["clock"]["origin"]
        return abs(now[0] - before[0] - 400) < 12 and abs(now[1] - before[1] + 120) < 12  # it meets a neighbour's edge
    wait_for("the new place in the store", moved)


def has_a_menu(ambrelle, desktop, devices):
    x, y = middle(ambrelle.widgets()["battery"], desktop)
    devices.move(x, y)
    beside = (x + 120, y - 100)
    plain = desktop.pixel(*beside)
    devices.click("right")
    wait_for("menu", lambda: desktop.pixel(*beside) != plain)
    devices.move(1200, 60)
    devices.click()
    wait_for("end of the menu", lambda: desktop.pixel(*beside) == plain)


def is_arranged_until_escape(ambrelle, desktop, devices):
    devices.move(1200, 60)
    plain = desktop.pixel(640, 700)
    ambrelle.act("edit")
    wait_for("backdrop", lambda: desktop.pixel(640, 700) != plain)
    escape_until(devices, "end of it", lambda: desktop.pixel(640, 700) == plain)


def moves_to_the_screen_that_is_left(ambrelle, desktop):
    """Unplugged, a screen's widgets show on the other one, and keep their home."""
    before = ambrelle.widgets()
    x, y = middle(before["clock"], desktop)
    shown = desktop.pixel(x, y)
    other = desktop.outputs()["WL-2"]["rect"]["x"]
    assert desktop.pixel(other + x, y) != shown
    desktop.unplug("WL-1")
    wait_for("the clock on the other screen", lambda: desktop.pixel(other + x, y) == shown)
    desktop.plug()
    wait_for("two screens", lambda: len(desktop.outputs()) == 2)
    wait_for("the homes", lambda: ambrelle.widgets() == before)
    assert ambrelle.process.poll() is None, ambrelle.process.stderr.read()


def main():
    desktop = Desktop()
    devices = Devices(desktop)
    ambrelle = Ambrelle()
    try:
        first_start(ambrelle, desktop)
        is_dragged_exactly(ambrelle, desktop, devices)
        has_a_menu(ambrelle, desktop, devices)
        is_arranged_until_escape(ambrelle, desktop, devices)
        moves_to_the_screen_that_is_left(ambrelle, desktop)
        ambrelle.stop()
    finally:
        devices.end()
        ambrelle.end()


main()
