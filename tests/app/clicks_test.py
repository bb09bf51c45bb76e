#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Clicks on the widgets of the running program with a real pointer: clicks_test.py PROGRAM.

The three buttons of the music widget reach a real player, and the one that the widget shows when there are two; a
reminder is ticked off in its file; the focus timer starts and pauses.
"""
import subprocess
import sys
import time
import wave
from pathlib import Path

import dbus

from program import Session, pointer, shot, steady, wait_for

SCREEN_HEIGHT = 800
FACES = {"nowPlaying": (60, 500, 350), "reminders": (60, 200, 170), "focus": (300, 200, 170)}  # left, bottom, width
FACE_HEIGHT = 170
PLAYER = "org.mpris.MediaPlayer2"
SCRIPT = "/usr/lib/mpv-mpris/mpris.so"


def face(kind):
    """Left, top, width and height on the screen."""
    left, bottom, width = FACES[kind]
    return left, SCREEN_HEIGHT - bottom - FACE_HEIGHT, width, FACE_HEIGHT


def picture(kind):
    """What the face shows, but for its edge, which the toolbar changes."""
    left, top, width, height = face(kind)
    return shot(left + 20, top + 10, width - 40, height - 20)


def click(x, y):
    pointer("mousemove", str(x), str(y), "click", "1")


def effect_of(click_there, state):
    """The state before and after a click, once it differs; None when a second changes nothing."""
    before = state()
    click_there()
    end = time.monotonic() + 1
    while time.monotonic() < end:
        if (after := state()) != before:
            return before, after
        time.sleep(0.02)
    return None


class Player:
    """mpv on the session bus with a list of silent pieces."""

    def __init__(self, folder, *titles, start=0):
        pieces = []
        for title in titles:
            pieces.append(str(folder / f"{title}.wav"))
            with wave.open(pieces[-1], "wb") as piece:
                piece.setparams((1, 1, 8000, 0, "NONE", None))
                piece.writeframes(b"\x80" * 8000 * 60)
        before = set(self.names())
        self.process = subprocess.Popen(["mpv", "--no-config", "--no-terminal", "--ao=null", "--vo=null", f"--script={SCRIPT}",
                                         f"--playlist-start={start}", *pieces])
        name = wait_for("player on the bus", lambda: set(self.names()) - before).pop()
        self.properties = dbus.Interface(dbus.SessionBus().get_object(name, "/org/mpris/MediaPlayer2"),
                                         "org.freedesktop.DBus.Properties")
        wait_for("piece that plays", lambda: self.state()[0] == "Playing" and self.state()[1])

    @staticmethod
    def names():
        return [name for name in dbus.SessionBus().list_names() if name.startswith(PLAYER)]

    def state(self):
        status, metadata = (self.properties.Get(f"{PLAYER}.Player", name) for name in ("PlaybackStatus", "Metadata"))
        return str(status), str(metadata.get("xesam:title", ""))

    def status(self):
        return self.state()[0]

    def end(self):
        self.process.kill()
        self.process.wait()


def place_of_buttons(player):
    """Clicks from left to right along the row of buttons and gives a place on the middle one."""
    left, top, width, height = face("nowPlaying")
    row = top + height - 28
    effects, middle = [], None
    for x in range(left + 10, left + width, 22):
        change = effect_of(lambda: click(x, row), player.state)
        if not change:
            continue
        (status, title), (new_status, new_title) = change
        effect = "track" if title != new_title else new_status
        effects.append((effect, new_title))
        if effect == "Paused":
            middle = x, row
    wanted = [("track", "one.wav"), ("Paused", "one.wav"), ("Playing", "one.wav"), ("track", "two.wav"), ("track", "three.wav")]
    assert effects == wanted, effects
    return middle


def shown(what, other_than):
    """The music widget's picture once it is another one, and stays."""
    def other():
        now = picture("nowPlaying")
        return now if now != other_than else None
    return steady(what, other)


def music(session):
    nobody = steady("music widget", lambda: picture("nowPlaying"), rest=1)
    first = Player(session.home, "one", "two", "three", start=1)
    wait_for("track on the widget", lambda: picture("nowPlaying") != nobody)
    play = place_of_buttons(first)
    assert effect_of(lambda: click(*play), first.status) == ("Playing", "Paused")
    paused = shown("paused track", nobody)

    second = Player(session.home, "other")
    shown("track that plays instead of the paused one", paused)
    assert effect_of(lambda: click(*play), second.status) == ("Playing", "Paused")
    wait_for("first of two paused players", lambda: picture("nowPlaying") == paused)
    assert effect_of(lambda: click(*play), first.status) == ("Paused", "Playing")
    first.end()
    rest = shown("player that is left", paused)
    assert effect_of(lambda: click(*play), second.status) == ("Paused", "Playing")
    second.end()
    shown("widget without a player", rest)
    click(*play)
    wait_for("empty widget", lambda: picture("nowPlaying") == nobody)


def reminders(session, folder):
    left, top, _, height = face("reminders")
    files = sorted(folder.glob("*.ics"))
    before = [file.read_bytes() for file in files]
    for y in range(top + 30, top + height, 15):
        if effect_of(lambda: click(left + 26, y), lambda: [file.read_bytes() for file in files]):
            break
    after = files[0].read_text()
    for line in ("STATUS:COMPLETED", "PERCENT-COMPLETE:100", "COMPLETED:", "X-COLOUR-OF-THE-CAT:black"):
        assert line in after, f"no {line} in {after}"
    assert files[1].read_bytes() == before[1], "a click ticked two reminders off"


def focus():
    left, top, width, height = face("focus")
    middle = left + width // 2, top + height // 2

    def runs():
        before = picture("focus")
        time.sleep(1.2)
        return picture("focus") != before
    assert not runs(), "the timer runs by itself"
    click(*middle)
    wait_for("running timer", runs)
    click(*middle)
    wait_for("paused timer", lambda: not runs())


def main():
    if not Path(SCRIPT).exists():
        print("skipped: mpv-mpris is not installed")
        sys.exit(77)
    session = Session({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False,
                       "widgets.v2": [
        {"kind": kind, "skin": "glass", "origin": [left, bottom]} for kind, (left, bottom, _) in FACES.items()]})
    folder = session.home / "data/ambrelle/calendars/tasks"
    folder.mkdir(parents=True)
    for number, due in enumerate(("20250601", "20250602"), 1):
        (folder / f"{number}.ics").write_bytes(
            f"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VTODO\r\nUID:{number}\r\nSUMMARY:Reminder {number}\r\n"
            f"DUE;VALUE=DATE:{due}\r\nX-COLOUR-OF-THE-CAT:black\r\nEND:VTODO\r\nEND:VCALENDAR\r\n".encode())
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == len(FACES))
    music(session)
    reminders(session, folder)
    focus()
    session.end()
    print("skipped, paused and taken over by another player; ticked off; focus timer started and paused")


main()
