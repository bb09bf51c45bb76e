#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program ends soon, whatever hangs: quitting_test.py PROGRAM SHIM.

Its photos, calendars and artwork lie on a server that went away, and its player stands still; then the X server stands
still, so that the main loop hears of nothing. SHIM makes the folder hang. On a slow disk the next start waits until the
settings of the last are flushed, and then takes its place.
"""
import contextlib
import fcntl
import json
import os
import signal
import subprocess
import sys
import time
from pathlib import Path

from program import Session, pointer, wait_for

SHIM = sys.argv[2]
LONGEST = 2  # seconds that ending may take
LONGEST_WORK = 1.1  # of it for all work that hangs, so that a slow disk has the rest
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


def end(session, what, longest=LONGEST):
    """Asks the program to end; it does, in time and well, and has kept its settings."""
    begun = time.monotonic()
    session.process.send_signal(signal.SIGTERM)
    session.ended()
    took = time.monotonic() - begun
    assert took < longest, f"{what}: ending took {took:.2f} s"
    assert [widget["kind"] for widget in session.widgets()] == KINDS, session.widgets()
    print(f"{what}: ended after {took:.2f} s")


def end_on_slow_disk(session):
    """Asks the program to end just after a widget was moved, with a disk that takes longer for that than all the rest."""
    def moved():
        with contextlib.suppress(FileNotFoundError, ValueError):  # gone or overwritten while it is read
            return session.unflushed()
    wait_for("flushed settings", lambda: not beside(session))
    x, y, width, height = session.panels()[0]
    grip = x + width // 2, y + height // 2
    steps = [word for by in (20, 40, 60) for word in ("mousemove", str(grip[0]), str(grip[1] + by), "sleep", "0.05")]
    pointer("mousemove", *map(str, grip), "sleep", "0.1", "mousedown", "1", *steps, "mouseup", "1")
    wait_for("stored drag", moved)
    session.process.send_signal(signal.SIGTERM)


def beside(session):
    """What lies beside the file of settings while it is not flushed."""
    return sorted(file.name for file in session.store.parent.iterdir() if file != session.store)


def check_lock(session):
    """Whoever gets the program's lock finds flushed settings."""
    def take():
        with contextlib.suppress(BlockingIOError):
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            return True
    with open(session.home / "ambrelle/lock") as lock:
        assert not take(), "the program has no lock"
        end_on_slow_disk(session)
        wait_for("lock", take)
        assert not beside(session), f"the lock was free before {beside(session)} was flushed"
    session.ended()


def check_flush_beside_hanging(session):
    """What hangs does not take the time that a slow disk needs."""
    end_on_slow_disk(session)
    begun = time.monotonic()
    session.ended()
    assert time.monotonic() - begun < LONGEST
    assert not beside(session), f"{beside(session)} was not flushed in time"
    print(f"a slow disk and folders that hang: ended after {time.monotonic() - begun:.2f} s")


def check_follower(session):
    """A start in that time takes the place of the program that ends."""
    end_on_slow_disk(session)
    last = session.process
    wait_for("ended main loop", lambda: not session.panels())
    start(session)
    assert last.wait(LONGEST) == 0
    assert not session.process.poll(), "the start that followed ended"


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
end(session, "folders and a player hang", LONGEST_WORK)

for note in notes.iterdir():
    note.unlink()
session.env.update(AMBRELLE_FLUSH_TIME="300")
start(session)
wait_for("two sources that hang", lambda: {"photos", "calendars"} <= set(os.listdir(notes)))
check_flush_beside_hanging(session)

session.env.update(AMBRELLE_HANGING_FOLDER=str(session.home / "nowhere"))
start(session)
check_lock(session)
start(session)
check_follower(session)
end(session, "a slow disk")

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
