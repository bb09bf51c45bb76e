#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Opens a program by a click on a widget, in the user's environment: open_test.py PROGRAM."""
from program import Session, hover, pointer, wait_for

SCREEN_HEIGHT = 800
LEFT, BOTTOM = 60, 200

session = Session({"hasLaunchedBefore": True, "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": [LEFT, BOTTOM]}]})
mark = session.home / "opened"
programs = session.home / "data/applications"
programs.mkdir(parents=True)
monitor = session.home / "monitor"
monitor.write_text(f"#!/bin/sh\nenv > {mark}.part\nmv {mark}.part {mark}\n")
monitor.chmod(0o755)
# Of all system monitors it is looked for first.
(programs / "org.gnome.SystemMonitor.desktop").write_text(
    f"[Desktop Entry]\nType=Application\nName=Monitor\nExec={monitor}\n")
session.start()
wait_for("widget", lambda: len(session.panels()) == 1)
hover(LEFT + 85, SCREEN_HEIGHT - BOTTOM - 85)
pointer("click", "1")
wait_for("program that the click opens", mark.exists)
opened = dict(line.split("=", 1) for line in mark.read_text().splitlines() if "=" in line)
names = {name for name in {**session.env, **opened} if name.startswith("QT_") or name == "XDG_CURRENT_DESKTOP"}
changed = {name: opened.get(name) for name in names if opened.get(name) != session.env.get(name)}
assert not changed, f"the program inherits what is meant for this one: {changed}"
session.end()
