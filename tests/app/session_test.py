#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs the whole program on the display of this test: session_test.py PROGRAM.

A widget is dragged with a real pointer, the program is killed without warning and comes back with it in its new place;
the wallpaper of the first start stays on the root window, is recognised and cut anew for other screens; whatever lies in
the store of settings, the program starts; it follows the scale of the desktop while it runs.
"""
import json
import random
import shutil
import signal
import subprocess
import time
from pathlib import Path

from program import Session, hover, pointer, screen_size, two_screens, wait_for

MARGIN = 30  # points of a panel left of and below the face


def drag_and_kill():
    session = Session()
    session.start()
    panels = wait_for("default composition", lambda: len(p := session.panels()) == 12 and p)
    assert len(session.widgets()) == 12, "the first composition was not stored"
    session.dismiss_welcome()
    x, y, width, height = panels[0]
    grip = (x + MARGIN + 60, y + height - MARGIN - 60)
    hover(*grip)
    pointer("mousedown", "1")
    for step in range(1, 21):
        pointer("mousemove", str(grip[0] + step * 12), str(grip[1] + step * 5))
    pointer("sleep", "0.1", "mouseup", "1")
    moved = (x + 240, y + 100, width, height)
    wait_for("panel where it was dropped", lambda: moved in session.panels())
    stored = wait_for("stored place", lambda: [w for w in session.widgets() if abs(w["origin"][0] - moved[0] - MARGIN) < 1])
    session.process.kill()
    session.process.wait()
    session.start()
    after = wait_for("widgets after the kill", lambda: len(p := session.panels()) == 12 and p)
    assert moved in after, f"the widget did not come back to {moved}: {after}"
    assert stored[0] in session.widgets(), "the stored record changed by itself"
    session.stop()
    return session


def root_record():
    """The pictures on the root window as the program noted them: file by screen."""
    shown = subprocess.run(["xprop", "-root", "-notype", "8u", "_AMBRELLE_DESKTOP_PICTURE"], capture_output=True, text=True)
    text = shown.stdout.partition(" = ")[2].strip()
    return json.loads(json.loads(text))["files"] if text else {}


def pixel(command, x, y):
    done = subprocess.run([*command, "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"], capture_output=True, check=True)
    return done.stdout


def wallpaper(session):
    width, height = screen_size()
    files = wait_for("wallpaper on the root window", root_record)
    name = f"glass-r16-{width}x{height}.png"
    assert [Path(file).name for file in files.values()] == [name], files
    file = session.home / "data/ambrelle/Wallpapers" / name
    for x, y in ((width // 2, height // 2), (width // 2, height - 20), (5, 5)):  # no widget stands there
        shown, painted = pixel(["import", "-window", "root"], x, y), pixel(["convert", str(file)], x, y)
        assert shown == painted, f"{x},{y}: the root shows {shown.hex()}, the wallpaper has {painted.hex()}"
    session.start()
    wait_for("widgets", session.panels)
    with two_screens(width, height):
        wanted = {side: f"glass-r16-{width // 2}x{height}.png" for side in ("LEFT", "RIGHT")}
        wait_for("wallpaper cut for two screens",
                 lambda: {side: Path(file).name for side, file in root_record().items()} == wanted)
    session.stop()


def damaged_stores(session):
    good = session.store.read_bytes()
    dice = random.Random(7)
    flipped = bytearray(good)
    for _ in range(60):
        flipped[dice.randrange(len(flipped))] = dice.randrange(256)
    stores = {
        "empty": b"", "truncated": good[: len(good) // 2], "flipped": bytes(flipped), "no object": b"[1, 2]",
        "wrong types": json.dumps({"widgets.v2": 7, "interval": "fast", "defaultSkin": [], "layer": {},
                                   "hasLaunchedBefore": "no", "themeAccents": [3]}).encode(),
        "bad records": json.dumps({"hasLaunchedBefore": True, "widgets.v2": [
            {"kind": "clock", "skin": "none", "origin": [1e300, 0]}, {"kind": "teapot"}, None, 3,
            {"kind": "cpu", "skin": 4, "origin": [40, 40], "fit": 1}]}).encode(),
        "huge": b'{"x": "' + b"y" * (80 << 20) + b'"}',
    }
    for name, content in stores.items():
        session.store.write_bytes(content)
        session.start()
        expected = 1 if name == "bad records" else None
        panels = wait_for(f"start with a store that is {name}", session.panels)
        assert expected is None or len(panels) == expected, f"{name}: {len(panels)} widgets"
        session.stop()


def live_scale():
    """The desktop asks for larger points while the program runs: the whole face is there, and as large."""
    session = Session({"hasLaunchedBefore": True, "widgets.v2": [{"kind": "countdown", "skin": "paper", "origin": [60, 200]}]})
    settings = session.home / "settings"
    settings.write_text("Xft/DPI 98304\n")
    desktop = subprocess.Popen(["xsettingsd", "-c", str(settings)], stderr=subprocess.PIPE, text=True)
    assert any("Took ownership" in line for line in desktop.stderr), "the desktop has no settings"
    session.start()
    wait_for("widget", lambda: len(session.panels()) == 1)

    def corners():
        """The plate's colour inside the upper left and the lower right corner of the face."""
        (x, y, width, height), = session.panels()
        scale = width / (196 + 2 * MARGIN)
        inside = [(MARGIN + 8, 32 + 8), (MARGIN + 170 - 8, 32 + 170 - 8)]
        return [pixel(["import", "-window", "root"], round(x + left * scale), round(y + top * scale)) for left, top in inside]
    plate = wait_for("face", lambda: (c := corners())[0] == c[1] and c[0])
    for dots, width in ((144, 384), (96, 256)):
        settings.write_text(f"Xft/DPI {dots * 1024}\n")
        desktop.send_signal(signal.SIGHUP)
        wait_for(f"window at {dots} dots per inch", lambda: any(panel[2] == width for panel in session.panels()[:1]))
        wait_for(f"whole face at {dots} dots per inch", lambda: corners() == [plate, plate])
    session.end(desktop)


def silent_photos():
    """Pictures that are damaged are said to be so where they would show, and nowhere else."""
    session = Session({"hasLaunchedBefore": True})
    widgets = []
    for column, kind in enumerate(("png", "jpg", "tiff", "gif", "webp")):
        folder = session.home / kind
        folder.mkdir()
        subprocess.run(["convert", "-size", "64x64", "plasma:", str(folder / f"whole.{kind}")], check=True)
        whole = (folder / f"whole.{kind}").read_bytes()
        for part in range(1, 8):
            (folder / f"{part}.{kind}").write_bytes(whole[: len(whole) * part // 8])
            (folder / f"{part}x.{kind}").write_bytes(whole[: len(whole) * part // 8] + b"x" * (len(whole) // 8))
        (folder / f"whole.{kind}").unlink()
        widgets += [{"kind": "photo", "skin": "glass", "origin": [20 + 60 * row, 20 + 150 * column],
                     "photoFolder": str(folder)} for row in range(12)]
    session.store.write_text(json.dumps({"hasLaunchedBefore": True, "widgets.v2": widgets}))
    session.start()
    wait_for("photos", lambda: len(session.panels()) == len(widgets))
    time.sleep(2)  # that nothing is said
    session.stop()
    said = session.process.stderr.read()
    assert not said, said
    shutil.rmtree(session.home)


subject = drag_and_kill()
wallpaper(subject)
damaged_stores(subject)
shutil.rmtree(subject.home)
if shutil.which("convert"):
    silent_photos()
if shutil.which("xsettingsd"):
    live_scale()
print("dragged, killed and restored; started with every damaged store")
