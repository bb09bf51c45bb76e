#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Other programs and second starts ask the whole program for something: door_test.py PROGRAM.

By its name on the session bus and by --action every action does what its line in the menu does; a theme file comes in by
its address; what is unknown changes nothing; the window comes forward with the token of whoever asked, and the desktop is
told that the start is over. Without a bus, and where another has the name, starts are heard all the same.
"""
import configparser
import json
import os
import re
import shutil
import subprocess
import sys
import time
import uuid
from pathlib import Path

import dbus.service
from Xlib import X

from assistive import shown, switch_on
from onlooker import DESKTOP, Screen
from program import PROGRAM, Session, active_window, place_of, pointer, screen_size, wait_for
from status_host import StatusHost

NAME, PATH, INTERFACE = "org.ambrelle.Ambrelle", "/org/ambrelle/Ambrelle", "org.freedesktop.Application"
ENTRY = Path(__file__).parents[2] / "assets/org.ambrelle.Ambrelle.desktop"
WIDGETS = [{"kind": "cpu", "skin": "glass", "origin": [60, 60]}]
TABS = {"themes": "Search Themes", "add-widgets": "Search Widgets", "settings": "Search Settings"}
REST = 0.7  # seconds in which nothing is seen to happen


def called(method, *arguments):
    """As a shell script does; the call has been answered."""
    subprocess.run(["gdbus", "call", "--session", "--dest", NAME, "--object-path", PATH, "--method",
                    f"{INTERFACE}.{method}", *arguments], check=True, capture_output=True, timeout=60)


def by_bus(session, action):
    called("ActivateAction", action, "[]", "{}")


def by_start(session, action):
    subprocess.run([PROGRAM, "--action", action], env=session.env, check=True, timeout=60)


def owner():
    """The process that has the program's name on the bus."""
    daemon = dbus.Interface(dbus.SessionBus().get_object(dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH), dbus.BUS_DAEMON_IFACE)
    return int(daemon.GetConnectionUnixProcessID(NAME)) if daemon.NameHasOwner(NAME) else None


def backdrop(session):
    """What covers the screen while widgets are arranged."""
    width, _ = screen_size()
    return [window for window in session.windows() if (place_of(window) or (0, 0, 0))[2] == width]


def close_window(session):
    """Once it can be used."""
    wait_for("main window with the keyboard", lambda: str(active_window()) in session.main_windows())
    pointer("key", "ctrl+w")
    wait_for("closed main window", lambda: not session.main_windows())


def focus_line(host):
    return next(str(line["label"]) for line in host.menu() if str(line.get("label")).startswith(("Start", "Pause")))


def each_action(session, host, ask):
    for action, name in TABS.items():
        ask(session, action)
        shown(name)
    close_window(session)
    ask(session, "open-window")
    wait_for("main window", session.main_windows)
    close_window(session)
    for lines in (["toggle-focus", "Pause Focus"], ["toggle-focus", "Start Focus"], ["skip", "Start Break"],
                  ["toggle-focus", "Pause Break"], ["reset", "Start Focus"]):
        ask(session, lines[0])
        wait_for(f"“{lines[1]}” by {lines[0]}", lambda: focus_line(host) == lines[1])
    for on in (True, False):
        ask(session, "lock")
        wait_for(f"positions locked: {on}", lambda: session.stored().get("locked", False) == on)
        ask(session, "edit")
        wait_for(f"edit mode: {on}", lambda: bool(backdrop(session)) == on)


def nothing_happens(session):
    before = session.stored()
    for call in (("ActivateAction", "explode", "[]", "{}"), ("ActivateAction", "", "[]", "{}"),
                 ("ActivateAction", "update", "[]", "{}"), ("ActivateAction", "check-for-updates", "[<7>]", "{}")):
        called(*call)
    for words in (["--action", "explode"], ["--action"]):
        done = subprocess.run([PROGRAM, *words], env=session.env, capture_output=True, text=True, timeout=60)
        assert done.returncode == 2 and "toggle-focus" in done.stderr, done
    time.sleep(REST)
    assert not session.main_windows() and len(session.windows()) == len(WIDGETS) and session.stored() == before


def opens_a_theme(session):
    file = session.home / "Har bour.ambrelle"
    theme = {"id": str(uuid.uuid4()).upper(), "name": "Harbour", "created": 0, "wallpaper": "neon", "widgets": [
        {"config": {"kind": "clock", "skin": "neon", "origin": [0, 0]}, "fx": 0.1, "fy": 0.1}]}
    file.write_text(json.dumps({"format": "Ambrelle Theme", "version": 1, "theme": theme, "accents": {}}))
    called("Open", json.dumps([file.as_uri(), "http://example.org/other.ambrelle"]), "{}")
    wait_for("theme in the store",
             lambda: [each["name"] for each in session.stored().get("savedThemes.v1", [])] == ["Harbour"])
    close_window(session)


class Messages:
    """What is said on the root window about starts, and what window managers are asked."""

    def __init__(self, screen):
        self.screen, self.texts, self.times, self.part = screen, [], [], b""
        screen.root.change_attributes(event_mask=X.PropertyChangeMask | X.SubstructureNotifyMask)
        screen.display.sync()

    def read(self):
        kinds = {self.screen.atom(name): name for name in
                 ("_NET_STARTUP_INFO_BEGIN", "_NET_STARTUP_INFO", "_NET_ACTIVE_WINDOW")}
        for _ in range(self.screen.display.pending_events()):
            message = self.screen.display.next_event()
            kind = kinds.get(message.client_type) if message.type == X.ClientMessage else None
            if kind == "_NET_ACTIVE_WINDOW":
                self.times.append(message.data[1][1])
            elif kind:
                self.part = (b"" if kind.endswith("BEGIN") else self.part) + bytes(message.data[1])
                if b"\0" in self.part:
                    self.texts.append(self.part.partition(b"\0")[0].decode())
        return self


