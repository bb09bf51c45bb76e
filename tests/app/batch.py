# SPDX-License-Identifier: MIT
"""Runs the program's batch modes as different users on the same machine."""
import json
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = sys.argv.pop(1)
MODES = ("--render-previews", "--render-wallpapers", "--render-window", "--render-ui", "--export-site")
HIDDEN = ("DISPLAY", "WAYLAND_DISPLAY", "SKIN", "KINDS", "WIDTH", "HEIGHT", "SOURCE_DATE_EPOCH", "LANGUAGE")
HABITS = (
    {"LANG": "C.UTF-8", "LC_ALL": "C.UTF-8", "TZ": "UTC"},
    {"LANG": "de_DE.UTF-8", "LC_ALL": "de_DE.UTF-8", "LANGUAGE": "de", "TZ": "Asia/Tokyo", "QT_SCALE_FACTOR": "1.5",
     "QT_FONT_DPI": "120", "QT_QPA_PLATFORM": "wayland"},
)


def size_of(path):
    return struct.unpack(">II", path.read_bytes()[16:24])


class Batch(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="ambrelle-test-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def home(self, number):
        """Of a user who likes red."""
        home = self.folder / f"home-{number}"
        if not home.exists():
            settings = home / ".config/ambrelle/defaults.json"
            settings.parent.mkdir(parents=True)
            settings.write_text(json.dumps({"themeAccents": {"neon": "#FF0000", "mono": "#00FF00"}}))
            (home / "run").mkdir(mode=0o700)
        return home

    def environment(self, habits=0, **variables):
        home = self.home(habits)
        environment = {name: value for name, value in os.environ.items() if name not in HIDDEN}
        for name in ("XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "DBUS_SESSION_BUS_ADDRESS"):
            environment.pop(name, None)
        environment.update(HABITS[habits], HOME=str(home), XDG_RUNTIME_DIR=str(home / "run"), **variables)
        return environment

    def run_mode(self, mode, folder, habits=0, **variables):
        return subprocess.run([PROGRAM, mode, str(folder)], env=self.environment(habits, **variables), cwd=self.folder,
                              capture_output=True, text=True, timeout=300)

    def rendered(self, mode, habits=0, expect=0, **variables):
        """The files of a run, by name; standard output tells each of them and nothing else but the times."""
        folder = self.folder / f"out-{habits}"
        before = sorted(self.home(habits).rglob("*"))
        done = self.run_mode(mode, folder, habits, **variables)
        self.assertEqual((done.returncode, done.stderr), (expect, ""))
        files = {str(path.relative_to(folder)): path for path in folder.rglob("*") if path.is_file()}
        lines = [line for line in done.stdout.splitlines() if line.startswith("wrote ")]
        self.assertCountEqual(lines, [f"wrote {path}" for path in files.values()])
        after = [path for path in sorted(self.home(habits).rglob("*")) if "fontconfig" not in str(path)]
        self.assertEqual([path for path in after if path not in before and path.name != ".cache"], [], "left behind")
        return files, done.stdout.splitlines()

    def assert_same_for_everybody(self, mode, **variables):
        first, _ = self.rendered(mode, 0, **variables)
        second, _ = self.rendered(mode, 1, **variables)
        self.assertEqual(first.keys(), second.keys())
        different = [name for name in first if first[name].read_bytes() != second[name].read_bytes()]
        self.assertEqual(different, [])
        return first
