#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program updates itself on a Wayland compositor from a server of this machine: update_wayland_test.py PROGRAM
HELPER KEYS.

The newer version takes over in the same process, with the same environment and no descriptor more; where it crashes in
its first seconds the former one is back. Either way the widget is seen again.
"""
import os
import signal
from pathlib import Path

from installed import NEW, OLD
from program import steady, wait_for
from sway import Desktop
from updating import published

PLACE = (340, 460)  # inside the widget
SETTLED = 3  # seconds in which nothing more is opened


def about(number):
    """The environment, and how many descriptors are open."""
    process = Path(f"/proc/{number}")
    return sorted((process / "environ").read_bytes().split(b"\0")), len(list((process / "fd").iterdir()))


def is_updated(session, shop, empty):
    """Gives the process, which is the newer version once its widget is seen, and what was about it before."""
    session.publish(shop.newer)
    number = session.launch()
    wait_for("widget", lambda: Desktop.pixel(*PLACE) != empty)
    before = steady("environment and descriptors", lambda: about(number), SETTLED)
    session.take_update()
    wait_for("newer version", lambda: session.has_become(shop.whole, number))
    wait_for("its widget", lambda: Desktop.pixel(*PLACE) != empty)
    return number, before


def main():
    os.environ["WAYLAND_DISPLAY"] = os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"])
    empty = Desktop.pixel(*PLACE)
    with published("works", "crashes") as (shop, _, (works, crashes)):
        number, before = is_updated(works, shop, empty)
        wait_for("removal of the former version", works.is_tidy)
        environment, descriptors = before
        wait_for("as few descriptors", lambda: about(number)[1] <= descriptors)
        assert about(number)[0] == environment
        works.quit(number)
        works.check(shop.whole)
        wait_for("empty screen", lambda: Desktop.pixel(*PLACE) == empty)
        number, _ = is_updated(crashes, shop, empty)
        os.kill(number, signal.SIGSEGV)
        crashes.gone(number)
        former = wait_for("former version", crashes.running)
        assert crashes.version() == OLD and crashes.stored()["rejectedUpdate"] == NEW
        wait_for("its widget", lambda: Desktop.pixel(*PLACE) != empty)
        wait_for("removal of the newer version", crashes.is_tidy)
        crashes.quit(former)
        crashes.check(crashes.whole)


main()
