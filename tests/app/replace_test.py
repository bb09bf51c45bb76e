#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Window managers that come and go while the program runs: replace_test.py PROGRAM, on a display without one.

Whoever runs, and if nobody does, a window covers the plain widget and not the pinned one.
"""
import subprocess
import tempfile

from onlooker import PLACE, WINDOW, Screen, settings
from program import PATIENCE, Session, pointer, screen_size, wait_for


def hands(screen, session):
    """For every panel whether it goes past the window manager."""
    windows = [screen.display.create_resource_object("window", int(window)) for window in session.windows()]
    return [bool(window.get_attributes().override_redirect) for window in windows]


def start(screen, session, command):
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    expected = [command[0] == "i3"] * 2
    wait_for(f"widgets beside {command[0]}", lambda: hands(screen, session) == expected)
    return process


def check(screen, what):
    window = screen.open(PLACE, WINDOW)
    assert screen.has_layers(window), f"{what}: the widgets are not where they belong"
    window.destroy()
    screen.display.sync()


def main(config):
    print("# i3 config file (v4)", file=config, flush=True)
    _, height = screen_size()
    session, screen = Session(settings(height)), Screen()
    pointer("mousemove", "1", "1")
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == 2)
    openbox = start(screen, session, ["openbox"])
    check(screen, "openbox came")
    openbox.kill()
    openbox.wait(PATIENCE)
    check(screen, "openbox went")
    i3 = start(screen, session, ["i3", "-c", config.name])
    check(screen, "i3 came")
    openbox = start(screen, session, ["openbox", "--replace"])
    i3.wait(PATIENCE)
    check(screen, "openbox replaced i3")
    i3 = start(screen, session, ["i3", "-c", config.name, "--replace"])
    openbox.kill()  # on a busy machine it waits for itself for ever, in the toolkit's end of its connection
    openbox.wait(PATIENCE)
    check(screen, "i3 replaced openbox")
    session.end(i3)
    print("widgets stayed in their place with openbox, with i3 and with neither")


with tempfile.NamedTemporaryFile("w") as file:
    main(file)
