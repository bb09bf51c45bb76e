# SPDX-License-Identifier: MIT
"""The whole program on the Wayland compositor of a test, which names it as its first argument."""
import json
import os
import shutil
import signal
import subprocess
import tempfile
from pathlib import Path

from program import PROGRAM, Session
from waiting import PATIENCE, wait_for


class Ambrelle:
    """The program with a home of its own."""

    def __init__(self, settings=None):
        self.home = Path(tempfile.mkdtemp(prefix="ambrelle-wayland-"))
        self.store = self.home / "config/ambrelle/defaults.json"
        self.store.parent.mkdir(parents=True)
        if settings:
            self.store.write_text(json.dumps(settings))
        self.env = dict(os.environ, XDG_CONFIG_HOME=str(self.home / "config"), XDG_DATA_HOME=str(self.home / "data"),
                        XDG_CACHE_HOME=str(self.home / "cache"))
        self.env.pop("QT_QPA_PLATFORM", None)
        self.process = None

    def start(self, *arguments):
        return subprocess.Popen([PROGRAM, *arguments], env=self.env, stderr=subprocess.PIPE, text=True)

    def run(self):
        self.process = self.start()

    def act(self, action):
        assert self.start("--action", action).wait(PATIENCE) == 0, action

    def stop(self):
        self.process.send_signal(signal.SIGTERM)
        assert self.process.wait(PATIENCE) == 0, self.process.stderr.read()

    def end(self):
        """Ends it however it is, and tidies up."""
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.home)

    unflushed = Session.unflushed
    stored = Session.stored

    def settings(self):
        try:
            return self.stored()
        except (FileNotFoundError, json.JSONDecodeError):
            return {}

    def widgets(self):
        return {widget["kind"]: widget for widget in self.settings().get("widgets.v2", [])}


def escape_until(devices, what, condition):
    """Again and again: before the backdrop has the keyboard, keys go elsewhere."""
    def look():
        devices.key("escape")
        return condition()
    wait_for(what, look)
