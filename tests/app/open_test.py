#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Opens a program by a click on a widget: open_test.py PROGRAM."""
from program import Session, hover, pointer, wait_for

SCREEN_HEIGHT = 800
LEFT, BOTTOM = 60, 200

session = Session({"hasLaunchedBefore": True, "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": [LEFT, BOTTOM]}]})
mark = session.home / "opened"
programs = session.home / "data/applications"
programs.mkdir(parents=True)
# Of all system monitors it is looked for first.
(programs / "org.gnome.SystemMonitor.desktop").write_text(
    f"[Desktop Entry]\nType=Application\nName=Monitor\nExec=touch {mark}\n")
session.start()
wait_for("widget", lambda: len(session.panels()) == 1)
hover(LEFT + 85, SCREEN_HEIGHT - BOTTOM - 85)
pointer("click", "1")
wait_for("program that the click opens", mark.exists)
session.end()
