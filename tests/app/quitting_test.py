#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program ends soon, whatever hangs: quitting_test.py PROGRAM SHIM.

Its photos, calendars and artwork lie on a server that went away, and its player stands still; then the X server stands
still, so that the main loop hears of nothing. SHIM makes the folder hang.
"""
import json
import os
import signal
import subprocess
import sys
import time
from pathlib import Path

from program import Session, wait_for

SHIM = sys.argv[2]
LONGEST = 2  # seconds that ending may take
KINDS = ["photo", "events", "reminders", "nowPlaying"]
PLAYER = """
import dbus, dbus.service, sys
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib
class Player(dbus.service.Object):
    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {"Identity": "Player", "PlaybackStatus": "Playing", "Metadata": dbus.Dictionary(
            {"xesam:title": "Song", "mpris:artUrl": "file://" + sys.argv[1] + "/art.png"}, signature="sv")}
DBusGMainLoop(set_as_default=True)
name = dbus.service.BusName("org.mpris.MediaPlayer2.standing", dbus.SessionBus())
player = Player(dbus.SessionBus(), "/org/mpris/MediaPlayer2")
print("ready", flush=True)
GLib.MainLoop().run()
"""


def start(session):
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == len(KINDS))


def end(session, what):
    """Asks the program to end; it does, in time and well, and has kept its settings."""
    begun = time.monotonic()
    session.process.send_signal(signal.SIGTERM)
    session.ended()
    took = time.monotonic() - begun
    assert took < LONGEST, f"{what}: ending took {took:.2f} s"
    assert [widget["kind"] for widget in session.widgets()] == KINDS, session.widgets()
    print(f"{what}: ended after {took:.2f} s")


def display_server():
    """The process behind the display of this test."""
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            program, display = (folder / "cmdline").read_bytes().split(b"\0")[:2]
        except (OSError, ValueError):
            continue
        if program == b"Xvfb" and display.decode() == os.environ["DISPLAY"]:
            return int(folder.name)
    sys.exit("the display has no server")


session = Session()
away = session.home / "away"
widgets = [{"kind": kind, "skin": "glass", "origin": [50 + 300 * index, 300]} for index, kind in enumerate(KINDS)]
widgets[0]["photoFolder"] = str(away / "photos")
session.store.write_text(json.dumps(
    {"hasLaunchedBefore": True, "widgets.v2": widgets, "calendarFolders": [str(away / "calendars")]}))
start(session)
end(session, "nothing hangs")

notes = session.home / "notes"
notes.mkdir()
player = subprocess.Popen(["/usr/bin/python3", "-c", PLAYER, str(away)], stdout=subprocess.PIPE, text=True)
assert player.stdout.readline() == "ready\n"
session.env.update(LD_PRELOAD=SHIM, AMBRELLE_HANGING_FOLDER=str(away), AMBRELLE_HANGING_NOTES=str(notes))
start(session)
wait_for("three sources that hang", lambda: {"photos", "calendars", "art.png"} <= set(os.listdir(notes)))
player.send_signal(signal.SIGSTOP)
end(session, "folders and a player hang")

del session.env["LD_PRELOAD"]
start(session)
server = display_server()
os.kill(server, signal.SIGSTOP)
try:
    end(session, "the display hangs")
finally:
    os.kill(server, signal.SIGCONT)
player.kill()
player.wait()
