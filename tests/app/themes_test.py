#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The tab of themes of the whole program, by keyboard and as a user of assistive technology finds it: themes_test.py PROGRAM.

The welcome and its actions; a theme that is found, applied and taken back; desktops that are saved, renamed, exported,
deleted, brought back and imported again; a file that is no theme.
"""
import subprocess
import sys

import dbus

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("skipped: gir1.2-atspi-2.0 is not installed")
    sys.exit(77)

from program import PROGRAM, Session, active_window, pointer, wait_for

LINES = ["Your widgets are on the desktop. Point at one to move, resize or restyle it.",
         "Pick any theme below to change the whole desktop at once."]
REPLACED = "Your current widgets will be replaced."
REFUSED = ("Couldn't open “broken.ambrelle”",
           "It isn't an Ambrelle theme file, or it was made by a newer version.")


def switch_on():
    dbus.SessionBus().start_service_by_name("org.a11y.Bus")
    status = dbus.SessionBus().get_object("org.a11y.Bus", "/org/a11y/bus")
    status.Set("org.a11y.Status", "IsEnabled", True, dbus_interface=dbus.PROPERTIES_IFACE)


def descendants(item, depth=0):
    """All that is below an item and can be seen."""
    try:
        for index in range(item.get_child_count()):
            child = item.get_child_at_index(index)
            if child and child.get_state_set().contains(Atspi.StateType.SHOWING):
                yield child
                if depth < 20:
                    yield from descendants(child, depth + 1)
    except GLib.Error:  # gone meanwhile
        return


def main_window():
    while GLib.MainContext.default().iteration(False):
        pass
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program and program.get_name() == "ambrelle":
            for number in range(program.get_child_count()):
                window = program.get_child_at_index(number)
                if window and window.get_name() == "Ambrelle":
                    return window
    return None


def find(name, role=None):
    window = main_window()
    for item in descendants(window) if window else ():
        try:
            if item.get_name() == name and (role is None or item.get_role() == role):
                return item
        except GLib.Error:
            continue
    return None


def shown(name, role=None):
    return wait_for(f"“{name}”", lambda: find(name, role))


def gone(name):
    wait_for(f"no “{name}” any more", lambda: not find(name))


def press(name):
    Atspi.Action.do_action(shown(name, Atspi.Role.PUSH_BUTTON), 0)


def key(*keys):
    pointer("key", "--delay", "80", *keys)


def write(text):
    pointer("type", "--delay", "40", text)


def press_in_grid(name):
    """Chooses the card as the arrow keys and letters do."""
    chosen = shown(name, Atspi.Role.LIST_ITEM)
    wait_for("card chosen", lambda: (write(name[0].lower()), chosen.get_state_set().contains(Atspi.StateType.SELECTED))[1]
             or find_selected(name))


def find_selected(name):
    item = find(name, Atspi.Role.LIST_ITEM)
    return item and item.get_state_set().contains(Atspi.StateType.SELECTED)


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
    wait_for("window with the keyboard", lambda: find("Themes", Atspi.Role.PAGE_TAB) and active_window())


switch_on()
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # it would tell of nothing that came later
session = Session()
begin()

# The first start.
for line in LINES:
    shown(line)
shown("Edit & Move Widgets", Atspi.Role.PUSH_BUTTON)
shown("Set City…", Atspi.Role.PUSH_BUTTON)
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
shown("Second", Atspi.Role.LIST_ITEM)
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
