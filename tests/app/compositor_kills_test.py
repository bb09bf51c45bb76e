#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Kills the compositor while the program runs: compositor_kills_test.py PROGRAM [ROUNDS [SEED]], in a session of Sway.

Each round has another Sway, which is killed while a widget is dragged or a setting is switched over and over, or a moment
after with the button still held. The program ends with a sentence and status 1. What is stored is whole and a state that
was asked for, the last one if there was time to store it; and under the next Sway all twelve widgets show.
"""
import contextlib
import os
import queue
import random
import sys
import tempfile
import threading
import time
from pathlib import Path

from layers import Ambrelle
from sway import Desktop, Devices
from waiting import PATIENCE, wait_for
from with_sway import sway

ROUNDS = int(sys.argv[2]) if len(sys.argv) > 2 else 5
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
TIME_TO_STORE = 1.5  # seconds; a change is stored well within one
NEAR = 12  # points that a widget may be drawn to another one's edge
WIDTH, HEIGHT = 1600, 1000
dice = random.Random(SEED)


class Compositor:
    """A Sway that may be killed; while it runs, what is started goes there."""

    def __init__(self, folder):
        base = {name: value for name, value in os.environ.items() if name not in ("WAYLAND_DISPLAY", "SWAYSOCK", "DISPLAY")}
        self.process, clients = sway(folder, [f"{WIDTH}x{HEIGHT}"], base)
        os.environ.update(clients)
        self.desktop = Desktop()
        self.devices = Devices(self.desktop)

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.devices.process.kill()
        self.devices.process.wait()
        self.devices.lines.put("gone")


class Drag:
    """Of the clock, to the right or back, over no other widget."""

    def __init__(self, ambrelle, compositor):
        self.devices = compositor.devices
        self.start = ambrelle.widgets()["clock"]["origin"]
        self.way = 3 if self.start[0] < WIDTH / 4 else -3
        self.asked = 0
        self.grip = self.start[0] + 40, HEIGHT - self.start[1] - 40
        self.devices.move(*self.grip)
        self.devices.step("press left")

    def step(self):
        self.asked += 1
        if self.asked < 120:
            self.devices.move(self.grip[0] + self.way * self.asked, self.grip[1])

    def place(self, step):
        return self.start[0] + self.way * min(step, 119)

    def fits(self, ambrelle, only_the_last):
        found = ambrelle.widgets()["clock"]["origin"]
        steps = [self.asked] if only_the_last else range(self.asked + 2)
        return found[1] == self.start[1] and any(abs(found[0] - x) <= NEAR for x in map(self.place, steps))


class Switch:
    """Of the lock that keeps widgets in their places."""

    def __init__(self, ambrelle, _):
        self.ambrelle = ambrelle
        self.start = ambrelle.settings().get("locked", False)
        self.asked = 0

    def step(self):
        self.asked += 1
        self.ambrelle.act("lock")

    def fits(self, ambrelle, only_the_last):
        return not only_the_last or ambrelle.settings().get("locked", False) == (self.start ^ (self.asked % 2 == 1))


def spots(ambrelle):
    """A point of the layout inside each widget."""
    origins = [widget["origin"] for widget in ambrelle.settings()["widgets.v2"]]
    return [(round(x + 40), round(HEIGHT - y - 40)) for x, y in origins]


def other_places(ambrelle):
    """Of the widgets that no gesture is about."""
    return {kind: widget["origin"] for kind, widget in ambrelle.widgets().items() if kind != "clock"}


def shown(ambrelle, compositor):
    """Starts the program and waits until all twelve widgets show."""
    points = spots(ambrelle)
    assert len(points) == 12, points
    ground = [compositor.desktop.pixel(*point) for point in points]
    ambrelle.env.update({name: os.environ[name] for name in ("WAYLAND_DISPLAY", "SWAYSOCK")})
    ambrelle.run()
    wait_for("twelve widgets", lambda: all(
        compositor.desktop.pixel(*point) != bare for point, bare in zip(points, ground)))


def first_start(ambrelle, compositor):
    """Leaves twelve widgets, and has closed the window that opens then."""
    ambrelle.env.update({name: os.environ[name] for name in ("WAYLAND_DISPLAY", "SWAYSOCK")})
    ambrelle.run()
    wait_for("main window", lambda: "Ambrelle" in compositor.desktop.windows())
    wait_for("widgets", lambda: len(ambrelle.widgets()) == 12)
    compositor.desktop.command('[title="Ambrelle"] kill')
    wait_for("closed window", lambda: "Ambrelle" not in compositor.desktop.windows())
    ambrelle.stop()


def perform(gesture, stopped):
    with contextlib.suppress(AssertionError, OSError, queue.Empty):  # the compositor ended first
        while not stopped.is_set():
            gesture.step()
            time.sleep(0.01)


def killed(ambrelle, compositor, gesture, rests):
    """Kills the compositor in the middle of the gesture; or, if it rests then, at its end."""
    stopped = threading.Event()
    hand = threading.Thread(target=perform, args=(gesture, stopped), daemon=True)
    hand.start()
    time.sleep(0.1 + dice.random())
    if rests:
        stopped.set()
        hand.join()
        time.sleep(TIME_TO_STORE)
    compositor.kill()
    stopped.set()
    hand.join()
    status = ambrelle.process.wait(PATIENCE)
    said = ambrelle.process.stderr.read()
    assert status == 1, f"ended with {status}: {said}"
    assert "compositor" in said.strip().rpartition("\n")[2], said


def main():
    print(f"seed {SEED}", flush=True)
    ambrelle = Ambrelle()
    counts = {}
    with tempfile.TemporaryDirectory(prefix="ambrelle-kills-") as folder:
        Path(folder).chmod(0o755)
        compositor = Compositor(Path(folder, "first"))
        first_start(ambrelle, compositor)
        for number in range(ROUNDS):
            shown(ambrelle, compositor)
            others = other_places(ambrelle)
            locked = ambrelle.settings().get("locked", False)
            kind, rests = (Switch if locked or number % 3 == 2 else Drag), dice.random() < 0.5
            gesture = kind(ambrelle, compositor)
            killed(ambrelle, compositor, gesture, rests)
            names = sorted(file.name for file in ambrelle.store.parent.iterdir())
            assert not [name for name in names if "damaged" in name], names
            assert gesture.fits(ambrelle, rests), f"round {number}: {gesture.__dict__}, found {ambrelle.settings()}"
            assert other_places(ambrelle) == others
            key = kind.__name__ + (" at rest" if rests else "")
            counts[key] = counts.get(key, 0) + 1
            compositor = Compositor(Path(folder, str(number)))
        shown(ambrelle, compositor)
        ambrelle.stop()
        compositor.kill()
        ambrelle.end()
    print(f"{ROUNDS} kills, nothing lost:", ", ".join(f"{count} {what}" for what, count in sorted(counts.items())))


main()
