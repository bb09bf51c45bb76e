#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Files that are dragged from another program onto the main window, with a real pointer: drops_test.py PROGRAM.

Themes go to My Themes wherever they are dropped, with their accents; pictures to My Wallpapers on that tab; of twenty files
each one; what is neither is refused, or named in a sentence.
"""
import contextlib
import json
import subprocess
import uuid
from pathlib import Path

from assistive import CARD, click, find, gone, open_window, press, shown, switch_on
from program import Session, place_of, pointer, shot, wait_for
from rootpicture import Root, fill_root

SOURCE = Path(__file__).parent.parent / "support/drag_source.py"
source = subprocess.Popen(["/usr/bin/python3", str(SOURCE)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
NO_THEME = "It isn't an Ambrelle theme file, or it was made by a newer version."
COPIED = "taken XdndActionCopy"
EDGE = 24  # points of the window within which the invitation's frame is drawn


def theme_file(folder, name, accents=None):
    file = folder / f"{name}.ambrelle"
    widgets = [{"config": {"kind": kind, "skin": "neon", "origin": [0, 0]}, "fx": x, "fy": 0.1}
               for kind, x in (("clock", 0.1), ("cpu", 0.6))]
    theme = {"id": str(uuid.uuid4()).upper(), "name": name, "created": 0, "wallpaper": "neon", "widgets": widgets}
    file.write_text(json.dumps({"format": "Ambrelle Theme", "version": 1, "theme": theme, "accents": accents or {}}))
    return file


def picture_file(folder, name, colour):
    file = folder / name
    subprocess.run(["convert", "-size", "64x40", f"xc:{colour}", str(file)], check=True)
    return file


@contextlib.contextmanager
def carried(window, *files):
    """The files over the middle of the window; what is given says, once they were dropped, what the program answered."""
    x, y, width, height = place_of(window)

    def drop():
        pointer("mouseup", "1")
        return source.stdout.readline().strip()
    print(json.dumps([str(file) for file in files]), file=source.stdin, flush=True)
    assert source.stdout.readline() == "ready\n"
    pointer("mousemove", "20", "20", "sleep", "0.1", "mousedown", "1")
    for step in range(1, 11):
        pointer("mousemove", str(20 + (x + width // 2 - 20) * step // 10), str(20 + (y + height // 2 - 20) * step // 10))
    yield drop


def drop(window, *files):
    with carried(window, *files) as let_go:
        return let_go()


def take(window, *files):
    answer = drop(window, *files)
    assert answer == COPIED, answer


def names(session):
    return [theme["name"] for theme in session.stored().get("savedThemes.v1", [])]


def own_pictures(session):
    return [Path(path).name for path in session.stored().get("customWallpapers", [])]


def drop_theme(session, window):
    pointer("key", "ctrl+4")
    shown("General", CARD)
    pointer("mousemove", "1", "1")
    x, y, _, height = place_of(window)
    edge = x, y, EDGE, height
    bare = wait_for("page at rest", lambda: (one := shot(*edge)) == shot(*edge) and one)
    with carried(window, theme_file(session.home, "Harbour", {"neon": "#12AB34"})) as let_go:
        wait_for("frame of the invitation", lambda: shot(*edge) != bare)
        assert let_go() == COPIED
    wait_for("theme in the store", lambda: names(session) == ["Harbour"])
    wait_for("its accent there", lambda: session.stored().get("themeAccents") == {"neon": "#12AB34"})
    shown("Harbour", CARD)
    shown("“Harbour” added to My Themes")
    gone("General", CARD)
    widgets = session.stored()["savedThemes.v1"][0]["widgets"]
    assert [(each["config"]["kind"], each["config"]["skin"]) for each in widgets] == [("clock", "neon"), ("cpu", "neon")]


def drop_no_theme(session, window):
    broken = session.home / "broken.ambrelle"
    broken.write_text("{}")
    take(window, broken)
    shown("Couldn't open “broken.ambrelle”")
    shown(NO_THEME)
    press("OK")
    gone(NO_THEME)
    notes = session.home / "notes.txt"
    notes.write_text("milk, eggs")
    assert drop(window, notes) == "refused"
    assert drop(window, picture_file(session.home, "here.png", "#ffffff")) == "refused", "a picture on the themes"
    assert names(session) == ["Harbour"] and own_pictures(session) == []


def drop_twenty_themes(session, window):
    files = [theme_file(session.home, f"Desk {number:02}") for number in range(20)]
    for number in (3, 19):
        files[number].write_text('{"format": "Ambrelle Theme", "version": 1}')
    take(window, *files)
    good = [f"Desk {number:02}" for number in range(20) if number not in (3, 19)]
    wait_for("eighteen more", lambda: names(session) == [*reversed(good), "Harbour"])
    for number in (3, 19):
        shown(f"Couldn't open “Desk {number:02}.ambrelle”")
        press("OK")
    gone(NO_THEME)
    shown("18 themes added to My Themes")
    shown("Desk 18", CARD)
    pointer("key", "ctrl+z")
    wait_for("all of them gone", lambda: names(session) == ["Harbour"])
    gone("Desk 18", CARD)


def drop_pictures(session, window):
    pointer("key", "ctrl+3")
    shown("Drop pictures here", CARD)
    lake = picture_file(session.home, "a lake & more.png", "#104070")
    take(window, lake)
    wait_for("picture in the store", lambda: own_pictures(session) == [lake.name])
    shown("1 picture added")
    root = Root()
    click(lake.name, CARD)
    wait_for("picture on the desktop", lambda: root.is_filled(0x104070))
    assert session.stored()["desktopPicture.current"] == str(lake)
    false = session.home / "false.png"
    false.write_text("no picture")
    take(window, false)
    shown("“false.png” isn't a picture")
    press("Dismiss")
    gone("“false.png” isn't a picture")
    many = [picture_file(session.home, f"{number}.png", f"#{number:02}4455") for number in range(10, 30)]
    take(window, *many)
    wait_for("all of them in the store", lambda: own_pictures(session) == [*(file.name for file in many), lake.name])
    shown("20 pictures added")
    wait_for("the first of them in the grid", lambda: find("10.png", CARD))
    pointer("key", "ctrl+z")
    wait_for("all of them off the list", lambda: own_pictures(session) == [lake.name])
    assert all(file.exists() for file in many)


def main():
    switch_on()
    session = Session({"hasLaunchedBefore": True, "animations": False, "widgets.v2": [
        {"kind": "cpu", "skin": "glass", "origin": [5, 5]}]})
    fill_root(0x336699)
    session.start()
    wait_for("widget", session.panels)
    window = open_window(session)
    drop_theme(session, window)
    drop_no_theme(session, window)
    drop_twenty_themes(session, window)
    drop_pictures(session, window)
    session.end()
    print("themes and pictures dropped, twenty at once, and what is neither")


main()
