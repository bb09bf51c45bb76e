#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program with few rights, as a service or a sandbox gives them, on the display or compositor of this test:
narrow_test.py PROGRAM.

Nothing can be written to, there is no capability, homes are empty, and processes, message queues and network are of its
own. With what the README's table asks for everything is there; without one of these, the rest.
"""
import contextlib
import os
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

from program import PROGRAM, Session, shot, wait_for
from sway import Desktop

ON_WAYLAND = "WAYLAND_DISPLAY" in os.environ
NOTHING = ["bwrap", "--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc", "--tmpfs", "/tmp", "--tmpfs", "/home",
           "--tmpfs", "/root", "--unshare-pid", "--unshare-ipc", "--unshare-net", "--unshare-uts", "--cap-drop", "ALL",
           "--new-session", "--die-with-parent"]
CONFIG, DATA, CACHE, RUNTIME = FOLDERS = ["config/ambrelle", "data/ambrelle", "cache/org.ambrelle.Ambrelle", "run"]
PLACES = [(60, 700), (660, 700)]  # inside the widgets, from the screen's upper left corner
WIDGETS = [{"kind": "clock", "skin": "slate", "origin": [40, 60]}, {"kind": "cpu", "skin": "slate", "origin": [640, 60]}]
REST = 1.0  # seconds in which nothing is seen to happen


def colours():
    if ON_WAYLAND:
        return [Desktop.pixel(*place) for place in PLACES]
    return [shot(*place, 1, 1) for place in PLACES]


EMPTY = colours()


def binding(kind, path, name=None):
    return [kind, str(path), str(name or path)]


class Narrow(Session):
    """The program with all that it asks for, but for writing to these folders."""

    def __init__(self, *closed):
        super().__init__({"hasLaunchedBefore": True, "animations": False, "widgets.v2": WIDGETS})
        wait_for("empty screen", lambda: colours() == EMPTY)
        self.rights = binding("--ro-bind", self.home)
        for folder in FOLDERS:
            (self.home / folder).mkdir(parents=True, exist_ok=True)
            self.rights += binding("--ro-bind" if folder in closed else "--bind", self.home / folder)
        (self.home / RUNTIME).chmod(0o700)
        self.env["XDG_RUNTIME_DIR"] = str(self.home / RUNTIME)
        self.display = self.bus = []
        if ON_WAYLAND:
            socket = Path(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"])
            socket.chmod(0o777)  # the compositor is somebody else, and there is no capability to get past that
            self.env["WAYLAND_DISPLAY"] = "/tmp/compositor"
            self.display = binding("--ro-bind", socket, "/tmp/compositor")
        else:
            self.display = binding("--ro-bind", "/tmp/.X11-unix")
        bus = self.env["DBUS_SESSION_BUS_ADDRESS"].partition("unix:path=")[2].partition(",")[0]
        self.bus = binding("--ro-bind", bus) if bus else []

    def command(self, *arguments):
        return [*NOTHING, *self.rights, *self.display, *self.bus, PROGRAM, *arguments]

    def start(self, *arguments):
        self.process = subprocess.Popen(self.command(*arguments), env=self.env, stderr=subprocess.PIPE, text=True)

    def shows_widgets(self):
        wait_for("widgets", lambda: all(now != before for now, before in zip(colours(), EMPTY)))

    def running(self):
        """The numbers of its processes out here."""
        found = []
        for process in Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                ours = str(self.home).encode() in (process / "environ").read_bytes()
                if ours and os.readlink(process / "exe") == PROGRAM:
                    found.append(int(process.name))
        return found

    def stop(self):
        """Asks all of them to end; gives what was complained of."""
        for number in self.running():
            os.kill(number, signal.SIGTERM)
        status = self.process.wait(60)
        told = self.process.stderr.read()
        assert status == 0, f"ended with {status}: {told}"
        return told

    def close(self):
        for number in self.running():
            os.kill(number, signal.SIGKILL)
        wait_for("end", lambda: not self.running())
        shutil.rmtree(self.home)


def has_everything(session):
    session.start()
    session.shows_widgets()
    for locked in (True, False):
        subprocess.run(session.command("--action", "lock"), env=session.env, check=True, timeout=60)
        wait_for(f"positions locked: {locked}", lambda: session.stored().get("locked") == locked)
    told = session.stop()
    assert not told, told
    assert [widget["kind"] for widget in session.widgets()] == ["clock", "cpu"]


def starts_for_the_first_time(session):
    session.store.write_text("{}")
    session.start()
    wait_for("default composition", lambda: len(session.widgets()) == 12)
    if not ON_WAYLAND:
        wait_for("wallpaper", lambda: list((session.home / DATA).rglob("glass*.*")))
        wait_for("thumbnails", lambda: list((session.home / CACHE).rglob("*.*")))
    session.stop()


def has_no_display(session):
    session.display = []
    session.start()
    assert session.process.wait(60) == 1
    told = session.process.stderr.read()
    assert told.count("\n") == 1 and "isplay" in told, told


def cannot_keep_settings(session):
    before = session.store.read_text()
    for _ in range(2):
        session.start()
        session.shows_widgets()
        subprocess.run(session.command("--action", "lock"), env=session.env, check=True, timeout=60)
        time.sleep(REST)
        assert "Settings cannot be saved" in session.stop()
        assert session.store.read_text() == before and list(session.store.parent.iterdir()) == [session.store]


def cannot_keep_pictures(session):
    session.start()
    session.shows_widgets()
    session.stop()
    for folder in (DATA, CACHE):
        assert not any((session.home / folder).iterdir()), folder


def knows_of_no_other(session):
    session.start()
    session.shows_widgets()
    first, = wait_for("process", session.running)
    with subprocess.Popen(session.command(), env=session.env) as second:
        wait_for("second process", lambda: len(session.running()) == 2)
        time.sleep(REST)
        assert second.poll() is None and len(session.running()) == 2, "it found the first"
        session.stop()
        assert second.wait(60) == 0 and first not in session.running()


def has_no_bus(session):
    session.bus = []
    session.start()
    session.shows_widgets()
    session.stop()


def main():
    if not shutil.which("bwrap") or subprocess.run([*NOTHING, "true"], capture_output=True).returncode:
        print("skipped: no program can be given fewer rights here")
        sys.exit(77)
    for play, *closed in ((has_everything,), (has_no_display,), (cannot_keep_settings, CONFIG),
                          (cannot_keep_pictures, DATA, CACHE), (knows_of_no_other, RUNTIME), (has_no_bus,),
                          (starts_for_the_first_time,)):  # which leaves its picture on the screen
        session = Narrow(*closed)
        begin = time.monotonic()
        try:
            play(session)
        finally:
            session.close()
        print(f"{play.__name__}: {time.monotonic() - begin:.1f} s", flush=True)


main()
