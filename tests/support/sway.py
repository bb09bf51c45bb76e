# SPDX-License-Identifier: MIT
"""What a script sees and does in a session of with_sway.py: Desktop, Devices and OtherWindows. AMBRELLE_TEST_TOOLS
is the folder of the programs that the last two run."""
import json
import os
import queue
import socket
import struct
import subprocess
import threading
import time
from pathlib import Path

from waiting import PATIENCE, wait_for


class Desktop:
    """What Sway tells and shows."""

    COMMAND, WORKSPACES, OUTPUTS, TREE = 0, 1, 3, 4

    def __init__(self, path=None):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(path or os.environ["SWAYSOCK"])

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

    def unplug(self, name):
        """Takes a removable output away."""
        Desktop(os.environ["AMBRELLE_TEST_OUTER"]).command(f'[title="^wlroots - {name}$"] kill')
        wait_for(f"end of {name}", lambda: name not in self.outputs())

    def plug(self):
        """Connects one more output; gives its name."""
        before = self.outputs().keys()
        self.command("create_output")
        return wait_for("new output", lambda: list(self.outputs().keys() - before))[0]

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

    def float(self, title, x, y, width, height):
        """Makes a window float there, without a border."""
        wait_for(f"window {title}", lambda: title in self.windows())
        self.command(f"[title=^{title}$] floating enable, border none")
        rect = {"x": x, "y": y, "width": width, "height": height}
        told = 0.0

        def look():
            nonlocal told
            if self.windows()[title]["rect"] == rect:
                return True
            # A window that is just about to change its size does so after whatever it was told.
            if time.monotonic() - told > 2:
                self.command(f"[title=^{title}$] resize set {width} {height}, move absolute position {x} {y}")
                told = time.monotonic()
            return False
        wait_for(f"{title} in its place", look)

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
