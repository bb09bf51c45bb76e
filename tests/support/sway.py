#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A Wayland compositor without a screen, for one test: sway.py [--output WIDTHxHEIGHT[@SCALE]]... [--xwayland] COMMAND [ARGUMENT...]

Runs the command in a session of its own: Sway with these outputs side by side (one of 1280x800 if none is named), a home
and a session bus. Ends with the command's status, or with 77 where a tool is missing. Whatever was started is ended.

Scripts that are run so import this module for what they see and do there: Desktop, Devices and OtherWindows. Nothing is
waited for by time, but for conditions with `wait_for`. AMBRELLE_TEST_TOOLS is the folder of the programs that the last two
of them run."""
import json
import os
import queue
import shutil
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

MISSING = 77
PATIENCE = 60  # seconds that a very busy machine may take; used up only by a fault
NOBODY = 65534  # Sway does not run as root


def wait_for(what, condition, seconds=PATIENCE):
    """What the condition gives, once that is something."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if value := condition():
            return value
        time.sleep(0.02)
    raise TimeoutError(f"no {what} within {seconds} s")


# --- for the script in the session ---

class Desktop:
    """What Sway tells and shows."""

    COMMAND, WORKSPACES, OUTPUTS, TREE = 0, 1, 3, 4

    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(os.environ["SWAYSOCK"])

    def ask(self, kind, text=""):
        self.socket.sendall(b"i3-ipc" + struct.pack("=II", len(text.encode()), kind) + text.encode())
        length, _ = struct.unpack("=II", self._read(14)[6:])
        return json.loads(self._read(length))

    def _read(self, count):
        read = b""
        while len(read) < count:
            piece = self.socket.recv(count - len(read))
            if not piece:
                raise ConnectionError("Sway has gone")
            read += piece
        return read

    def command(self, *commands):
        """As in Sway's configuration."""
        for result in self.ask(self.COMMAND, "; ".join(commands)):
            assert result["success"], f"{commands}: {result.get('error')}"

    def outputs(self):
        """Those in use, by name."""
        return {output["name"]: output for output in self.ask(self.OUTPUTS) if output["active"]}

    def extent(self):
        """Left and upper edge, width and height of the area that all outputs lie in."""
        rects = [output["rect"] for output in self.outputs().values()]
        left, top = (min(rect[edge] for rect in rects) for edge in ("x", "y"))
        right = max(rect["x"] + rect["width"] for rect in rects)
        return left, top, right - left, max(rect["y"] + rect["height"] for rect in rects) - top

    def windows(self):
        """All of them, shown or not, by title: their parts of Sway's tree."""
        found, waiting = {}, [self.ask(self.TREE)]
        while waiting:
            node = waiting.pop()
            waiting += node["nodes"] + node["floating_nodes"]
            if "pid" in node:
                found[node["name"]] = node
        return found

    @staticmethod
    def picture(file, output=None):
        """Writes what is seen to a PNG: in pixels of an output, or of all in pixels of the largest scale."""
        subprocess.run(["grim", *(["-o", output] if output else []), str(file)], check=True)

    @staticmethod
    def pixel(x, y):
        """The colour of a point of the layout, as rrggbb."""
        shot = subprocess.run(["grim", "-s", "1", "-t", "ppm", "-g", f"{x},{y} 1x1", "-"], check=True, capture_output=True)
        return shot.stdout[-3:].hex()


