#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures the main window of the running program on a private display: window.py PROGRAM.

In each of AMBRELLE_ROUNDS rounds (3) with twelve widgets on the desktop: the time from the start of a second process until
the window is mapped and painted, warm; what the window adds to the program's memory when every theme has been scrolled
through, and what is left of that 65 seconds after it was closed; how long the main loop is away while the thirty miniatures
are made, and while the themes are scrolled with all of them kept; processor time and repaints of AMBRELLE_SECONDS (60) with
the window open. With others at work the wall tells little: beside it stands the processor time of the second process, and
of the program's main thread until the window is painted. Gaps are without the time in which others had the processor.
"""
import contextlib
import os
import select
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
GROUND = bytes.fromhex("f1f4f6")  # of the page, as the screen has it


def xdotool(env, *steps):
    subprocess.run(["xdotool", *map(str, steps)], env=env, check=True)


def title_of(window):
    with contextlib.suppress(error.XError):
        return next(filter(None, (w.get_wm_name() for w in [window, *window.query_tree().children])), "")
    return ""


def mapped_window(screen, patience=20):
    """The program's main window with the frame around it, as soon as it is on the screen."""
    until = time.monotonic() + patience
    while time.monotonic() < until:
        select.select([screen], [], [], 1)
        while screen.pending_events():
            event = screen.next_event()
            if event.type == X.MapNotify and title_of(event.window) == "Ambrelle" and shape(event.window).width > 500:
                return event.window
    sys.exit("the window did not come")


def shape(window):
    return window.get_geometry()


def painted(screen, child):
    """Whether a line through the page begins with its ground and shows cards."""
    with contextlib.suppress(error.XError):
        box = shape(child)
        strip = screen.screen().root.get_image(box.x + 10, box.y + 300, box.width - 40, 60, X.ZPixmap, 0xFFFFFFFF).data
        return strip[:3] == GROUND and len(strip) // 4 - strip.count(strip[:4]) > 2000
    return False


def main_thread(running):
    """Milliseconds that the program's main thread had a processor."""
    return int(read(f"/proc/{running.pid}/schedstat").split()[0]) / 1e6


def opened(program, running, env, screen):
    """The window, and milliseconds from a second start until it is mapped, and painted, and of processor time: of the
    second process, and of the main thread."""
    while screen.pending_events():
        screen.next_event()
    before = main_thread(running)
    start = time.monotonic()
    second = subprocess.Popen([program], env=env)
    found = mapped_window(screen)
    mapped = time.monotonic() - start
    while not painted(screen, found):
        if time.monotonic() - start > 20:
            sys.exit("the window stayed empty")
        time.sleep(0.002)
    until_painted = time.monotonic() - start
    used = main_thread(running) - before
    usage = os.wait4(second.pid, 0)[2]
    second.returncode = 0
    return found, (1000 * mapped, 1000 * until_painted, 1000 * (usage.ru_utime + usage.ru_stime), used)


def close(env, found):
    xdotool(env, "key", "ctrl+w")
    with contextlib.suppress(error.XError):
        while found.get_attributes().map_state == X.IsViewable:
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
    return sorted((gap for gap in found if since <= gap[0] <= until), key=lambda gap: -own(gap))


def own(gap):
    """What the program is to blame for: work and waiting, but not for a processor."""
    return gap[1] - gap[3]


def told(what, gaps):
    longest = ", ".join(f"{own(gap):.1f} ({gap[2]:.1f} of processor time)" for gap in gaps[:4])
    median = statistics.median(map(own, gaps)) if gaps else 0
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
        screen = display.Display(env["DISPLAY"])
        screen.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
        before = memory(running)
        found, _ = opened(program, running, env, screen)
        made = since_start()
        for _ in range(MINIATURES // 6):
            scroll(env, 30)
            time.sleep(1)
        scrolled = since_start()
        scroll(env, 60)
        rest = since_start()
        shown = memory(running)
        close(env, found)
        times = []
        for _ in range(OPENINGS):
            found, figures = opened(program, running, env, screen)
            times.append(figures)
            time.sleep(1)
            close(env, found)
        mapped, seen, second, main_loop = map(statistics.median, zip(*times))
        print(f"  second start: mapped after {mapped:.0f} ms, painted after {seen:.0f} ms (worst {max(t[1] for t in times):.0f}); "
              f"processor time: {second:.1f} ms of the second process, {main_loop:.1f} of the program")
        time.sleep(FORGOTTEN)
        after = memory(running)
        print(f"  memory: {before[0]:.1f} MB before ({before[1]:.1f} anonymous), {shown[0] - before[0]:+.1f} open "
              f"({shown[1] - before[1]:+.1f}), {after[0] - before[0]:+.1f} a minute after closing ({after[1] - before[1]:+.1f})")
        opened(program, running, env, screen)
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
