#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Themes that are applied in the main window of the whole program: applying_test.py PROGRAM [KILLS [SEED]].

Without the wallpaper, and with it; an accent, which every widget follows; thirty themes one upon the other, of which the last
counts; a theme, a setting and a file on a full disk; and the program is killed while it applies a theme, at a random moment
and while the wallpaper is painted. What counts is what widgets and root window show, and what is in the store.
"""
import collections
import colorsys
import json
import random
import resource
import signal
import subprocess
import sys
import time

from assistive import BUTTON, CARD, CHOICE, Atspi, cards, find, gone, open_window, place, press, shown, switch_on
from program import PROGRAM, Session, place_of, pointer, screen_size, shot, wait_for
from rootpicture import Root, fill_root

KILLS = int(sys.argv[2]) if len(sys.argv) > 2 else 4
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
OWN = 0x336699  # colour of the picture that the user had
REPLACED = "Your current widgets will be replaced."
UNFINISHED = "desktopPicture.unfinished"
ON_DESKTOP = "On your desktop"
MARGIN, ABOVE = 30, 32  # points of a panel beside and below its face, and above it
PINK, LIME = "#FF4FA8", "#99FF33"  # Neon's accent, and another one for it
ALIKE, LEAST_PIXELS = 0.04, 20  # of a turn of the colour wheel, and how many so alike are a part of a face
ALWAYS_ACCENTED = {"calendar", "memory", "disk"}  # whatever there is to tell
WISHES, ROUND = 30, 8  # themes that are wished for one upon the other, and how many different ones
dice = random.Random(SEED)


def skins(session):
    return {widget["skin"] for widget in session.widgets()}


def picture(session):
    return session.stored().get("desktopPicture.current", "")


def panels(session):
    main = session.main_windows()
    return list(filter(None, (place_of(window) for window in session.windows() if window not in main)))


def panel_of(widget, places):
    """Where the widget shows, if a panel has its place."""
    left, bottom = widget["origin"]
    bottom = list(screen_size())[1] - bottom
    return next((place for place in places
                 if abs(place[0] + MARGIN - left) <= 2 and abs(place[1] + place[3] - MARGIN - bottom) <= 2), None)


def all_shown(session):
    places = panels(session)
    widgets = session.widgets()
    return widgets and all(panel_of(widget, places) for widget in widgets)


def agrees(session, root):
    """Whether the desktop is what is in the store."""
    file = picture(session)
    return all_shown(session) and (root.shows(file) if file else root.is_filled(OWN))


def search(words):
    pointer("key", "ctrl+1", "ctrl+f", "ctrl+a")
    pointer("type", "--delay", "20", words)


def keep_wallpaper(session, root):
    search("neon")
    wait_for("one theme", lambda: find("Concept, 1 theme"))
    pointer("key", "--delay", "80", "Down", "ctrl+Return")
    shown(REPLACED)
    press("Keep My Wallpaper")
    wait_for("13 widgets in neon", lambda: len(session.widgets()) == 13 and skins(session) == {"neon"})
    shown("“Neon” is on your desktop")
    assert session.stored()["defaultSkin"] == "neon"
    wait_for("all of them on the desktop", lambda: all_shown(session))
    assert root.is_filled(OWN) and not picture(session)


def kinds_with(session, colour):
    """The kinds of the widgets in whose faces its hue is seen."""
    def hue(rgb):
        h, saturation, value = colorsys.rgb_to_hsv(*(part / 255 for part in rgb))
        return h if saturation > 0.4 and value > 0.4 else None

    def shows(place):
        x, y, width, height = place
        pixels = shot(x + MARGIN, y + ABOVE, width - 2 * MARGIN, height - ABOVE - MARGIN)
        counts = collections.Counter(pixels[at:at + 3] for at in range(0, len(pixels), 3))
        seen = ((hue(pixel), count) for pixel, count in counts.items())
        return sum(count for h, count in seen if h is not None and abs(h - wanted) < ALIKE) >= LEAST_PIXELS
    wanted = hue(bytes.fromhex(colour[1:]))
    places = panels(session)
    return {widget["kind"] for widget in session.widgets() if shows(panel_of(widget, places))}


def close(session):
    pointer("key", "ctrl+w")
    wait_for("closed window", lambda: not session.main_windows())


def choose_accent(session):
    close(session)
    wait_for("its own accent", lambda: ALWAYS_ACCENTED <= kinds_with(session, PINK) and not kinds_with(session, LIME))
    open_window(session)
    search("neon")
    wait_for("one theme", lambda: find("Concept, 1 theme"))
    pointer("key", "--delay", "80", "Down", "Return")
    press("Lime", CHOICE)
    wait_for("accent in the store", lambda: session.stored().get("themeAccents") == {"neon": LIME})
    close(session)
    # What is received keeps its colour, and a warning is not far from it.
    wait_for("accent in every widget", lambda: ALWAYS_ACCENTED <= kinds_with(session, LIME)
             and kinds_with(session, PINK) <= {"network", "cpu"})
    open_window(session)
    press("Original", CHOICE)
    wait_for("no accent in the store", lambda: not session.stored().get("themeAccents"))


def use_wallpaper(session, root):
    press("Apply with Wallpaper")
    shown(REPLACED)
    pointer("key", "Return")
    wait_for("picture in the store", lambda: "neon" in picture(session))
    wait_for("it on the root window", lambda: agrees(session, root))
    pointer("key", "ctrl+z")
    wait_for("the user's own picture", lambda: root.is_filled(OWN))
    assert skins(session) == {"neon"} and all_shown(session)
    press("Back to Themes")
    gone("Back to Themes")


def click_at(x, y):
    pointer("mousemove", str(x), str(y), "click", "1")


def on_desktop():
    """The titles of the themes that are said to be on the desktop."""
    return [title for title, description in cards("Themes").items() if ON_DESKTOP in description]


def dimmed(root, window):
    """Whether a sheet lies over the window, as a spot of its ground tells."""
    x, y, _, _ = place_of(window)
    return max(root.on_top(x + 8, y + 8)) < 0xE0


def wish_for(buttons, accept, root, window):
    """Clicks at each of the cards' buttons and at the sheet that comes, as quickly as a user can see them; gives the seconds
    that took. A click may get lost while the window manager is busy with widgets that come and go."""
    start = time.monotonic()
    for button in buttons:
        again = 0.0
        while not dimmed(root, window):
            if time.monotonic() > again:
                click_at(*button)
                again = time.monotonic() + 5
        again = 0.0
        while dimmed(root, window):
            if time.monotonic() > again:
                click_at(*accept)
                again = time.monotonic() + 5
    return time.monotonic() - start


def apply_all(session, root):
    """By clicks on the cards of the first two rows, over and over; gives the seconds that took."""
    pointer("key", "--delay", "80", "ctrl+f", "ctrl+a", "Delete", "Down")
    titles = wait_for("all themes", lambda: len(found := list(cards("Themes"))) > ROUND and found)[:ROUND]
    buttons = []
    for title in titles:
        x, y, width, _ = place(shown(title, CARD))
        buttons.append((x + width - 24, y + width * 10 // 16 - 20))
    window = session.main_windows()[0]
    click_at(*buttons[-1])
    x, y, width, height = place(shown("Apply with Wallpaper", BUTTON))
    pointer("key", "Escape")
    wait_for("end of the sheet", lambda: not dimmed(root, window))
    took = wish_for([buttons[wish % ROUND] for wish in range(WISHES)], (x + width // 2, y + height // 2), root, window)
    x, y, width, height = place_of(window)
    pointer("mousemove", str(x + width // 2), str(y + height - 40))  # the bar stays while the pointer is in it
    last, before = titles[(WISHES - 1) % ROUND], titles[(WISHES - 2) % ROUND]
    shown(f"“{last}” is on your desktop")
    pointer("sleep", "2")  # long enough for another one to come late
    assert on_desktop() == [last], on_desktop()
    (skin,) = skins(session)
    assert f"/{skin}-" in picture(session), picture(session)
    wait_for("store and desktop alike", lambda: agrees(session, root))
    pointer("key", "ctrl+z")
    wait_for("the one before", lambda: skins(session) != {skin})
    wait_for("store and desktop alike after that", lambda: agrees(session, root))
    assert on_desktop() == [before], on_desktop()
    return took


def limit_files(session, size):
    resource.prlimit(session.process.pid, resource.RLIMIT_FSIZE, (size, resource.RLIM_INFINITY))


def export_to_full_disk(session):
    file = session.home / "shelf" / "Evening.ambrelle"
    file.parent.mkdir()
    search("evening")
    wait_for("own theme", lambda: find("My Themes, 1 desktop"))
    pointer("key", "--delay", "80", "Down", "ctrl+e")
    wait_for("chooser", lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Export “Evening”"],
                                               capture_output=True, check=False).stdout)
    pointer("key", "ctrl+a")
    pointer("type", "--delay", "20", str(file))
    limit_files(session, 256)
    pointer("key", "Return")
    shown(f"“{file}” cannot be written: File too large.")
    assert not list(file.parent.iterdir()), "it left something behind"
    limit_files(session, resource.RLIM_INFINITY)
    press("Try Again")
    wait_for("whole file", lambda: file.exists() and json.loads(file.read_text())["theme"]["name"] == "Evening")
    gone("Try Again", BUTTON)


def save_on_full_disk(session):
    """A setting, and a theme after it."""
    def names():
        return [theme["name"] for theme in session.stored()["savedThemes.v1"]]
    before = session.stored()
    limit_files(session, 256)
    pointer("key", "--delay", "80", "ctrl+4", "ctrl+f")
    pointer("type", "--delay", "20", "click a widget")
    press("Click a widget to open its app", Atspi.Role.CHECK_BOX)
    shown("The disk takes no changes. They are kept while Ambrelle runs.")
    pointer("key", "ctrl+s")
    shown("Save Current Desktop")
    pointer("type", "--delay", "20", "Late")
    pointer("key", "Return")
    shown("The disk takes no changes of My Themes. They are kept while Ambrelle runs.")
    press("Try Again")
    pointer("sleep", "1")
    shown("The disk takes no changes of My Themes. They are kept while Ambrelle runs.")
    assert session.stored() == before and json.loads(session.store.read_text()), "what was kept before has changed"
    limit_files(session, resource.RLIM_INFINITY)
    press("Try Again")
    wait_for("setting and theme in the store", lambda: session.stored()["clickToOpen"] and names() == ["Late", "Evening"])
    gone("Try Again", BUTTON)
    wait_for("My Themes", lambda: find("My Themes, 2 desktops"))
    press("Themes: All", CHOICE)


def begin(session):
    """What would go beyond the size of files fails, in place of ending the program."""
    session.process = subprocess.Popen(["env", "--ignore-signal=XFSZ", PROGRAM], env=session.env, stderr=subprocess.PIPE,
                                       text=True)
    wait_for("widgets", session.panels)


def apply_unpainted(session, title):
    """Has the theme applied whose wallpaper has to be painted first."""
    for file in (session.home / "data/ambrelle/Wallpapers").glob("*-r*.png"):
        if str(file) != picture(session):
            file.unlink()
    search(title)
    shown(title, CARD)
    pointer("key", "--delay", "80", "Down", "ctrl+Return")
    shown(REPLACED)
    pointer("key", "Return")


def restart(session):
    """After a kill; gives what the store had then."""
    session.process.kill()
    assert session.process.wait() == -signal.SIGKILL, "it ended by itself"
    left = session.stored()
    begin(session)
    assert not list(session.store.parent.glob("*damaged*"))
    return left


def kill(session, root, number):
    """While it applies a theme: widgets and wallpaper are the old ones, or the new ones; gives whether the latter."""
    folder = session.home / "data/ambrelle/Wallpapers"
    old = skins(session), picture(session)
    title = dice.choice([each for each in ("Paper", "Bauhaus", "Neon", "Velvet") if {each.lower()} != old[0]])
    apply_unpainted(session, title)
    time.sleep(dice.random() ** 3 * 0.6)  # mostly soon
    restart(session)
    new = skins(session)
    assert new in (old[0], {title.lower()}), f"round {number}: {old}, then {new}"
    wait_for(f"nothing more to paint after round {number}", lambda: UNFINISHED not in session.stored())
    now = picture(session)
    assert now == old[1] if new == old[0] else f"/{title.lower()}-" in now, f"round {number}: {old}, then {new} on {now}"
    assert [theme["name"] for theme in session.stored()["savedThemes.v1"]] == ["Late", "Evening"]
    for file in folder.glob("*.png"):
        subprocess.run(["identify", "-regard-warnings", str(file)], check=True, capture_output=True)
    wait_for(f"store and desktop alike after round {number}", lambda: agrees(session, root))
    open_window(session)
    return new != old[0]


def kill_while_painting(session, root):
    """The wallpaper that was asked for comes with the next start."""
    title = next(each for each in ("Paper", "Neon") if {each.lower()} != skins(session))
    before = picture(session)
    apply_unpainted(session, title)
    wait_for("wallpaper that is asked for", lambda: UNFINISHED in session.stored())
    assert UNFINISHED in restart(session), "the wallpaper was there before the kill"
    wait_for("new picture", lambda: f"/{title.lower()}-" in picture(session))
    assert picture(session) != before and skins(session) == {title.lower()}
    wait_for("store and desktop alike", lambda: agrees(session, root))
    wait_for("nothing more to paint", lambda: UNFINISHED not in session.stored())
    open_window(session)


def bring_back(session, root):
    pointer("key", "ctrl+3")
    press("Bring Back My Picture")
    wait_for("the user's own picture", lambda: root.is_filled(OWN))


def main():
    print(f"seed {SEED}")
    switch_on()
    theme = {"id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "name": "Evening", "created": 0, "widgets": [
        {"config": {"kind": "cpu", "skin": "paper", "origin": [20, 20]}, "fx": 0.1, "fy": 0.1}]}
    session = Session({"hasLaunchedBefore": True, "animations": False, "clickToOpen": False, "savedThemes.v1": [theme],
                       "widgets.v2": [{"kind": "cpu", "skin": "glass", "origin": [20, 20]}]})
    fill_root(OWN)
    root = Root()
    pointer("mousemove", "1", "1")
    begin(session)
    open_window(session)
    keep_wallpaper(session, root)
    choose_accent(session)
    use_wallpaper(session, root)
    took = apply_all(session, root)
    export_to_full_disk(session)
    save_on_full_disk(session)
    kill_while_painting(session, root)
    ends = [kill(session, root, number) for number in range(KILLS)]
    bring_back(session, root)
    session.end()
    print(f"{WISHES} themes wished for in {took:.1f} s; {KILLS} kills: {ends.count(False)} with the old theme, "
          f"{ends.count(True)} with the new one")


main()
