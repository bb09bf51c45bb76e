#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures the live services in the running program on a private display: services.py PROGRAM [gaps|idle...].

"gaps": how long the main thread was away from its event loop while everything that the services ask answers late (see
peers.py), two thousand calendar items change, photos of 40 megapixels follow each other and a focus period ends.
"idle": processor time and repaints in a minute in which nothing changes, with a widget of every live kind.
AMBRELLE_SECONDS is the time of one measurement (60), AMBRELLE_ROUNDS their number (3).
"""
import contextlib
import json
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from Xlib import X, display
from Xlib.ext import damage

from live import MEASURE, ROUNDS, busy_seconds, cpu_seconds, desktop, process, tree

HERE = Path(__file__).parent
KINDS = ["weather", "sky", "events", "reminders", "nowPlaying", "focus", "devices", "activity", "photo", "quote"]
FIRST_WIDGETS = 3  # seconds until the widgets stand and the services have begun
QUIET_AFTER = 75  # seconds until the user counts as idle and everything has been loaded


def calendar(folder, items):
    folder.mkdir(parents=True, exist_ok=True)
    for number in range(items):
        date = f"{1 + number % 12:02}{1 + number % 28:02}"
        event = f"BEGIN:VEVENT\r\nDTSTART:2025{date}T{number % 24:02}0000Z\r\nDURATION:PT1H\r\nRRULE:FREQ=WEEKLY\r\n"
        reminder = f"BEGIN:VTODO\r\nDUE;VALUE=DATE:2026{date}\r\n"
        kind, item = [("EVENT", event), ("TODO", reminder)][number % 2]
        (folder / f"{number}.ics").write_text(f"BEGIN:VCALENDAR\r\n{item}UID:{number}\r\nSUMMARY:Item {number}\r\n"
                                              f"END:V{kind}\r\nEND:VCALENDAR\r\n")


def photos(folder, size, count):
    folder.mkdir()
    for number in range(count):
        subprocess.run(["convert", "-size", size, f"plasma:hsl({number * 90},60%,40%)-khaki", "-quality", "90",
                        str(folder / f"{number}.jpg")], check=True)


def origin(kind):
    row, column = divmod(KINDS.index(kind), 5)
    return 40 + column * 370, 300 + row * 300


def settings(home, **values):
    widgets = [{"kind": kind, "skin": "glass", "origin": origin(kind)} for kind in KINDS]
    for widget in widgets:
        if widget["kind"] == "photo":
            widget.update(photoFolder=str(home / "photos"), photoInterval=values.get("photoInterval", 600))
    store = home / ".config/ambrelle/defaults.json"
    store.parent.mkdir(parents=True)
    store.write_text(json.dumps({"hasLaunchedBefore": True, "widgets.v2": widgets, **values}))


def place(kind):
    """A point on the widget's face, in pixels of the screen."""
    x, y = origin(kind)
    return x + 85, 1080 - y - 85


@contextlib.contextmanager
def surroundings(delay):
    """A desktop with a home, and the peers on its bus."""
    with tempfile.TemporaryDirectory() as name, desktop(Path(name)) as env:
        env["DBUS_SYSTEM_BUS_ADDRESS"] = env["DBUS_SESSION_BUS_ADDRESS"]
        peers = [sys.executable, str(HERE / "peers.py"), str(delay)]
        with process(*peers, env=env, stdout=subprocess.PIPE, text=True) as others:
            base = f"http://127.0.0.1:{others.stdout.readline().strip()}"
            yield Path(name), dict(env, AMBRELLE_FORECAST_BASE=base, AMBRELLE_GEOCODING_BASE=base)


def end(running):
    running.terminate()
    if running.wait(20) != 0:
        sys.exit(f"the program ended with {running.returncode}")


def gaps(program):
    with surroundings(1.2) as (home, env):
        library = home / "loop-gap.so"
        subprocess.run(["c++", "-std=c++20", "-O2", "-shared", "-fPIC", str(HERE / "LoopGap.cpp"), "-o", str(library)],
                       check=True)
        items = home / ".calendars/many"
        calendar(items, 2000)
        photos(home / "photos", "7746x5164", 2)
        settings(home, photoInterval=1, weatherCity="Bergen", focusMinutes=1)
        running = subprocess.Popen([program], env=dict(env, LD_PRELOAD=str(library), AMBRELLE_GAPS=str(home / "gaps")))
        time.sleep(FIRST_WIDGETS)
        subprocess.run(["xdotool", "mousemove", *map(str, place("focus")), "click", "1"], env=env, check=True)
        for number in range(int(MEASURE + 10)):  # the focus period ends within
            item = items / f"{number}.ics"
            item.write_text(item.read_text().replace("Item", "Thing"))
            time.sleep(1)
        end(running)
        found = [tuple(map(float, line.split())) for line in (home / "gaps").read_text().splitlines()]
    later = sorted((gap for gap in found if gap[0] > FIRST_WIDGETS), key=lambda gap: -gap[1])
    print(f"{len(later)} gaps of 1 ms and more; the longest after the first {FIRST_WIDGETS} s:")
    for at, wall, cpu, _ in later[:8]:
        print(f"  {wall:6.1f} ms ({cpu:.1f} of processor time) after {at:.1f} s")
    at, wall, cpu, _ = max((gap for gap in found if gap[0] <= FIRST_WIDGETS), key=lambda gap: gap[1])
    print(f"before that {wall:.1f} ms ({cpu:.1f}) after {at:.1f} s")


class Repaints:
    """Sees what is painted on the windows of a screen."""

    def __init__(self, env):
        self.display = display.Display(env["DISPLAY"])
        self.display.damage_query_version()
        root = self.display.screen().root
        self.damages = [window.damage_create(damage.DamageReportRawRectangles) for window in root.query_tree().children
                        if window.get_attributes().map_state == X.IsViewable]
        time.sleep(1)
        self.since()  # in the beginning everything counts as painted

    def since(self):
        """The areas painted since the last call."""
        self.display.sync()
        found = []
        while self.display.pending_events():
            event = self.display.next_event()
            if event.type == self.display.extension_event.DamageNotify:
                found.append((event.area.x, event.area.y, event.area.width, event.area.height))
        return found


def idle(program):
    with surroundings(0) as (home, env):
        calendar(home / ".calendars/few", 10)
        photos(home / "photos", "3000x2000", 1)
        settings(home, weatherCity="Bergen")
        running = subprocess.Popen([program], env=env)
        time.sleep(QUIET_AFTER)
        repaints = Repaints(env)
        for _ in range(ROUNDS):
            pids = tree(running.pid)
            before = cpu_seconds(pids), busy_seconds()
            time.sleep(MEASURE)
            used, busy = cpu_seconds(pids) - before[0], busy_seconds() - before[1]
            print(f"{used:.2f} s of processor time in {MEASURE:g} s, others {busy - used:.1f} s;"
                  f" repaints: {repaints.since() or 'none'}")
        subprocess.run(["xdotool", "mousemove", *map(str, place("focus")), "click", "1"], env=env, check=True)
        time.sleep(3)
        if not repaints.since():
            sys.exit("a running timer was painted without being seen: the figures above mean nothing")
        end(running)


def main():
    program = str(Path(sys.argv[1]).resolve())
    wanted = sys.argv[2:] or ["gaps", "idle"]
    if "gaps" in wanted:
        for _ in range(ROUNDS):
            gaps(program)
    if "idle" in wanted:
        idle(program)


if __name__ == "__main__":
    main()
