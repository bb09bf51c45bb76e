#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program and assistive technology on the bus of this test: assistance_test.py PROGRAM.

A client finds the widgets by name, also where it is switched on later than they, reads them, presses the buttons of their
toolbars without a pointer, and hears what these are called from then on.
"""
import time

import dbus

from assistive import Atspi, children, heard, programs
from program import Session, wait_for

BUTTONS = ["Widget Settings…", "Size: 100%", "Pin Above Windows", "Remove Widget"]


def settled(condition):
    """Whether it holds, once what the client was told has been heard."""
    heard()
    return condition()


def widgets():
    return {window.get_name(): window for program in programs() for window in children(program)}


def names(window):
    return [button.get_name() for button in children(window)]


def press(window, name):
    Atspi.Action.do_action(window.get_child_at_index(names(window).index(name)), 0)


def make_session():
    return Session({"hasLaunchedBefore": True, "widgets.v2": [
        {"kind": kind, "skin": "glass", "origin": [x, 300]} for kind, x in (("memory", 200), ("battery", 600))]})


def switch_on():
    status = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)


early = make_session()
early.start()
wait_for("widgets on the screen", lambda: len(early.panels()) == 2)
time.sleep(1)  # nothing tells when it has begun to listen
assert not dbus.SessionBus().name_has_owner("org.a11y.Bus"), "something else has switched it on"
dbus.SessionBus().start_service_by_name("org.a11y.Bus")
time.sleep(1)  # it looked, and nothing was on
switch_on()
wait_for("widgets that were there before", lambda: settled(lambda: set(widgets()) == {"Memory", "Battery"}))
early.end()
wait_for("program gone", lambda: settled(lambda: not any(programs())))

told = []
listener = Atspi.EventListener.new(lambda event: told.append(event.source.get_name()))
listener.register("object:property-change:accessible-name")
session = make_session()
session.start()

wait_for("widgets by their names", lambda: settled(lambda: set(widgets()) == {"Memory", "Battery"}))
memory = widgets()["Memory"]
assert "GB" in memory.get_description(), memory.get_description()
assert names(memory) == BUTTONS, names(memory)
place = Atspi.Component.get_extents(memory, Atspi.CoordType.SCREEN)
# The window manager is as late as it likes; the place told is right all the same.
wait_for(f"panel at {place.x}, {place.y}", lambda: (place.x, place.y, place.width, place.height) in session.panels())

press(memory, "Size: 100%")
press(memory, "Pin Above Windows")
wait_for("the new names", lambda: settled(lambda: told == ["Size: 125%", "Unpin"]))
assert names(memory) == [BUTTONS[0], "Size: 125%", "Unpin", BUTTONS[3]], names(memory)
press(memory, "Remove Widget")
wait_for("one widget less", lambda: settled(lambda: set(widgets()) == {"Battery"}))
wait_for("it stored", lambda: [widget["kind"] for widget in session.widgets()] == ["battery"])
session.end()
