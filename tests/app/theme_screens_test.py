#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Themes for one of two screens, for both, and for a screen that is unplugged meanwhile: theme_screens_test.py PROGRAM.

What counts is where the widgets stand, what the root window shows on each screen, and what is in the store.
"""
import subprocess

from assistive import BUTTON, click, find, gone, open_window, press, shown, switch_on, Atspi
from program import Session, place_of, pointer, screen_size, wait_for
from rootpicture import Root, fill_root

OWN = 0x336699  # colour of the picture that the user had
OTHERS_STAY = "Your current widgets will be replaced. Widgets on other screens stay."
REPLACED = "Your current widgets will be replaced."
EVERY, RIGHT = 1, 3  # entries of the list of places


def plug(half, height, *names):
    told = subprocess.run(["xrandr", "--listmonitors"], check=True, capture_output=True, text=True).stdout
    for name in ("RIGHT", "LEFT"):
        if name not in names and name in told:
            subprocess.run(["xrandr", "--delmonitor", name], check=True)
    for name, x, output in (("LEFT", 0, "screen"), ("RIGHT", half, "none")):
        if name in names and name not in told:
            subprocess.run(["xrandr", "--setmonitor", name, f"{half}/300x{height}/200+{x}+0", output], check=True,
                           stdout=subprocess.DEVNULL)


def sides(session, half):
    """The widgets in the store, by the screen on which they stand."""
    widgets = session.widgets()
    return [each for each in widgets if each["origin"][0] < half], [each for each in widgets if each["origin"][0] >= half]


def skins(widgets):
    return {widget["skin"] for widget in widgets}


def panels(session):
    main = session.main_windows()
    return list(filter(None, (place_of(window) for window in session.windows() if window not in main)))


def shown_on(session, left, right):
    """Whether so many panels have their middle in that part of the display."""
    return sum(left <= x + width / 2 < right for x, _, width, _ in panels(session))


def open_theme(title):
    pointer("key", "ctrl+f", "ctrl+a")
    pointer("type", "--delay", "20", title)
    wait_for("one theme", lambda: find("Concept, 1 theme") or find("Minimal, 1 theme") or find("Modern, 1 theme"))
    pointer("key", "--delay", "80", "Down", "Return")
    shown("Apply with Wallpaper", BUTTON)


def choose_place(entry):
    click("Put widgets on", Atspi.Role.COMBO_BOX)
    pointer("sleep", "0.3", "key", "--delay", "50", "Home", *["Down"] * entry, "Return")


def on_one(session, root, half, folder):
    open_theme("neon")
    choose_place(RIGHT)
    press("Apply with Wallpaper")
    shown(OTHERS_STAY)
    pointer("key", "Return")
    wait_for("neon on the right", lambda: skins(sides(session, half)[1]) == {"neon"})
    left, right = sides(session, half)
    assert [(each["origin"], each["skin"]) for each in left] == [([20, 20], "glass")]
    wait_for("panels there", lambda: shown_on(session, half, 2 * half) == len(right) and shown_on(session, 0, half) == 1)
    file = wait_for("its picture", lambda: next(folder.glob("neon-*.png"), None))
    wait_for("it on the right", lambda: root.shows(file, half, half))
    assert root.is_filled(OWN, 0, half)
    pointer("key", "ctrl+z")
    wait_for("as it was", lambda: root.is_filled(OWN) and len(session.widgets()) == 2)
    return len(right)


def on_every(session, root, half, folder, count):
    choose_place(EVERY)
    press("Apply with Wallpaper")
    shown(REPLACED)
    pointer("key", "Return")
    wait_for("neon on both", lambda: skins(session.widgets()) == {"neon"}
             and [len(side) for side in sides(session, half)] == [count] * 2)
    wait_for("panels on both", lambda: shown_on(session, half, 2 * half) == count == shown_on(session, 0, half))
    file = next(folder.glob("neon-*.png"))
    wait_for("picture on both", lambda: root.shows(file, half, half) and root.shows(file, 0, half))
    press("Back to Themes")
    gone("Back to Themes")


def unplug_meanwhile(session, root, half, height, folder):
    open_theme("bauhaus")
    choose_place(EVERY)
    press("Apply with Wallpaper")
    shown(REPLACED)
    pointer("key", "Return")
    plug(half, height, "LEFT")
    wait_for("bauhaus", lambda: skins(session.widgets()) == {"bauhaus"})
    gone("Put widgets on", Atspi.Role.COMBO_BOX)
    wait_for("all on the screen that is left", lambda: shown_on(session, 0, half) == len(session.widgets())
             and not sides(session, half)[1])
    file = wait_for("its picture", lambda: next(folder.glob("bauhaus-*.png"), None))
    wait_for("it on the left", lambda: root.shows(file, 0, half))
    count = len(session.widgets())
    plug(half, height, "LEFT", "RIGHT")
    shown("Put widgets on", Atspi.Role.COMBO_BOX)
    wait_for("widgets at home", lambda: all(sides(session, half)) and shown_on(session, half, 2 * half) == count // 2)
    assert len(session.widgets()) == count and skins(session.widgets()) == {"bauhaus"}
    wait_for("picture on both", lambda: root.shows(file, half, half) and root.shows(file, 0, half))


def main():
    switch_on()
    width, height = screen_size()
    half = width // 2
    fill_root(OWN)
    root = Root()
    plug(half, height, "LEFT", "RIGHT")
    session = Session({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "widgets.v2": [
        {"kind": "cpu", "skin": "glass", "origin": [20, 20]}, {"kind": "cpu", "skin": "glass", "origin": [half + 20, 20]}]})
    folder = session.home / "data/ambrelle/Wallpapers"
    pointer("mousemove", "1", "1")
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == 2)
    open_window(session)
    count = on_one(session, root, half, folder)
    on_every(session, root, half, folder, count)
    unplug_meanwhile(session, root, half, height, folder)
    session.end()
    print("a theme on one screen and on both; a screen unplugged and plugged in again")


main()
