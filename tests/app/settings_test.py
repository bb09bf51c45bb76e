#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Uses a widget's settings with a real pointer and keyboard: settings_test.py PROGRAM.

Another application is active meanwhile and stays so; what is typed is stored with every letter; Escape closes the
settings, and then the keys go where they went before.
"""
import subprocess

from program import Session, active_window, hover, pointer, shot, wait_for

TOOLBAR_WIDTH, TOOLBAR_HEIGHT, BUTTONS, MARGIN = 196, 32, 4, 30


def output(*command):
    return subprocess.run(command, capture_output=True, text=True).stdout.strip()


def typed(*steps):
    subprocess.run(["xdotool", *steps], check=True)


session = Session({"hasLaunchedBefore": True, "widgets.v2": [
    {"kind": "countdown", "skin": "glass", "origin": [300, 300]}]})
keys = session.home / "keys"
with keys.open("w") as heard:
    other = subprocess.Popen(["xev", "-event", "keyboard", "-geometry", "200x200+900+500"], stdout=heard)
window = wait_for("other application", lambda: output("xdotool", "search", "--onlyvisible", "--name", "Event Tester"))
typed("windowactivate", "--sync", window.split()[0])
active = active_window()
session.start()
x, y, width, height = panel = wait_for("widget", session.panels)[0]
toolbar = x + (width - TOOLBAR_WIDTH) // 2, y, TOOLBAR_WIDTH, TOOLBAR_HEIGHT
bare = shot(*toolbar)
hover(x + MARGIN + 80, y + height - MARGIN - 80)
wait_for("toolbar", lambda: shot(*toolbar) != bare)
button = (toolbar[0] + TOOLBAR_WIDTH // BUTTONS // 2, y + TOOLBAR_HEIGHT // 2)
pointer("mousemove", *map(str, button), "sleep", "0.2", "click", "1")
wait_for("settings", lambda: len(session.panels()) == 2)

typed("type", "--delay", "60", "Launch day")
wait_for("title in the store", lambda: session.widgets()[0].get("countdownTitle") == "Launch day")
typed("key", "Tab", "space")
wait_for("date in the store", lambda: session.widgets()[0].get("countdownDate"))
assert active_window() == active, "another window became the active one"
assert "KeyPress" not in keys.read_text(), "the keys reached the other application too"
typed("key", "Escape")
wait_for("end of the settings", lambda: session.panels() == [panel])
typed("key", "a")
wait_for("key in the other application", lambda: "KeyPress" in keys.read_text())
assert active_window() == active

session.end(other)
print("typed a title and picked a date while another application stayed active")
