#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Screens that come, go and change while the whole program runs on the display of this test: screens_test.py PROGRAM.

Fifty random steps of a display split in monitors; whenever they are as at the start, every widget is where it was at the
start, to the pixel. None of the records names a display. A crowded desktop does not become a heap on a small screen.
"""
import random
import subprocess
import time

from program import Session, screen_size, steady, wait_for

STEPS = 50
SETTLED = 0.8  # seconds; longer than the program waits for screens to come to rest
TOLD = 10  # seconds in which what the server tells has long arrived
MARGIN, STRIP = 30, 32  # points of a panel beside and above its face

WIDGETS = [{"kind": kind, "skin": "glass", "origin": origin} for kind, origin in (
    ("clock", [20, 600]), ("cpu", [20, 420]), ("memory", [200, 420]), ("disk", [730, 20]), ("quote", [400, 100]),
    ("network", [900, 600]), ("sky", [1090, 20]))]


def monitors(width, height):
    """What the display may be split in: name, width, height, left and upper edge of each monitor."""
    wide = width * 7 // 10
    side = ("SIDE", width - wide, height, wide, 0)
    home = [("WIDE", wide, height, 0, 0), side]
    return home, [
        [("WIDE", wide, height, 0, 0)],  # one unplugged
        [side],
        [("WIDE", wide * 3 // 4, height * 3 // 4, 0, 0), side],  # smaller
        [("WIDE", width, height, 0, 0)],  # larger
        [("WIDE", height // 2, height, 0, 0), side],  # on its side
        [("WIDE", wide, height, 0, 0), ("SIDE", wide, height, 0, 0)],  # mirrored
        [("SIDE", width - wide, height, 0, 0), ("WIDE", wide, height, width - wide, 0)],  # the other way round
        [("OTHER", width * 4 // 5, height * 4 // 5, width // 7, 0)],
        [],  # one screen over all of it
    ]


def arrange(screens):
    told = subprocess.run(["xrandr", "--listmonitors"], check=True, capture_output=True, text=True).stdout
    for line in told.splitlines()[1:]:
        name = line.split()[1].lstrip("+*")
        if name.isupper():
            subprocess.run(["xrandr", "--delmonitor", name], check=True)
    for number, (name, width, height, x, y) in enumerate(screens):
        place = f"{width}/{width // 4}x{height}/{height // 4}+{x}+{y}"
        subprocess.run(["xrandr", "--setmonitor", name, place, "none" if number else "screen"],
                       check=True, stdout=subprocess.DEVNULL)


def panels(session):
    """Where each window is, so that two that changed places are told apart."""
    places = {}
    for window in session.windows():
        shell = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window], capture_output=True, text=True)
        places[window] = tuple(shell.stdout.split()[1:5])
    return places


def go_home(session, home, before, step):
    """Whether the screens had to be told twice: after one of some five hundred quick changes the toolkit itself, without any
    of this program's code, goes on reporting the screens as they were one change before the last."""
    arrange(home)
    deadline = time.monotonic() + TOLD
    while panels(session) != before:
        if time.monotonic() > deadline:
            arrange([])
            arrange(home)
            wait_for(f"widgets at home after step {step}", lambda: panels(session) == before)
            return True
        time.sleep(0.05)
    return False


def come_home(session, width, height):
    home, others = monitors(width, height)
    arrange(home)
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == len(WIDGETS))
    before = steady("places", lambda: panels(session), SETTLED)
    choice = random.Random(20261122)
    away = again = 0
    for step in range(STEPS):
        arrange(choice.choice(others))
        if choice.random() < 0.5:  # else the next change comes before this one has settled
            time.sleep(SETTLED)
            away += panels(session) != before
        if choice.random() < 0.4 or step == STEPS - 1:
            again += go_home(session, home, before, step)
            time.sleep(SETTLED)
            assert panels(session) == before, f"step {step}: they left again"
    assert away > 10, f"they left {away} times only: the test shows nothing"
    assert again <= 1, f"the screens had to be told again {again} times"
    session.stop()


def faces(session):
    """Left, upper, right and lower edge of as much of each face as is as wide as high: panels do not tell how wide it is."""
    return [(x + MARGIN, y + STRIP, x + MARGIN + height - STRIP - MARGIN, y + height - MARGIN)
            for x, y, _, height in session.panels()]


def heap(places):
    return [(a, b) for i, a in enumerate(places) for b in places[:i]
            if a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]]


def keep_apart(session, width, height):
    """A whole layout on a quarter of the screen."""
    arrange([])
    session.start()
    wait_for("layout", lambda: len(session.panels()) > 8)
    session.dismiss_welcome()
    before = steady("places", lambda: panels(session), SETTLED)
    layout = faces(session)
    assert not heap(layout), heap(layout)
    arrange([("QUARTER", width // 2, height // 2, 0, height // 2)])
    wait_for("widgets on the small screen", lambda: all(
        left >= 0 and right <= width // 2 and lower <= height and upper >= height // 2
        for left, upper, right, lower in faces(session)))
    assert not heap(faces(session)), heap(faces(session))
    arrange([])
    wait_for("layout as it was", lambda: panels(session) == before)


def main():
    width, height = screen_size()
    session = Session({"hasLaunchedBefore": True, "animations": False, "widgets.v2": WIDGETS})
    try:
        come_home(session, width, height)
        session.store.unlink()
        keep_apart(session, width, height)
    finally:
        arrange([])
        session.end()
    print(f"came home through {STEPS} changes of the screens; a layout stayed one on a quarter of the screen")


main()
