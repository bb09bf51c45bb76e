#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The tab of themes of the whole program, by keyboard and as a user of assistive technology finds it: themes_test.py PROGRAM.

The welcome and its actions; a theme that is found, applied and taken back; desktops that are saved, renamed, exported,
deleted, brought back and imported again; a file that is no theme.
"""
import subprocess

from assistive import BUTTON, CARD, TAB, Atspi, find, gone, has, press, shown, switch_on
from program import PROGRAM, Session, active_window, pointer, wait_for

LINES = ["Your widgets are on the desktop. Point at one to move, resize or restyle it.",
         "Pick any theme below to change the whole desktop at once."]
REPLACED = "Your current widgets will be replaced."
REFUSED = ("Couldn't open “broken.ambrelle”",
           "It isn't an Ambrelle theme file, or it was made by a newer version.")


def key(*keys):
    pointer("key", "--delay", "80", *keys)


def write(text):
    pointer("type", "--delay", "40", text)


def press_in_grid(name):
    """Chooses the card as the arrow keys and letters do."""
    chosen = shown(name, CARD)
    wait_for("card chosen", lambda: (write(name[0].lower()), has(chosen, Atspi.StateType.SELECTED))[1]
             or find_selected(name))


def find_selected(name):
    item = find(name, CARD)
    return item and has(item, Atspi.StateType.SELECTED)


def names():
    return [theme["name"] for theme in session.stored().get("savedThemes.v1", [])]


def skins():
    return {widget["skin"] for widget in session.widgets()}


def begin():
    """The window opens by itself at the first start only."""
    first = not session.store.exists()
    session.start()
    if not first:
        wait_for("widgets", session.panels)
        subprocess.run([PROGRAM], env=session.env, check=True)
    wait_for("window with the keyboard", lambda: find("Themes", TAB) and active_window())


switch_on()
session = Session()
begin()

# The first start.
for line in LINES:
    shown(line)
shown("Edit & Move Widgets", BUTTON)
shown("Set City…", BUTTON)
press("Dismiss")
gone(LINES[0])
session.stop()
assert "showWelcome" not in session.stored(), "it comes back"

# A theme is found, applied and taken back.
begin()
assert not find(LINES[0])
before = session.widgets()
assert before and skins() != {"neon"}
key("ctrl+f")
write("neon")
wait_for("one theme", lambda: find("Concept, 1 theme"))
key("Down", "ctrl+Return")
shown("Apply “Neon”?")
shown(REPLACED)
key("Escape")
gone("Apply “Neon”?")
assert session.widgets() == before, "nothing was to change"
key("ctrl+Return")
shown("Apply “Neon”?")
key("Return")
wait_for("13 widgets in neon", lambda: len(session.widgets()) == 13 and skins() == {"neon"})
shown("“Neon” is on your desktop")
key("ctrl+z")
wait_for("the widgets from before", lambda: session.widgets() == before)

# A desktop is saved, renamed, exported, deleted and brought back.
key("ctrl+s")
shown("Name this desktop. It will appear under My Themes.")
write("Old Desk")
key("Return")
wait_for("desktop saved", lambda: names() == ["Old Desk"])
wait_for("My Themes", lambda: find("My Themes, 1 desktop"))
key("ctrl+s")
shown("Save Current Desktop")
write("Second")
key("Return")
wait_for("another one before it", lambda: names() == ["Second", "Old Desk"])
shown("Second", CARD)
press_in_grid("Old Desk")
key("F2")
write("Evening")
key("Return")
wait_for("new name", lambda: names() == ["Second", "Evening"])
key("Delete")
shown("Delete “Evening”?")
press("Delete")
wait_for("desktop deleted", lambda: names() == ["Second"])
shown("“Evening” deleted")
key("ctrl+z")
wait_for("desktop at its old place", lambda: names() == ["Second", "Evening"])

# A file is written, and taken again along with one that is no theme.
file = session.home / "Evening.ambrelle"
press_in_grid("Evening")
key("ctrl+e")
wait_for("chooser", lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Export “Evening”"],
                                           capture_output=True, check=False).stdout)
key("ctrl+a")
write(str(file))
key("Return")
wait_for("file", file.exists)
broken = session.home / "broken.ambrelle"
broken.write_text("{}")
subprocess.run([PROGRAM, str(broken), str(file)], env=session.env, check=True)
wait_for("desktop imported", lambda: names() == ["Evening", "Second", "Evening"])
for text in REFUSED:
    shown(text)
press("OK")
gone(REFUSED[0])
shown("“Evening” added to My Themes")
session.end()
