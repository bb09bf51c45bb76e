#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program under a Wayland compositor without the layer shell: xwayland_test.py PROGRAM, under mutter.

It shows its widgets through XWayland by itself: below and above the window of another program, dragged by as much as the
pointer moves, with a menu that ends with a click elsewhere, and arranged until Escape. Pointer and keyboard are the
compositor's own; places, order and who is told of a click come from the X server.
"""
import os
import subprocess

import dbus

from onlooker import PINNED, PLACE, PLAIN, SMALL, WINDOW, Screen, holds, settings
from program import PROGRAM, Session, place_of, steady, wait_for

WIDTH, HEIGHT = map(int, os.environ["AMBRELLE_TEST_EXTENT"].split("x"))
LEFT, ABOVE = 30, 32  # points of a panel left of and above its face
LEFT_BUTTON, RIGHT_BUTTON, ESCAPE = 0x110, 0x111, 1  # as the kernel counts them


class Devices:
    """A pointer and a keyboard, as mutter has them for who sees the desktop from afar."""

    def __init__(self):
        name = "org.gnome.Mutter.RemoteDesktop"
        bus = dbus.SessionBus()
        path = dbus.Interface(bus.get_object(name, "/org/gnome/Mutter/RemoteDesktop"), name).CreateSession()
        self.session = dbus.Interface(bus.get_object(name, path), f"{name}.Session")
        self.session.Start()
        self.place = 0, 0
        self.session.NotifyPointerMotionRelative(-1e5, -1e5)

    def move(self, x, y):
        self.session.NotifyPointerMotionRelative(float(x - self.place[0]), float(y - self.place[1]))
        self.place = x, y

    def press(self, button=LEFT_BUTTON, down=True):
        self.session.NotifyPointerButton(dbus.Int32(button), down)

    def click(self, button=LEFT_BUTTON):
        self.press(button)
        self.press(button, False)

    def key(self, code):
        for down in (True, False):
            self.session.NotifyKeyboardKeycode(dbus.UInt32(code), down)


def middle(face):
    return face[0] + SMALL // 2, face[1] + SMALL // 2


def panel_of(session, face):
    """The window of the widget there, if it stands to the pixel."""
    places = {place[:2]: place for place in session.panels()}
    return places.get((face[0] - LEFT, face[1] - ABOVE))


def order(screen, session):
    """The windows that the compositor manages, from the lowest: "own" ones and "other" ones."""
    mine = set(map(int, session.windows()))
    listed = screen.root.get_full_property(screen.atom("_NET_CLIENT_LIST_STACKING"), 0)
    return ["own" if window in mine else "other" for window in (listed.value if listed else [])]


def beside_a_window(screen, session, devices):
    window = screen.open(PLACE, WINDOW)
    wait_for("the window between the widgets", lambda: holds(
        lambda: screen.covers(window, PLAIN) and screen.covers(window, PINNED)
        and order(screen, session)[-3:] == ["own", "other", "own"]))
    devices.move(*middle(PINNED))
    devices.click()
    devices.move(*middle(PLAIN))
    devices.click()
    wait_for("click in the window", lambda: screen.clicks() == 1)
    window.destroy()
    screen.display.sync()


def dragged(screen, session, devices, face, way):
    """As far as the pointer comes, and it is nowhere caught."""
    def place():
        told = screen.root.query_pointer()
        return told.root_x, told.root_y
    x, y = middle(face)
    devices.move(x, y)
    wait_for("the pointer on the widget", lambda: place() == (x, y))
    devices.press()
    for step in range(1, 21):
        devices.move(x + way[0] * step // 20, y + way[1] * step // 20)
    pointed = steady("the pointer", lambda: place() if place() != (x, y) else None)
    end = face[0] + pointed[0] - x, face[1] + pointed[1] - y
    wait_for("the widget under the pointer", lambda: panel_of(session, end))
    devices.press(down=False)
    stored = [end[0], HEIGHT - end[1] - SMALL]
    wait_for(f"{stored} in the store", lambda: session.widgets()[0]["origin"] == stored)
    assert holds(lambda: panel_of(session, end)), "it did not stay there"
    return end


def has_a_menu(screen, session, devices, face):
    before = set(session.windows())
    for elsewhere in ((WIDTH - 100, 60), middle(PINNED)):
        devices.move(*middle(face))
        devices.click(RIGHT_BUTTON)
        menu = int(wait_for("menu", lambda: [
            window for window in set(session.windows()) - before if place_of(window)[2] < WIDTH])[0])
        x, y = middle(face)
        devices.move(x + 20, y + 20)
        wait_for("the pointer on the menu", lambda: screen.root.query_pointer().child.id == menu)
        devices.move(*elsewhere)
        devices.click()
        wait_for("end of the menu", lambda: set(session.windows()) == before)


def is_arranged(screen, session, devices):
    before = len(session.windows())
    subprocess.run([PROGRAM, "--action", "edit"], env=session.env, check=True)
    wait_for("backdrop", lambda: len(session.windows()) > before)

    def look():
        devices.key(ESCAPE)
        return len(session.windows()) == before
    wait_for("end of it", look)


def main():
    session = Session(settings(HEIGHT))
    session.env["XDG_RUNTIME_DIR"] = os.environ["XDG_RUNTIME_DIR"]  # the compositor is to be found
    screen = Screen()
    devices = Devices()
    session.start()
    wait_for("widgets in their places", lambda: panel_of(session, PLAIN) and panel_of(session, PINNED))
    beside_a_window(screen, session, devices)
    face = dragged(screen, session, devices, PLAIN, (640, -170))
    has_a_menu(screen, session, devices, face)
    is_arranged(screen, session, devices)
    session.end()


main()