def server_time(screen):
    """Of the X server, in its milliseconds."""
    window = screen.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent, event_mask=X.PropertyChangeMask)
    window.change_property(screen.atom("_TEST"), screen.atom("STRING"), 8, b"")
    while True:
        seen = screen.display.next_event()
        if seen.type == X.PropertyNotify and seen.window == window:
            window.destroy()
            return seen.time


def comes_forward(session):
    screen = Screen()
    other = screen.open((20, 20, 1200, 700), DESKTOP)
    messages = Messages(screen)
    for number, ask in enumerate((
            lambda token: called("Activate", f"{{'desktop-startup-id': <'{token}'>}}"),
            lambda token: called("ActivateAction", "settings", "[]", f"{{'activation-token': <'{token}'>}}"),
            lambda token: subprocess.run([PROGRAM], env=dict(session.env, DESKTOP_STARTUP_ID=token), check=True),
            lambda token: subprocess.run([PROGRAM], env=dict(session.env, XDG_ACTIVATION_TOKEN=token), check=True))):
        if session.main_windows():
            other.raise_window()
            other.set_input_focus(X.RevertToParent, X.CurrentTime)
            screen.display.sync()
            wait_for("other window with the keyboard", lambda: screen.focus() == other.id)
        time_of_call = server_time(screen)  # nobody takes the keyboard from who had it later
        token = f"door-\"{number}\"_TIME{time_of_call}"
        ask(token)
        escaped = token.replace('"', '\\"')
        wait_for("end of the start", lambda: f'remove: ID="{escaped}"' in messages.read().texts)
        window = wait_for("main window", session.main_windows)[0]
        wait_for(f"main window with the keyboard by {token}", lambda: active_window() == int(window))
        marked = subprocess.run(["xprop", "-id", window, "_NET_STARTUP_ID"], capture_output=True, text=True).stdout
        assert re.search(f'door-.*{number}.*_TIME{time_of_call}', marked), marked
        if number:  # it was open
            wait_for("time of the call", lambda: time_of_call in messages.read().times)
    other.destroy()
    screen.display.close()
    close_window(session)


def whole():
    session, host = Session({"hasLaunchedBefore": True, "animations": False, "widgets.v2": WIDGETS}), StatusHost()
    session.start()
    wait_for("name on the bus", lambda: owner() == session.process.pid)
    wait_for("tray item", lambda: host.iterate() or host.item)
    nothing_happens(session)
    for ask in (by_bus, by_start):
        each_action(session, host, ask)
    called("Activate", "{}")
    is_of_its_entry(wait_for("main window", session.main_windows)[0])
    close_window(session)
    opens_a_theme(session)
    comes_forward(session)
    by_bus(session, "quit")
    session.ended()
    host.close()
    return session


def first_starts(session):
    """What a start that finds no other is asked to do is done once its widgets stand."""
    by_start(session, "quit")
    assert owner() is None
    screen = Screen()
    messages = Messages(screen)
    session.env["DESKTOP_STARTUP_ID"] = "panel_TIME5"
    session.start("--action", "edit")
    del session.env["DESKTOP_STARTUP_ID"]
    wait_for("edit mode", lambda: backdrop(session))
    wait_for("end of the start", lambda: any("panel_TIME5" in text for text in messages.read().texts))
    by_start(session, "quit")
    session.ended()
    screen.display.close()


def without_the_name(session):
    address = session.env.pop("DBUS_SESSION_BUS_ADDRESS")
    for bus, what in ((f"unix:path={session.home}/none", "no bus"), (address, "name taken")):
        session.env["DBUS_SESSION_BUS_ADDRESS"] = bus
        taken = dbus.service.BusName(NAME, dbus.SessionBus()) if bus == address else None
        session.start()
        wait_for(f"widgets: {what}", session.panels)
        by_start(session, "settings")
        wait_for(f"main window: {what}", session.main_windows)
        by_start(session, "quit")
        session.ended()
        assert owner() == (os.getpid() if taken else None)
        del taken


def desktop_entry():
    entry = configparser.RawConfigParser(interpolation=None)
    entry.read(ENTRY)
    return entry


def is_of_its_entry(window):
    """By this docks and lists of windows find its name and its icon."""
    told = subprocess.run(["xprop", "-id", window, "WM_CLASS"], capture_output=True, text=True).stdout
    assert f'"{desktop_entry()["Desktop Entry"]["startupwmclass"]}",' in told, told


def entry_names_actions(session):
    """The desktop's menu of programs offers what the program knows."""
    entry = desktop_entry()
    actions = entry["Desktop Entry"]["actions"].strip(";").split(";")
    usage = subprocess.run([PROGRAM, "--help"], capture_output=True, text=True).stdout
    assert len(actions) == 3 and len(entry.sections()) == 4
    for action in actions:
        assert entry[f"Desktop Action {action}"]["exec"] == f"ambrelle --action {action}"
        assert re.search(rf"\b{action}\b", usage), action


if not shutil.which("gdbus"):
    print("skipped: gdbus is not installed")
    sys.exit(77)
switch_on()
subject = whole()
first_starts(subject)
without_the_name(subject)
entry_names_actions(subject)
shutil.rmtree(subject.home)
