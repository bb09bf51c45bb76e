#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures what the decorations of a theme cost: scenes.py PROGRAM [THEME...], by default those that move.

Every theme stands in its own composition, all that moves moving, without its scene and with it, AMBRELLE_ROUNDS times
(3): for AMBRELLE_SECONDS at rest (60), and while a widget is dragged for a hundred steps, sixty in a second. The table gives
medians: processor time of the program and of the X server, how often the program wakes up, what it paints into its
windows, and what both hold in memory. Ends with an error where a scene costs more at rest than BUDGET, or a drag with it
more than MOST_OF_DRAG times one without.
"""
import json
import os
import signal
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from live import MEASURE, ROUNDS, composed, cpu_seconds, desktop, read, sum_of, tree, wakeups
from settings import FIRST_WIDGETS, SCREEN_HEIGHT, drag, library, xdotool

MOVING = ["neon", "pulse", "quest"]
BUDGET = 0.1  # seconds of processor time a minute that a scene may cost at rest
MOST_OF_DRAG = 2  # times the processor time, of the program and of the X server, that a drag costs without a scene
FIGURES = {  # name: unit
    "rest": "s", "rest, X": "s", "wakeups": "/s", "rest, parts": "", "drag": "s", "drag, X": "s", "drag, parts": "",
    "drag, pixels": "k", "uss": "MB", "X rss": "MB",
}


def painted(running, file):
    """Parts and thousands of pixels since the last question."""
    file.unlink(missing_ok=True)
    running.send_signal(signal.SIGUSR1)
    while not (told := read(file)).endswith("\n"):
        if running.poll() is not None:
            sys.exit(f"the program ended with {running.returncode}")
        time.sleep(0.01)
    return list(map(int, told.split()))


def megabytes(pid, key):
    return sum_of(read(f"/proc/{pid}/smaps_rollup"), key) / 1024


def measured(program, counter, theme, scene):
    with tempfile.TemporaryDirectory() as name, desktop(Path(name)) as env:
        home = Path(name)
        server = next(pid for pid in tree(os.getpid()) if read(f"/proc/{pid}/cmdline").startswith("Xvfb"))
        store = home / ".config/ambrelle/defaults.json"
        store.parent.mkdir(parents=True)
        store.write_text(json.dumps({**composed(f"{theme} moving"), "showScene": scene}))
        first = subprocess.Popen([program], env=env)
        time.sleep(FIRST_WIDGETS)
        first.terminate()
        first.wait()
        counts = home / "paints"
        running = subprocess.Popen([program], env={**env, "LD_PRELOAD": counter, "AMBRELLE_PAINTS": str(counts)})
        time.sleep(FIRST_WIDGETS)
        painted(running, counts)

        def over(act):
            start = cpu_seconds([running.pid]), cpu_seconds([server]), sum(wakeups([running.pid]).values()), time.monotonic()
            act()
            own, of_server, woken, seconds = (
                end - begin for begin, end in zip(start, (cpu_seconds([running.pid]), cpu_seconds([server]),
                                                          sum(wakeups([running.pid]).values()), time.monotonic())))
            return own, of_server, woken / seconds, *painted(running, counts)

        rest = over(lambda: time.sleep(MEASURE))
        memory = megabytes(running.pid, "Private_"), megabytes(server, "Rss:")
        widget = json.loads(store.read_text())["widgets.v2"][-1]
        left, bottom = widget["origin"]
        steps = drag(env, (int(left), int(SCREEN_HEIGHT - bottom - 170)))
        painted(running, counts)
        dragged = over(lambda: xdotool(env, *steps))
        time.sleep(0.5)
        if json.loads(store.read_text())["widgets.v2"][-1]["origin"] == widget["origin"]:
            sys.exit(f"{theme}: the widget was not moved")
        running.terminate()
        running.wait()
        return dict(zip(FIGURES, [*rest[:4], dragged[0], dragged[1], *dragged[3:], *memory]))


def main():
    program = str(Path(sys.argv[1]).resolve())
    failed = []
    with tempfile.TemporaryDirectory() as folder:
        counter = library("PaintCount", Path(folder))
        print(f"Medians of {ROUNDS} rounds; at rest {MEASURE:g} s")
        for theme in sys.argv[2:] or MOVING:
            rounds = [[measured(program, counter, theme, scene) for scene in (False, True)] for _ in range(ROUNDS)]
            without, with_it = ({f: statistics.median(r[i][f] for r in rounds) for f in FIGURES} for i in (0, 1))
            print(f"{theme:16}{'without':>12}{'with scene':>12}")
            for figure, unit in FIGURES.items():
                print(f"{figure + ' ' + unit:16}{without[figure]:12.2f}{with_it[figure]:12.2f}")
            if (with_it["rest"] - without["rest"]) * 60 / MEASURE > BUDGET:
                failed.append(f"{theme}: more than {BUDGET} s a minute at rest")
            drags = [each["drag"] + each["drag, X"] for each in (without, with_it)]
            print(f"{'drag, times':16}{drags[1] / drags[0]:24.2f}\n")
            if drags[1] > MOST_OF_DRAG * drags[0]:
                failed.append(f"{theme}: a drag costs more than {MOST_OF_DRAG} times as much")
    sys.exit("\n".join(failed))


if __name__ == "__main__":
    main()
