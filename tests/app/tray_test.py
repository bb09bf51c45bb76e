#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program and the trays of the display of this test: tray_test.py PROGRAM.

A panel that shows announced items gets the item with its menu, early or late, and again after it started anew; a panel
that takes windows gets one that opens window and menu; without any, a second start and the menu of a widget do.
"""
import shutil
import subprocess
import time

from program import PATIENCE, PROGRAM, Session, active_window, hover, pointer, press_until, shot, wait_for
from status_host import StatusHost

DOUBLE_CLICK = 0.6  # seconds after which a click is one of its own
MENU = ["Open Ambrelle", "Themes", "Add Widgets", "-", "Start Focus", "-", "Edit & Move Widgets",
        "Lock Widget Positions", "-", "Settings", "Quit Ambrelle"]


def started(**settings):
    session = Session({"animations": False, **settings})
    session.start()
    wait_for("widgets", session.panels)
    session.dismiss_welcome()
    return session


def ended(session):
    session.ended()
    shutil.rmtree(session.home)


def windows(session, *tell_and_word):
    """The program's visible windows of which that command tells that."""
    *tell, word = tell_and_word
    return {window for window in session.windows()
            if word in subprocess.run([*tell, "-id", window], capture_output=True, text=True).stdout}


def menus(session):
    return windows(session, "xwininfo", "Override Redirect State: yes")


def main_window(session):
    return windows(session, "xprop", "_NET_WM_WINDOW_TYPE_NORMAL") - menus(session)


def panels_above(session):
    return windows(session, "xprop", "_NET_WM_STATE_ABOVE")


def item_of(host):
    def look():
        host.iterate()
        return host.item
    return wait_for("tray item", look)


def label(line):
    # The first underscore marks the key of a line.
    return "-" if line.get("type") == "separator" else str(line["label"]).replace("_", "", 1)


def checked(host, text):
    return next(line for line in host.menu() if label(line) == text)["toggle-state"] == 1


def announced():
    host = StatusHost()
    session = started()
    item_of(host)
    assert [tuple(map(int, image[:2])) for image in host.property("IconPixmap")] == [(s, s) for s in (16, 22, 24, 32, 48)]
    assert host.property("ToolTip")[2] == "Ambrelle"
    lines = host.menu()
    assert [label(line) for line in lines] == MENU, [label(line) for line in lines]
    keys = {label(line): [list(map(str, keys)) for keys in line["shortcut"]] for line in lines if "shortcut" in line}
    assert keys == {"Settings": [["Control", ","]], "Quit Ambrelle": [["Control", "Q"]]}, keys
    host.activate(times=2)  # a double click
    time.sleep(DOUBLE_CLICK)
    wait_for("main window after a double click", lambda: main_window(session))
    host.activate()
    wait_for("closed main window", lambda: not main_window(session))

    for text in ("Edit & Move Widgets", "Lock Widget Positions"):
        assert not checked(host, text)
        host.choose(lambda line, text=text: label(line) == text)
        assert checked(host, text), f"“{text}” was not checked when the menu was opened again"
    wait_for("widgets above windows", lambda: len(panels_above(session)) >= len(session.widgets()))
    wait_for("keyboard at a backdrop", lambda: active_window() in map(int, main_window(session)))
    pointer("key", "Escape")
    wait_for("end of edit mode", lambda: not panels_above(session))
    assert not checked(host, "Edit & Move Widgets")
    wait_for("stored lock", lambda: session.stored().get("locked") is True)
    host.choose(lambda line: label(line) == "Start Focus")
    assert "Pause Focus" in map(label, host.menu())

    host.close()
    host = StatusHost()
    item_of(host)  # again, though the panel is another one
    host.choose(lambda line: label(line) == "Quit Ambrelle")
    ended(session)
    host.close()


def late():
    session = started()
    time.sleep(3)
    host = StatusHost()
    item_of(host)
    host.choose(lambda line: label(line) == "Quit Ambrelle")
    ended(session)
    host.close()


def docked():
    if not shutil.which("trayer"):
        print("trayer is not installed: windows in trays are left out")
        return
    session = started()
    time.sleep(1)  # it is late, too
    tray = subprocess.Popen(["trayer", "--edge", "bottom", "--height", "24"], stderr=subprocess.DEVNULL)
    try:
        place = wait_for("docked item", lambda: [p for p in session.panels() if p[2] < 48 and p[3] < 48])[0]
        pointer("mousemove", str(place[0] + 11), str(place[1] + 11), "sleep", "0.2", "click", "1")
        wait_for("main window", lambda: main_window(session))
        pointer("click", "3")
        wait_for("menu", lambda: menus(session))
        press_until("ctrl+q", "end of the program", lambda: session.process.poll() is not None)
        ended(session)
    finally:
        tray.kill()
        tray.wait()


def without_tray():
    session = started()
    count = len(session.widgets())
    assert not main_window(session)
    assert subprocess.run([PROGRAM, "/tmp/gift.ambrelle"], env=session.env, timeout=PATIENCE).returncode == 0
    wait_for("main window of a second start", lambda: active_window() in map(int, main_window(session)))
    press_until("Escape", "closed main window", lambda: not main_window(session))  # the file is told to be none before
    before = set(session.panels())
    x, y, width, height = min(before)
    hover(x + width // 2, y + height // 2)
    pointer("click", "3")
    wait_for("menu of a widget", lambda: menus(session))
    menu, = set(session.panels()) - before

    def painted():
        seen = shot(*menu)
        time.sleep(0.3)
        return seen if len(set(seen)) > 8 and shot(*menu) == seen else None
    plain = wait_for("painted menu", painted)
    press_until("Up", "chosen line", lambda: shot(*menu) != plain)
    pointer("key", "Return")  # the last line removes the widget
    wait_for("removal", lambda: len(session.widgets()) == count - 1)
    session.end()


announced()
late()
docked()
without_tray()
print("announced early, late and again; docked; reached without a tray")
