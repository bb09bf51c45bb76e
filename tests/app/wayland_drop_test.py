#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""On a Wayland compositor a widget that is pulled out of the main window comes to stand where it is let go, though no
window knows its own place there. The program's path is the first argument."""
import json
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "support"))
from sway import Desktop, Devices  # noqa: E402
from waiting import wait_for  # noqa: E402

PLACES = ((1150, 690), (180, 100))  # one right of the window and one left of it
WINDOW = (330, 40, 760, 600)
CARD = (WINDOW[0] + 110, WINDOW[1] + 250)  # some card of the gallery


def stored(file):
    return json.loads(file.read_text()).get("widgets.v2", [])


def stands_at(widget, place, height):
    """Its middle is there, whether it is a small or a wide one."""
    x, y = widget["origin"]
    return abs(height - y - 85 - place[1]) <= 1 and min(abs(x + half - place[0]) for half in (85, 175)) <= 1


def leaves_room(desktop):
    """Whether the window is as small as it was told to be. Told while it appears, it may not have heard of it."""
    if desktop.pixel(*PLACES[0]) == desktop.pixel(20, 20):
        return True
    for width in (WINDOW[2] - 20, WINDOW[2]):
        desktop.command(f"[title=^Ambrelle$] resize set {width} {WINDOW[3]}")
        time.sleep(0.5)
    return False


def pull(devices, place, is_there):
    """Drags a card there. A press before the gallery has come to its size is none, and does no harm."""
    def look():
        if time.monotonic() > look.again:
            devices.drag(CARD, (CARD[0] + 30, CARD[1] + 30), (1200, 300), place)
            devices.step("release left")
            look.again = time.monotonic() + 5
        return is_there()
    look.again = 0
    wait_for("a new widget", look)


def main():
    with tempfile.TemporaryDirectory(prefix="ambrelle-drop-") as home:
        file = Path(home, "config/ambrelle/defaults.json")
        file.parent.mkdir(parents=True)
        file.write_text(json.dumps({"hasLaunchedBefore": True, "widgets.v2": []}))
        env = dict(os.environ, XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data", XDG_CACHE_HOME=f"{home}/cache")
        env.pop("QT_QPA_PLATFORM", None)
        desktop = Desktop()
        devices = Devices(desktop)
        program = subprocess.Popen([sys.argv[1], "--action", "add-widgets"], env=env)
        try:
            desktop.float("Ambrelle", *WINDOW)
            wait_for("room beside the window", lambda: leaves_room(desktop))
            height = desktop.extent()[3]
            for count, place in enumerate(PLACES, 1):
                empty = desktop.pixel(*place)
                pull(devices, place, lambda: len(stored(file)) == count)
                assert stands_at(stored(file)[-1], place, height), f"{place}: {stored(file)[-1]}"
                devices.move(640, 780)
                wait_for("the widget on the screen", lambda: desktop.pixel(*place) != empty)
            program.send_signal(signal.SIGTERM)
            assert program.wait(60) == 0
        finally:
            if program.poll() is None:
                program.kill()
            devices.end()


main()
