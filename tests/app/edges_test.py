#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Widgets are resized by their toolbars and dragged to the edges of a real screen: edges_test.py PROGRAM [STEPS [SEED]].

None gets lost: after every step at random the windows stand where the store says, and something of each lies on the
screen to take hold of. What the program holds of memory does not grow.
"""
import random
import re
import sys
import time
from pathlib import Path

from program import PATIENCE, Session, place_of, pointer, screen_size

STEPS = int(sys.argv[2]) if len(sys.argv) > 2 else 60
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
WIDTH, HEIGHT = screen_size()
FACE, MARGIN, ABOVE = 170, 30, 32  # points of a face, and of its window beside, below and above it
NARROWEST = 256  # points of a window that has room for the toolbar in its middle
BUTTON = 49, 16  # from one button of the toolbar to the next, and the middle of its height
SCALES = {"small": 0.75, "medium": 1, "large": 1.25, "huge": 1.5, "double": 350 / 170}
KINDS = "countdown", "cpu", "memory", "disk", "battery", "focus"
SKINS = "glass", "paper", "neon", "hifi", "mono", "quest"
GROWTH = 3000  # kB that may be gathered after the first steps
EARLY = 20  # steps until all that is kept for later is there
dice = random.Random(SEED)


def size(widget):
    return FACE * SCALES[widget.get("scale", "medium")] * widget.get("fit", 1)


def expected(widget):
    """The left and the lower edge of the window, as the store has it."""
    x, y = widget["origin"]
    return x - MARGIN, HEIGHT - y + MARGIN


def settled(session, count):
    """Places of the windows, once they are those of the store."""
    def look():
        places = [place_of(window) for window in session.windows()]
        if None in places or len(places) != count:
            return None
        stand = sorted((x, y + height) for x, y, _, height in places)
        wanted = sorted(map(expected, session.widgets()))
        return places if len(wanted) == count and all(
            abs(a - b) <= 1.5 for one, other in zip(stand, wanted) for a, b in zip(one, other)) else None
    end = time.monotonic() + PATIENCE
    while not look():
        assert time.monotonic() < end, f"seed {SEED}: {told(session)}"
        time.sleep(0.05)


def told(session):
    return f"{sorted(session.panels())} beside {[(w['origin'], w.get('scale')) for w in session.widgets()]}"


def shown(widget):
    """How much of the face lies on the screen, in points each way."""
    x, y = widget["origin"]
    return [min(low + size(widget), most) - max(low, 0) for low, most in ((x, WIDTH), (y, HEIGHT))]


def grip(widget):
    """A point of the face on the screen, from its upper left corner."""
    x, y = widget["origin"]
    edge = size(widget)
    left, right, top, bottom = max(x, 0), min(x + edge, WIDTH), max(HEIGHT - y - edge, 0), min(HEIGHT - y, HEIGHT)
    return round((left + right) / 2), round((top + bottom) / 2)


def at_an_edge():
    side, x, y = dice.randrange(3), dice.randrange(WIDTH), dice.randrange(HEIGHT)
    near = [dice.choice((0, WIDTH - 1)), dice.choice((0, HEIGHT - 1))]
    return [near[0], y] if side == 0 else [x, near[1]] if side == 1 else near


def drag(widget):
    pointer("mousemove", *map(str, grip(widget)), "mousedown", "1", "mousemove", str(WIDTH // 2), str(HEIGHT // 2),
            "mousemove", *map(str, at_an_edge()), "mouseup", "1")


def resize(widget):
    """By the second button of the toolbar, where that stands in its usual place."""
    x, y = widget["origin"]
    edge = size(widget)
    middle, top = x - MARGIN + max(edge + 2 * MARGIN, NARROWEST) / 2, HEIGHT - y - edge
    if not (100 < middle < WIDTH - 100 and ABOVE + 10 < top and y >= 0):
        return drag(widget)
    pointer("mousemove", *map(str, grip(widget)), "sleep", "0.15", "mousemove", str(round(middle - BUTTON[0] / 2)),
            str(round(top - ABOVE + BUTTON[1])), "sleep", "0.1", "click", "1")
    return None


def memory(session):
    return int(re.search(r"RssAnon:\s*(\d+)", Path(f"/proc/{session.process.pid}/status").read_text())[1])


widgets = [{"kind": kind, "skin": skin, "origin": [150 + 300 * (i % 4), 120 + 300 * (i // 4)]}
           for i, (kind, skin) in enumerate(zip(KINDS, SKINS))]
session = Session({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "widgets.v2": widgets})
session.start()
settled(session, len(widgets))
early = 0
sizes = set()
for step in range(STEPS):
    widget = dice.choice(session.widgets())
    dice.choice((drag, resize))(widget)
    settled(session, len(widgets))
    sizes |= {each.get("scale", "medium") for each in session.widgets()}
    hidden = [each for each in session.widgets() if min(shown(each)) < 0.5]
    assert not hidden, f"out of reach after step {step}, seed {SEED}: {hidden}"
    if step == EARLY:
        early = memory(session)
grown = memory(session) - early
assert STEPS <= EARLY or grown < GROWTH, f"{grown} kB more than after {EARLY} steps, seed {SEED}"
assert len(sizes) > 2, f"hardly anything was resized: {sizes}"
print(f"{STEPS} steps, seed {SEED}: {len(widgets)} widgets, sizes {sorted(sizes)}, {grown} kB more than after {EARLY} steps")
session.end()
