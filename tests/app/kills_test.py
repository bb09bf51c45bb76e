#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Kills the running program in the middle of gestures: kills_test.py PROGRAM [ROUNDS [SEED]].

A widget is dragged, its size is changed by its toolbar, the opacity is swept and a switch clicked in its settings; at a
random moment the program is stopped, what it has told until then is noted (places and sizes of its windows, values that
assistive technology heard), and it is killed. After the restart nothing of that may be missing: what holds is a state that
was told, or a later one that had been asked for. Other widgets stay as they were, and no file is damaged.
"""
import contextlib
import random
import signal
import sys
import threading
import time

import dbus

from assistive import Atspi, GLib
from program import Session, hover, pointer, shot, wait_for

ROUNDS = int(sys.argv[2]) if len(sys.argv) > 2 else 15
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 800
FACE, MARGIN, ABOVE = 170, 30, 32  # points of a face, and of its window beside, below and above it
TOOLBAR_WIDTH, TOOLBAR_HEIGHT, BUTTONS = 196, 32, 4
SLIDER, SWITCH = (114, 310, 108), (124, 71)  # of a widget's settings, from their left (twice) and from their bottom
SIZES = [0.75, 1, 1.25, 1.5, 350 / 170]
SCALES = ["small", "medium", "large", "huge", "double"]
PAUSE = 0.012  # seconds between the steps of a gesture
OTHER = [800, 100]
REST = 0.2  # seconds until window manager and bus have passed on what they were told
dice = random.Random(SEED)
heard = []  # what assistive technology was told: kind and value


def listen():
    """Hears in a thread of its own what the program tells; a change of value is told by asking for the new one."""
    status = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)

    def ask(event):
        with contextlib.suppress(GLib.Error):  # it was killed before it answered
            heard.append(("value", Atspi.Value.get_current_value(event.source)))

    def note(event):
        heard.append(("checked", event.detail1))

    def run():
        listeners = [Atspi.EventListener.new(ask), Atspi.EventListener.new(note)]
        listeners[0].register("object:property-change:accessible-value")
        listeners[1].register("object:state-changed:checked")
        GLib.MainLoop().run()
    threading.Thread(target=run, daemon=True).start()


class Gesture:
    """A row of states that are asked for one after the other. `asked` is the index of the last; the first is what holds
    in the beginning."""

    def __init__(self, session):
        self.session = session
        self.asked = 0

    def perform(self, stopped):
        for _ in range(1, len(self.states)):
            if stopped.is_set():
                break
            self.asked += 1
            self.step(self.states[self.asked])
            time.sleep(self.pause * dice.random() * 2)
        if not stopped.is_set():
            self.complete()

    def complete(self):
        pass

    def fits(self, told, found):
        """Whether what is found comes from a state told last, or from one asked for since."""
        return any(self.states[index] == found
                   for last in range(self.asked + 1) if self.states[last] == told
                   for index in range(last, self.asked + 1))


def window(session):
    """Place and size of the window of the widget that gestures are about."""
    return next((panel for panel in session.panels() if panel[:2] != other_window(session)[:2]), None)


def other_window(session):
    return (OTHER[0] - MARGIN, SCREEN_HEIGHT - OTHER[1] - FACE - ABOVE, 0, 0)


def unfold_toolbar(session):
    """The place of the toolbar's buttons, once it is shown."""
    x, y, width, height = window(session)
    area = x + (width - TOOLBAR_WIDTH) // 2, y, TOOLBAR_WIDTH, TOOLBAR_HEIGHT
    bare = shot(*area)
    hover(x + width // 2, y + height - MARGIN - 50)
    wait_for("toolbar", lambda: shot(*area) != bare)
    return [(area[0] + TOOLBAR_WIDTH * (2 * button + 1) // (2 * BUTTONS), y + TOOLBAR_HEIGHT // 2) for button in range(BUTTONS)]


class Drag(Gesture):
    pause = PAUSE

    def __init__(self, session):
        super().__init__(session)
        x, y, width, height = window(session)
        right = 1 if x < SCREEN_WIDTH // 4 else -1
        up = 1 if y < 300 else -1
        self.states = [(x + 5 * right * i, y + 3 * up * i) for i in range(40)]
        self.grip = x + width // 2, y + height - MARGIN - 50
        hover(*self.grip)
        pointer("keydown", "shift", "mousedown", "1")  # with Shift nothing catches the widget on its way

    def step(self, place):
        (x, y), (startX, startY) = place, self.states[0]
        pointer("mousemove", str(self.grip[0] + x - startX), str(self.grip[1] + y - startY))

    def complete(self):
        pointer("mouseup", "1")

    def told(self):
        return window(self.session)[:2]

    found = told


class Resize(Gesture):
    pause = 0.1

    def __init__(self, session):
        super().__init__(session)
        buttons = unfold_toolbar(session)
        now = session.widgets()[0]["scale"]
        # Elsewhere the toolbar moves with the size.
        self.states = [now, SCALES[(SCALES.index(now) + 1) % len(SCALES)]]
        self.place = buttons[1]

    def step(self, _):
        pointer("mousemove", *map(str, self.place), "click", "1")

    def told(self):
        height = window(self.session)[3] - ABOVE - MARGIN  # small ones are as wide as their toolbar
        return SCALES[min(range(len(SCALES)), key=lambda i: abs(SIZES[i] * FACE - height))]

    found = told


class InSettings(Gesture):
    def __init__(self, session):
        super().__init__(session)
        pointer("mousemove", *map(str, unfold_toolbar(session)[0]), "sleep", "0.1")
        before = set(session.panels())
        pointer("click", "1")
        left, top, _, height = wait_for("settings", lambda: set(session.panels()) - before).pop()
        self.left, self.bottom = left, top + height
        time.sleep(REST)
        heard.clear()

    def told(self):
        values = [value for kind, value in heard if kind == self.kind]
        return self.read(values[-1]) if values else self.states[0]


class Sweep(InSettings):
    kind, pause = "value", PAUSE

    def __init__(self, session):
        super().__init__(session)
        now = self.found()
        self.states = list(range(now, 101)) if now < 50 else list(range(now, -1, -1))
        self.step(now)
        pointer("mousedown", "1")
        time.sleep(REST)  # the press may have moved it by itself
        self.states[0] = self.told() if heard else now

    def step(self, percent):
        left, right, above = SLIDER
        pointer("mousemove", str(self.left + left + (right - left) * percent // 100), str(self.bottom - above))

    def complete(self):
        pointer("mouseup", "1")

    @staticmethod
    def read(value):
        return round(value)

    def found(self):
        return round(self.session.widgets()[0].get("opacity", 1) * 100)

    def fits(self, told, found):
        """Between what was told last and what was asked for, a percent more or less for the handle's width."""
        low, high = sorted((told, self.states[self.asked]))
        forward = self.states[-1] >= self.states[0]
        return (low <= found <= high + 2) if forward else (low - 2 <= found <= high)


class Switch(InSettings):
    kind, pause = "checked", 0.08

    def __init__(self, session):
        super().__init__(session)
        now = self.found()
        self.states = [now ^ (i % 2 == 1) for i in range(6)]

    def step(self, _):
        right, above = SWITCH
        pointer("mousemove", str(self.left + right), str(self.bottom - above), "click", "1")

    @staticmethod
    def read(value):
        return bool(value)

    def told(self):
        """Counted: the same state comes back."""
        self.count = len([kind for kind, _ in heard if kind == self.kind])
        return self.states[self.count]

    def found(self):
        return self.session.widgets()[0].get("border", False)

    def fits(self, told, found):
        return found in self.states[self.count:self.asked + 1]


def whole_files(session):
    names = sorted(file.name for file in session.store.parent.iterdir())
    assert not [name for name in names if "damaged" in name], names
    session.stored()


def killed(session, gesture):
    """Performs the gesture, kills the program at some moment of it, and gives the state that it has told."""
    stopped = threading.Event()
    hand = threading.Thread(target=gesture.perform, args=(stopped,))
    duration = gesture.pause * len(gesture.states) * 1.5 + 0.2
    hand.start()
    time.sleep(dice.random() * duration)
    session.process.send_signal(signal.SIGSTOP)
    stopped.set()
    hand.join()
    time.sleep(REST)
    told = gesture.told()
    session.process.kill()
    assert session.process.wait() == -signal.SIGKILL, "it ended by itself"
    pointer("mouseup", "1", "keyup", "shift", "mousemove", "1", "1")
    assert not (said := session.process.stderr.read()), said
    return told


def main():
    print(f"seed {SEED}")
    listen()
    session = Session({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "widgets.v2": [
        {"kind": "countdown", "skin": "glass", "origin": [200, 200], "scale": "medium", "opacity": 0.5, "border": False},
        {"kind": "countdown", "skin": "paper", "origin": OTHER, "scale": "medium", "pinned": False}]})
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == 2)
    results = {}
    for number in range(ROUNDS):
        gesture = dice.choice([Drag, Drag, Resize, Sweep, Switch])(session)
        told = killed(session, gesture)
        whole_files(session)
        session.start()
        wait_for("widgets after the kill", lambda: len(session.panels()) == 2)
        kind = type(gesture).__name__
        wait_for(f"{kind} in round {number}: told {told}, asked for {gesture.states[:gesture.asked + 1]}, found",
                 lambda: gesture.fits(told, gesture.found()), 5)
        other = session.widgets()[1]
        assert (other["origin"], other["skin"], other["scale"]) == (OTHER, "paper", "medium"), other
        counts = results.setdefault(kind, [0, 0])
        counts[0] += 1
        counts[1] += 0 < gesture.asked < len(gesture.states) - 1 or len(gesture.states) == 2
    session.end()
    print(f"{ROUNDS} kills, nothing lost:",
          ", ".join(f"{kind} {count} ({middle} in the middle)" for kind, (count, middle) in sorted(results.items())))


main()
