# SPDX-License-Identifier: MIT
"""The whole program on the display of a test, which names it as its first argument."""
import contextlib
import hashlib
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.append(str(Path(__file__).parents[1] / "support"))
from waiting import PATIENCE, wait_for  # noqa: E402

PROGRAM = sys.argv[1]


def steady(what, read, rest=0.4):
    """What `read` gives, once it is something and has not changed for `rest` seconds."""
    last, since = None, time.monotonic()

    def settled():
        nonlocal last, since
        now = read()
        if now != last:
            last, since = now, time.monotonic()
        return now if now and time.monotonic() - since >= rest else None
    return wait_for(what, settled)


def pointer(*steps):
    subprocess.run(["xdotool", *steps], check=True)


def shot(x, y, width, height):
    """That part of the screen."""
    command = ["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "-depth", "8", "rgb:-"]
    return subprocess.run(command, check=True, capture_output=True).stdout


def hover(x, y):
    """Moves the pointer there and waits until it is in another window than at the screen's corner."""
    def window():
        answer = subprocess.run(["xdotool", "getmouselocation", "--shell"], check=True, capture_output=True, text=True)
        return answer.stdout.partition("WINDOW=")[2].split()[0]
    pointer("mousemove", "1", "1")
    corner = window()
    pointer("mousemove", str(int(x)), str(int(y)))
    wait_for(f"window at {x}, {y}", lambda: window() != corner)


def active_window():
    """The number of the window that has the keyboard, as the window manager tells it; 0 when none has."""
    told = subprocess.run(["xprop", "-root", "_NET_ACTIVE_WINDOW"], capture_output=True, text=True).stdout
    return int(told.rpartition("# ")[2].split(",")[0], 16) if "# " in told else 0


def window_with_keyboard():
    """The number of the window that keys go to, whoever gave it the keyboard."""
    return int(subprocess.run(["xdotool", "getwindowfocus"], capture_output=True, text=True).stdout or 0)


def place_of(window):
    """Left and upper edge, width and height of a window on the screen; nothing once it has gone."""
    shell = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window], capture_output=True, text=True)
    values = dict(line.split("=") for line in shell.stdout.splitlines())
    return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")) if values else None


def screen_size():
    return map(int, subprocess.check_output(["xdotool", "getdisplaygeometry"]).split())


@contextlib.contextmanager
def two_screens(width, height):
    """Makes two screens called LEFT and RIGHT of one for a while."""
    half = width // 2
    try:
        for name, place in (("LEFT", f"{half}/300x{height}/200+0+0 screen"), ("RIGHT", f"{half}/300x{height}/200+{half}+0 none")):
            subprocess.run(["xrandr", "--setmonitor", name, *place.split()], check=True)
        yield
    finally:
        for name in ("RIGHT", "LEFT"):
            subprocess.run(["xrandr", "--delmonitor", name], check=True)


def press_until(key, what, condition):
    """Presses the key, again every five seconds: before a menu has taken the keyboard, keys go elsewhere."""
    pressed = 0.0

    def look():
        nonlocal pressed
        if value := condition():
            return value
        if time.monotonic() - pressed > 5:
            pointer("key", key)
            pressed = time.monotonic()
        return None
    return wait_for(what, look)


class Session:
    """The program with a home of its own."""

    def __init__(self, settings=None):
        self.home = Path(tempfile.mkdtemp(prefix="ambrelle-test-"))
        self.store = self.home / "config/ambrelle/defaults.json"
        self.store.parent.mkdir(parents=True)
        if settings:
            self.store.write_text(json.dumps(settings))
        self.env = dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config"),
                        XDG_DATA_HOME=str(self.home / "data"), XDG_CACHE_HOME=str(self.home / "cache"),
                        XDG_RUNTIME_DIR=str(self.home))
        for name in ("QT_QPA_PLATFORM", "XDG_CURRENT_DESKTOP", "SWAYSOCK"):
            self.env.pop(name, None)
        self.process = None

    def start(self, *arguments):
        self.process = subprocess.Popen([PROGRAM, *arguments], env=self.env, stderr=subprocess.PIPE, text=True)

    def ended(self):
        """Waits until the program has ended by itself, and well."""
        status = self.process.wait(PATIENCE)
        assert status == 0, f"ended with {status}: {self.process.stderr.read()}"

    def end(self, *helpers):
        """Asks the program to end, ends the other processes and tidies up."""
        self.stop()
        for helper in helpers:
            helper.kill()
            helper.wait()
        shutil.rmtree(self.home)

    def stop(self):
        self.process.send_signal(signal.SIGTERM)
        self.ended()

    def windows(self):
        """The program's windows on the screen, but for the scenes behind its widgets."""
        scenes = self.scenes()
        return [window for window in self._search() if window not in scenes]

    def scenes(self):
        return self._search("--all", "--name", "^ambrelle-scene$")

    def _search(self, *more):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid), *more],
                              capture_output=True, text=True).stdout.split()

    def main_windows(self):
        """The window with the tabs, if it is open."""
        kind = "_NET_WM_WINDOW_TYPE"
        return [window for window in self.windows() if f"{kind}_NORMAL" in subprocess.run(
            ["xprop", "-id", window, kind], capture_output=True, text=True).stdout]

    def dismiss_welcome(self):
        """Closes the window that a first start opens."""
        window = wait_for("main window of a first start", self.main_windows)[0]
        pointer("windowfocus", "--sync", window, "key", "ctrl+w")
        wait_for("closed main window", lambda: not self.main_windows())

    def panels(self):
        """Their places and sizes."""
        return sorted(filter(None, map(place_of, self.windows())))

    def unflushed(self):
        """The newest version that the program wrote beside its file of settings, and would find after a kill."""
        versions = []
        for file in self.store.parent.glob(self.store.name + ".latest-*"):
            seal, _, rest = file.read_bytes().partition(b"\n")
            _, digest, length = seal.split()
            body = rest[:int(length)]
            if hashlib.sha256(body).hexdigest() == digest.decode():
                about, _, values = body.partition(b"\n")
                versions.append((int(about.split()[0]), values))
        return max(versions)[1] if versions else None

    def stored(self):
        with contextlib.suppress(FileNotFoundError, ValueError):  # gone or overwritten while it is read
            if values := self.unflushed():
                return json.loads(values)
        return json.loads(self.store.read_text())

    def widgets(self):
        return self.stored().get("widgets.v2", [])
