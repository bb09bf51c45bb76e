#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures how long the main loop is held up while a slider is swept and a widget is dragged, on a disk that takes 200 ms
to flush: settings.py PROGRAM.

In each of AMBRELLE_ROUNDS rounds (3) the opacity of one of twelve widgets goes from 0 to 100 % in a hundred steps, by keys,
sixty in a second; then another is dragged for a hundred steps. Both are done without and with the slow disk. Gaps are the
times that the main thread was away from its event loop, painting included; the time in which others had the processor is told apart, and does not count. Flushes are counted by
thread.
"""
import json
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from live import ROUNDS, desktop

HERE = Path(__file__).parent
KINDS = ["cpu", "clock", "calendar", "events", "memory", "network", "disk", "weather", "sky", "activity", "quote", "battery"]
STEPS = 100
SCREEN_HEIGHT = 1080
FIRST_WIDGETS = 4  # seconds until the widgets stand
TABS_TO_SLIDER = 3  # from the first control of a widget's settings
TOOLBAR = 196, 32, 4  # width, height and buttons
MOST = 8  # milliseconds that the sweep may hold the loop up


def library(source, folder):
    built = folder / f"{source}.so"
    subprocess.run(["c++", "-std=c++20", "-O2", "-shared", "-fPIC", str(HERE / f"{source}.cpp"), "-o", str(built)], check=True)
    return str(built)


def xdotool(env, *steps):
    subprocess.run(["xdotool", *map(str, steps)], env=env, check=True)


def origin(number):
    return [60 + number % 5 * 370, 60 + number // 5 * 280]


def sweep(env, face):
    """Opens the settings of the widget, puts the slider to 0 and gives what moves it."""
    x, y = face
    width, height, buttons = TOOLBAR
    xdotool(env, "mousemove", x + 85, y + 85, "sleep", 1)
    xdotool(env, "mousemove", x + 85 - width // 2 + width // buttons // 2, y - height // 2, "sleep", 0.3, "click", 1,
            "sleep", 1)
    xdotool(env, "key", "--delay", 50, *["Tab"] * TABS_TO_SLIDER, "Home", "sleep", 1)
    return ["key", "--delay", 16, *["Right"] * STEPS]


def drag(env, face):
    x, y = face[0] + 60, face[1] + 60
    xdotool(env, "key", "Escape", "sleep", 0.5, "mousemove", x, y, "sleep", 1, "mousedown", 1)
    steps = []
    for step in range(1, STEPS + 1):
        steps += ["mousemove", x + step, y + step // 2, "sleep", 0.016]
    return [*steps, "mouseup", 1]


def own(gap):
    """What the program is to blame for: work and waiting, but not for a processor."""
    wall, _, queued = gap
    return wall - queued


def told(gap):
    return f"{own(gap):.1f} ms ({gap[1]:.1f} of processor time, and {gap[2]:.1f} queued)"


def measured(program, libraries, delay):
    """The longest gap in the sweep and in the drag, with milliseconds of all, of processor time and of waiting for a
    processor; flushes by the main thread and by others."""
    with tempfile.TemporaryDirectory() as name, desktop(Path(name)) as env:
        home = Path(name)
        store = home / ".config/ambrelle/defaults.json"
        store.parent.mkdir(parents=True)
        widgets = [{"kind": kind, "skin": "glass", "origin": origin(i), "opacity": 0.5} for i, kind in enumerate(KINDS)]
        store.write_text(json.dumps({"hasLaunchedBefore": True, "animations": False, "widgets.v2": widgets}))
        env.update(LD_PRELOAD=" ".join(libraries), AMBRELLE_GAPS=str(home / "gaps"), AMBRELLE_FLUSHES=str(home / "flushes"),
                   AMBRELLE_FLUSH=str(delay))
        begin = time.monotonic()
        running = subprocess.Popen([program], env=env)
        del env["LD_PRELOAD"]
        time.sleep(FIRST_WIDGETS)
        spans = []
        for prepare, widget in ((sweep, 0), (drag, 5)):
            left, bottom = origin(widget)
            steps = prepare(env, (left, SCREEN_HEIGHT - bottom - 170))
            start = time.monotonic() - begin
            xdotool(env, *steps)
            spans.append((start, time.monotonic() - begin))
        time.sleep(1.5)
        running.terminate()
        if running.wait(20) != 0:
            sys.exit(f"the program ended with {running.returncode}")
        stored = json.loads(store.read_text())["widgets.v2"]
        if stored[0]["opacity"] != 1 or stored[5]["origin"] == origin(5):
            sys.exit(f"the slider or the widget was not moved: {stored[0]}, {stored[5]}")
        gaps = [tuple(map(float, line.split())) for line in (home / "gaps").read_text().splitlines()]
        flushes = (home / "flushes").read_text().split() if (home / "flushes").exists() else []
        # The gaps' clock begins with the event loop, a moment after the program.
        longest = [max((gap[1:] for gap in gaps if start - 1 < gap[0] < end), key=own, default=(0, 0, 0)) for start, end in spans]
        return *longest, flushes.count("main"), flushes.count("other")


def main():
    program = str(Path(sys.argv[1]).resolve())
    failed = False
    with tempfile.TemporaryDirectory() as name:
        libraries = [library(source, Path(name)) for source in ("LoopGap", "SlowFlush")]
        for delay in (0, 200):
            for _ in range(ROUNDS):
                swept, dragged, on_main, elsewhere = measured(program, libraries, delay)
                print(f"disk {delay:3} ms later: longest gap {told(swept)} in the sweep, {told(dragged)} in the drag;"
                      f" flushes: {on_main} by the main thread, {elsewhere} by others")
                failed |= on_main > 0 or own(swept) > MOST
    sys.exit(f"more than {MOST} ms, or a flush by the main thread" if failed else 0)


if __name__ == "__main__":
    main()
