#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs the whole program on the display of this test: overlap_test.py PROGRAM.

Another program's window is moved under a pinned widget and away again. With a compositor (where picom is installed) the
widget fades or goes, without one it is out of sight; clicks at its place reach the other window while it gives way.
"""
import json
import os
import shutil
import subprocess
import time

from Xlib import X, display

from program import Session, pointer, screen_size, shot, steady, wait_for

LIMIT = 0.8 + 0.25  # seconds until a widget has given way, or has come back
PLACE = (200, 200, 170, 170)  # of the widget, from the upper left corner of the screen
AWAY = (800, 420)


class OtherProgram:
    """A window of 300 × 250 pixels that counts clicks."""

    def __init__(self):
        self.display = display.Display()
        screen = self.display.screen()
        self.window = screen.root.create_window(*AWAY, 300, 250, 0, screen.root_depth, X.InputOutput, X.CopyFromParent,
                                                background_pixel=0x2060C0, event_mask=X.ButtonPressMask)
        self.window.set_wm_normal_hints(flags=1, min_width=0)  # its position is meant
        self.window.map()
        self.display.sync()

    def move(self, x, y):
        subprocess.run(["xdotool", "windowmove", str(self.window.id), str(x), str(y)], check=True)

    def clicks(self):
        self.display.sync()
        return sum(self.display.next_event().type == X.ButtonPress for _ in range(self.display.pending_events()))


def opacity(panel):
    shown = subprocess.run(["xprop", "-id", panel, "_NET_WM_WINDOW_OPACITY"], capture_output=True, text=True).stdout
    return int(shown.partition(" = ")[2]) / 0xFFFFFFFF if " = " in shown else 1.0


def is_composited():
    look = display.Display()
    owner = look.get_selection_owner(look.intern_atom("_NET_WM_CM_S0"))
    look.close()
    return owner != X.NONE


def pixel(x, y):
    return shot(x, y, 1, 1).hex()


def reaches(other, expected):
    """Whether a click at the widget's place comes to the other window."""
    x, y = PLACE[0] + PLACE[2] // 2, PLACE[1] + PLACE[3] // 2
    pointer("mousemove", str(x), str(y), "sleep", "0.1", "click", "1", "sleep", "0.1")
    if expected:
        wait_for("click on the window below", lambda: other.clicks() == 1)
    assert not other.clicks(), "too many clicks reached the window below"


def gives_way(panel, other, target):
    """Moves the window under the widget and away; gives the seconds each of them took to show."""
    times = []
    for place, wanted in (((120, 150), target), (AWAY, 1.0)):
        began = time.monotonic()
        other.move(*place)
        wait_for(f"opacity of {wanted}", lambda: abs(opacity(panel) - wanted) < 0.001)
        times.append(time.monotonic() - began)
        reaches(other, wanted < 1)
    return times


def gives_way_in_time(panel, other, target):
    """A busy machine may need longer now and then, but not every time."""
    rounds = []
    while not rounds or max(rounds[-1]) >= LIMIT:
        assert len(rounds) < 10, f"it took {rounds} s"
        rounds.append(gives_way(panel, other, target))
    return rounds[-1]


def run(session, overlap, composited):
    _, height = screen_size()
    origin = [PLACE[0], height - PLACE[1] - PLACE[3]]
    session.store.write_text(json.dumps({
        "hasLaunchedBefore": True, "overlap": overlap, "clickToOpen": False,
        "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": origin, "pinned": True}]}))
    session.start()
    panel = wait_for("widget", session.windows)[0]
    middle = (PLACE[0] + PLACE[2] // 2, PLACE[1] + PLACE[3] - 8)
    face, other = steady("face", lambda: pixel(*middle)), OtherProgram()
    times = gives_way_in_time(panel, other, 0.0 if overlap == "hide" else 0.18)
    print(f"{overlap}, {'composited' if composited else 'bare'}: covered after {times[0]:.2f} s, back after {times[1]:.2f} s")
    other.move(120, 150)
    wait_for("faded widget", lambda: opacity(panel) < 0.2)
    if overlap == "hide" or not composited:
        wait_for("the window below in its place", lambda: pixel(*middle) == "2060c0")
    else:
        wait_for("a ghost of the widget", lambda: pixel(*middle) not in ("2060c0", face))
    other.move(*AWAY)
    wait_for("the whole widget", lambda: opacity(panel) == 1.0 and pixel(*middle) == face)
    session.stop()
    other.display.close()


subject = Session()
run(subject, "fade", False)
if shutil.which("picom"):
    compositor = subprocess.Popen(["picom", "--config", os.devnull, "--backend", "xrender", "--no-vsync"])
    wait_for("compositor", is_composited)
    run(subject, "fade", True)
    run(subject, "hide", True)
    compositor.terminate()
    compositor.wait()
shutil.rmtree(subject.home)
