#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures the main window of the running program on a private display: window.py PROGRAM.

In each of AMBRELLE_ROUNDS rounds (3) with twelve widgets on the desktop: the time from the start of a second process until
the window is mapped and painted, warm; what the window adds to the program's memory when every theme has been scrolled
through, and what is left of that 65 seconds after it was closed; how long the main loop is away while the thirty miniatures
are made, and while the themes are scrolled with all of them kept; processor time and repaints of AMBRELLE_SECONDS (60) with
the window open. Gaps are in milliseconds of the wall, the processor's share in brackets: what others held up counts in
neither figure's favour.
"""
import contextlib
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from Xlib import X, display, error

from live import MEASURE, ROUNDS, cpu_seconds, desktop, read, sum_of, tree
from services import Repaints, end
from settings import library

FIRST_WIDGETS = 4  # seconds until the widgets stand
MINIATURES = 60  # seconds in which all thirty are made
FORGOTTEN = 65  # seconds after which the closed window has left nothing
OPENINGS = 5
PLACE = 960, 640  # on the window's page


def xdotool(env, *steps):
    subprocess.run(["xdotool", *map(str, steps)], env=env, check=True)


def window(screen):
    """The program's main window with the frame around it, if it is on the screen."""
    for child in screen.root.query_tree().children:
        with contextlib.suppress(error.XError):
            below = [child, *child.query_tree().children]
            if child.get_attributes().map_state == X.IsViewable and any(w.get_wm_name() == "Ambrelle" for w in below):
                if child.get_geometry().width > 500:
                    return child
    return None


def painted(screen, child):
    """Whether a line through the page shows pictures."""
    box = child.get_geometry()
    with contextlib.suppress(error.XError):
        strip = screen.root.get_image(box.x + 40, box.y + 300, box.width - 80, 60, X.ZPixmap, 0xFFFFFFFF).data
        return len(strip) // 4 - strip.count(strip[:4]) > 2000
    return False


def opened(program, env, screen):
    """Milliseconds from a second start until the window is mapped, and until it is painted."""
    start = time.monotonic()
    subprocess.Popen([program], env=env)
    found = mapped = None
    while time.monotonic() - start < 20:
        if not found:
            found = window(screen)
            mapped = 1000 * (time.monotonic() - start)
        elif painted(screen, found):
            return mapped, 1000 * (time.monotonic() - start)
        time.sleep(0.002)
    sys.exit("the window did not come, or stayed empty")


def close(env, screen):
    xdotool(env, "key", "ctrl+w")
    while window(screen):
        time.sleep(0.05)


def memory(running):
    """Megabytes: resident, and anonymous alone."""
    rollup = read(f"/proc/{running.pid}/smaps_rollup")
    return sum_of(rollup, "Rss:") / 1024, sum_of(rollup, "Anonymous:") / 1024


def scroll(env, notches):
    for button in (5, 4):
        xdotool(env, "mousemove", *PLACE, "click", "--repeat", notches, "--delay", 40, button)
        time.sleep(1)


def gaps_in(path, since, until):
    found = [tuple(map(float, line.split())) for line in path.read_text().splitlines()]
    return sorted((gap for gap in found if since <= gap[0] <= until), key=lambda gap: -gap[1])


def told(what, gaps):
    longest = ", ".join(f"{wall:.1f} ({cpu:.1f})" for _, wall, cpu, _ in gaps[:4])
    median = statistics.median(gap[1] for gap in gaps) if gaps else 0
    print(f"  {what}: {len(gaps)} gaps of 1 ms and more, median {median:.1f} ms; the longest {longest or 'none'}")


def measure(program):
    with tempfile.TemporaryDirectory() as name, desktop(Path(name)) as env:
        home = Path(name)
        first = subprocess.Popen([program], env=env)  # lays out the widgets and welcomes
        time.sleep(FIRST_WIDGETS)
        end(first)
        env.update(LD_PRELOAD=library("LoopGap", home), AMBRELLE_GAPS=str(home / "gaps"))
        start = time.monotonic()
        running = subprocess.Popen([program], env=env)
        env = {key: value for key, value in env.items() if key not in ("LD_PRELOAD", "AMBRELLE_GAPS")}

        def since_start():
            return time.monotonic() - start
        time.sleep(FIRST_WIDGETS)
        screen = display.Display(env["DISPLAY"]).screen()
        before = memory(running)
        opened(program, env, screen)
        made = since_start()
        for _ in range(MINIATURES // 6):
            scroll(env, 30)
            time.sleep(1)
        scrolled = since_start()
        scroll(env, 60)
        rest = since_start()
        shown = memory(running)
        close(env, screen)
        times = []
        for _ in range(OPENINGS):
            times.append(opened(program, env, screen))
            time.sleep(1)
            close(env, screen)
        print(f"  second start: mapped after {statistics.median(t[0] for t in times):.0f} ms, painted after "
              f"{statistics.median(t[1] for t in times):.0f} ms (worst {max(t[1] for t in times):.0f})")
        time.sleep(FORGOTTEN)
        after = memory(running)
        print(f"  memory: {before[0]:.1f} MB before ({before[1]:.1f} anonymous), {shown[0] - before[0]:+.1f} open "
              f"({shown[1] - before[1]:+.1f}), {after[0] - before[0]:+.1f} a minute after closing ({after[1] - before[1]:+.1f})")
        opened(program, env, screen)
        time.sleep(5)
        repaints = Repaints(env)
        used = cpu_seconds(tree(running.pid))
        time.sleep(MEASURE)
        areas = [area for area in repaints.since() if area[2] > 400]
        print(f"  open and at rest: {cpu_seconds(tree(running.pid)) - used:.2f} s of processor time in {MEASURE:g} s, "
              f"{len(areas)} repaints of the window")
        end(running)
        told("while miniatures are made", gaps_in(home / "gaps", made, scrolled))
        told("scrolled with all kept", gaps_in(home / "gaps", scrolled, rest))


def main():
    program = str(Path(sys.argv[1]).resolve())
    print(f"On {os.cpu_count()} processors")
    for number in range(ROUNDS):
        print(f"Round {number + 1}")
        measure(program)


main()
