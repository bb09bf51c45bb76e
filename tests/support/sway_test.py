#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Tries what the other tests on a compositor rely on, in a session of with_sway.py with outputs of 1280x800 and 1920x1200@1.5."""
import os
import subprocess
import tempfile
from pathlib import Path

from sway import Desktop, Devices, OtherWindows
from waiting import wait_for

LEFT, RIGHT = ("WL-1", "WL-2") if "AMBRELLE_TEST_OUTER" in os.environ else ("HEADLESS-1", "HEADLESS-2")

desktop = Desktop()
assert {name: (output["rect"]["x"], output["rect"]["width"], output["scale"]) for name, output in desktop.outputs().items()} \
    == {LEFT: (0, 1280, 1), RIGHT: (1280, 1280, 1.5)}
assert desktop.extent() == (0, 0, 2560, 800)

if "DISPLAY" in os.environ:
    subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], check=True, stdout=subprocess.DEVNULL)

windows = OtherWindows()
devices = Devices(desktop)
for name, colour, place in (("left", "#ff2000", (100, 100)), ("right", "#0020ff", (1500, 300))):
    windows.open(name, colour)
    desktop.float(name, *place, 300, 200)
    wait_for(f"{name} window", lambda x=place[0], y=place[1], colour=colour: desktop.pixel(x + 20, y + 20) == colour[1:])
assert desktop.pixel(60, 100) not in ("ff2000", "0020ff")
assert set(desktop.windows()) == {"left", "right"}

# A click, which brings the keyboard along, on each output; the first motion only enters.
for name, x, y in (("left", 150, 180), ("right", 1510, 333)):
    devices.move(x, y)
    windows.expect(f"{name} entered")
    devices.click()
    place = desktop.windows()[name]["rect"]
    windows.expect(f"{name} pressed {x - place['x']} {y - place['y']}")
    windows.expect(f"{name} released {x - place['x']} {y - place['y']}")
    devices.key("a")
    windows.expect(f"{name} key a")
    devices.key("shift", "a")
    windows.expect(f"{name} key A")

# The compositor's own gesture for moving windows.
devices.step("keydown super")
devices.drag((150, 180), (200, 200), (260, 240))
devices.step("release left")
devices.step("keyup super")
wait_for("dragged window", lambda: desktop.windows()["left"]["rect"]["x"] == 210)
wait_for("picture of the drag", lambda: desktop.pixel(500, 350) == "ff2000")

with tempfile.TemporaryDirectory() as folder:
    picture = Path(folder, "right.png")
    desktop.picture(picture, RIGHT)
    assert subprocess.check_output(["identify", "-format", "%wx%h", picture]) == b"1920x1200"

if "AMBRELLE_TEST_OUTER" in os.environ:
    desktop.unplug(RIGHT)
    assert set(desktop.outputs()) == {LEFT}
    wait_for("window of the lost output", lambda: desktop.windows()["right"]["rect"]["x"] < 1280)
assert desktop.plug() in desktop.outputs()
windows.tell("close left")
wait_for("closed window", lambda: set(desktop.windows()) == {"right"})
devices.end()
windows.end()
