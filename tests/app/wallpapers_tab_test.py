#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The Wallpapers tab of the whole program, with a real pointer and the root window's picture: wallpapers_tab_test.py PROGRAM.

A click sets a wallpaper, of two quick ones the second; pictures are added and taken off again, and stay on the disk; where
nothing can be written, the bar says so and the old picture stays; the user's own picture comes back.
"""
import subprocess
import time

from assistive import BUTTON, CARD, CHOICE, LABEL, click, find, found, press, shown, switch_on
from program import PROGRAM, Session, active_window, pointer, wait_for
from rootpicture import Root, fill_root

OWN = 0x336699  # colour of the picture that the user had
ON_DESKTOP = "On your desktop"
CHOOSER = "Choose pictures to add to My Wallpapers"


def card(name):
    return find(name, CARD)


def set_by_click(name):
    click(name, CARD)


def on_desktop(name):
    item = card(name)
    return item and ON_DESKTOP in item.get_description()


def bar(text):
    return find(text, LABEL)


def current(session):
    return session.stored().get("desktopPicture.current", "")


switch_on()
session = Session({"hasLaunchedBefore": True, "animations": False, "widgets.v2": [
    {"kind": "cpu", "skin": "glass", "origin": [5, 5]}]})
fill_root(OWN)
root = Root()
session.start()
wait_for("widget", session.panels)
subprocess.run([PROGRAM], env=session.env, check=True)
wait_for("main window", active_window)
pointer("key", "ctrl+3")
click("Wallpapers: Themes", CHOICE)
wait_for("only the themes", lambda: not find("Drop pictures here", CARD))

set_by_click("Neon")
wait_for("pill on Neon", lambda: on_desktop("Neon"))
wait_for("bar", lambda: bar("Wallpaper set to Neon"))
assert "neon" in current(session), current(session)
wait_for("Neon on the root window", lambda: root.shows(current(session)))

set_by_click("Paper")
set_by_click("Bauhaus")
wait_for("pill on Bauhaus", lambda: on_desktop("Bauhaus"))
time.sleep(2)  # long enough for the other one to come late
assert on_desktop("Bauhaus") and not on_desktop("Paper") and not on_desktop("Neon")
assert "bauhaus" in current(session) and root.shows(current(session))

folder = session.home / "data/ambrelle/Wallpapers"
assert folder.is_dir()
folder.rename(folder.parent / "away")
folder.write_text("in the way")
before = root.pixels()
set_by_click("Neon")
shown("Try Again", BUTTON)
assert root.pixels() == before and on_desktop("Bauhaus") and not on_desktop("Neon")
folder.unlink()
(folder.parent / "away").rename(folder)
press("Try Again")
wait_for("pill on Neon again", lambda: on_desktop("Neon"))

pictures = [session.home / "lake.png", session.home / "two words.png"]
for picture, colour in zip(pictures, ("#104070", "#701040")):
    subprocess.run(["convert", "-size", "64x40", f"xc:{colour}", str(picture)], check=True)
click("Add Pictures…", BUTTON)
wait_for("chooser", lambda: found(lambda item: item.get_name() == "Add", CHOOSER))
pointer("type", "--delay", "20", " ".join(f'"{picture}"' for picture in pictures))
pointer("key", "Return")
wait_for("both in the store", lambda: set(session.stored().get("customWallpapers", [])) == set(map(str, pictures)))
wait_for("both in the grid", lambda: card("lake.png") and card("two words.png"))
set_by_click("lake.png")
wait_for("pill on the own picture", lambda: on_desktop("lake.png"))
wait_for("own picture on the root window", lambda: root.is_filled(0x104070))
set_by_click("two words.png")
wait_for("pill on the other", lambda: on_desktop("two words.png"))
pointer("key", "Delete")
wait_for("one less", lambda: session.stored().get("customWallpapers") == [str(pictures[0])])
assert pictures[1].exists()
pointer("key", "ctrl+z")
wait_for("it again", lambda: len(session.stored().get("customWallpapers")) == 2)

click("Bring Back My Picture", BUTTON)
wait_for("bar about it", lambda: bar("Your own picture is back"))
wait_for("no button for it", lambda: not find("Bring Back My Picture", BUTTON))
wait_for("it on the root window", lambda: root.is_filled(OWN))

session.end()
print("wallpapers set, added, taken off and given back")