class _Tool:
    """A program of the tests that obeys lines."""

    def __init__(self, name):
        program = Path(os.environ["AMBRELLE_TEST_TOOLS"], name)
        env = dict(os.environ, QT_QPA_PLATFORM="wayland", QT_WAYLAND_DISABLE_WINDOWDECORATION="1")
        self.process = subprocess.Popen([program], env=env, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.lines = queue.Queue()
        threading.Thread(target=lambda: [self.lines.put(line.rstrip("\n")) for line in self.process.stdout],
                         daemon=True).start()

    def tell(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def end(self):
        self.process.stdin.close()
        self.process.wait(PATIENCE)


class Devices(_Tool):
    """A pointer and a keyboard. Sway has taken note of each step when its call returns."""

    def __init__(self, desktop):
        super().__init__("virtual_input_program")
        self.desktop = desktop
        self._done()

    def _done(self):
        answer = self.lines.get(timeout=PATIENCE)
        assert answer == "done", answer

    def step(self, line):
        self.tell(line)
        self._done()

    def move(self, x, y):
        """To a point of the layout."""
        self.step(" ".join(map(str, ("move", x, y, *self.desktop.extent()))))

    def click(self, button="left"):
        self.step(f"press {button}")
        self.step(f"release {button}")

    def drag(self, start, *points):
        """With the left button, without letting go."""
        self.move(*start)
        self.step("press left")
        for point in points:
            self.move(*point)

    def key(self, *names):
        """All of them pressed in that order and let go in the other."""
        for name in names:
            self.step(f"keydown {name}")
        for name in reversed(names):
            self.step(f"keyup {name}")


class OtherWindows(_Tool):
    """Another program with windows of one colour."""

    def __init__(self):
        super().__init__("other_windows")
        self.heard = []

    def open(self, name, colour="#2060c0", width=300, height=200):
        self.tell(f"open {name} {width} {height} {colour}")
        self.expect(f"{name} shown")

    def expect(self, line):
        """Waits until its windows have seen that."""
        def look():
            while not self.lines.empty():
                self.heard.append(self.lines.get())
            return line in self.heard
        wait_for(f"“{line}” among {self.heard}", look)
        self.heard.remove(line)


# --- for the session itself ---

def configuration(outputs, xwayland, ready):
    left = 0
    lines = [f"xwayland {'enable' if xwayland else 'disable'}", "focus_follows_mouse no", "floating_modifier Mod4 normal"]
    for index, output in enumerate(outputs, 1):
        size, _, scale = output.partition("@")
        lines.append(f"output HEADLESS-{index} mode --custom {size} position {left} 0 scale {scale or 1}")
        left += int(int(size.partition("x")[0]) / float(scale or 1))
    # Run when all of this is in force.
    lines.append(f'exec echo "$WAYLAND_DISPLAY" "$SWAYSOCK" "$DISPLAY" > {ready}')
    return "\n".join(lines) + "\n"


def start(folder, outputs, xwayland):
    """Starts Sway; gives its process and what the environment has to know of it."""
    runtime, ready = folder / "runtime", folder / "runtime/ready"
    folder.chmod(0o755)
    runtime.mkdir(mode=0o700)
    (folder / "home").mkdir()
    (folder / "config").write_text(configuration(outputs, xwayland, ready))
    # Ends with this script, even if that is killed.
    command = ["setpriv", "--pdeathsig", "TERM"]
    if os.geteuid() == 0:
        os.chown(runtime, NOBODY, NOBODY)
        command += [f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
    env = {name: value for name, value in os.environ.items()
           if name not in ("DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "SWAYSOCK", "DBUS_SESSION_BUS_ADDRESS")}
    env.update(HOME=str(runtime), XDG_RUNTIME_DIR=str(runtime), WLR_BACKENDS="headless", WLR_RENDERER="pixman",
               WLR_LIBINPUT_NO_DEVICES="1", WLR_HEADLESS_OUTPUTS=str(len(outputs)))
    with open(folder / "log", "w") as log:
        process = subprocess.Popen([*command, "sway", "-c", folder / "config"], env=env, stdin=subprocess.DEVNULL,
                                   stdout=log, stderr=log)

    def told():
        if process.poll() is not None:
            sys.exit(f"Sway ended with {process.returncode}:\n{(folder / 'log').read_text()}")
        return ready.exists() and ready.read_text().endswith("\n")
    wait_for("Sway", told)
    display, ipc, *x_display = ready.read_text().split()
    env.update(HOME=str(folder / "home"), WAYLAND_DISPLAY=display, SWAYSOCK=ipc, QT_QPA_PLATFORM="wayland",
               XDG_SESSION_TYPE="wayland", XDG_CURRENT_DESKTOP="sway",
               PYTHONPATH=os.pathsep.join(filter(None, (str(Path(__file__).parent), env.get("PYTHONPATH")))))
    if x_display:
        env["DISPLAY"] = x_display[0]
    for kind in ("CONFIG", "CACHE", "DATA", "STATE"):
        env[f"XDG_{kind}_HOME"] = str(folder / "home" / kind.lower())
    return process, env


def end(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def run(arguments):
    outputs, xwayland = [], False
    while arguments and arguments[0].startswith("--"):
        option = arguments.pop(0)
        if option == "--output" and arguments:
            outputs.append(arguments.pop(0))
        elif option == "--xwayland":
            xwayland = True
        else:
            sys.exit(f"{option}: {__doc__.splitlines()[0]}")
    if not arguments:
        sys.exit(__doc__.splitlines()[0])
    for tool in ("sway", "grim", "setpriv", "dbus-run-session", *(["Xwayland"] if xwayland else [])):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            return MISSING
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(130))  # so that the folder goes
    with tempfile.TemporaryDirectory(prefix="ambrelle-sway-") as folder:
        process, env = start(Path(folder), outputs or ["1280x800"], xwayland)
        try:
            status = subprocess.run(["setpriv", "--pdeathsig", "TERM", "dbus-run-session", "--", *arguments], env=env).returncode
            if process.poll() is not None:
                print(f"Sway ended with {process.returncode}:\n{Path(folder, 'log').read_text()}")
            return status
        finally:
            end(process)


if __name__ == "__main__":
    sys.exit(run(sys.argv[1:]))
