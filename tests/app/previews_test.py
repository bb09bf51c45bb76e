# SPDX-License-Identifier: MIT
"""Renders previews with the whole program, without a display: previews_test.py PROGRAM"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = sys.argv.pop(1)


class Previews(unittest.TestCase):
    def setUp(self):
        self.home = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.home)

    def render(self, folder, skin):
        environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        environment.update(SKIN=skin, HOME=str(self.home), XDG_CACHE_HOME=str(self.home / "cache"),
                           XDG_RUNTIME_DIR=str(self.home))
        return subprocess.run([PROGRAM, "--render-previews", str(self.home / folder)], env=environment,
                              capture_output=True, text=True, timeout=300)

    def test_one_sheet_with_every_widget_on_it(self):
        done = self.render("new/folder", "mono")
        picture = self.home / "new/folder/mono.png"
        self.assertEqual((done.returncode, done.stderr, done.stdout), (0, "", f"wrote {picture}\n"))
        self.assertEqual(os.listdir(picture.parent), ["mono.png"])
        if not shutil.which("convert"):
            self.skipTest("imagemagick is not installed")
        # Of thirty parts all but a corner show something: texts, charts and symbols have many shades of their colours.
        told = subprocess.run(["convert", str(picture), "-crop", "5x6@", "-format", "%W %H %k\n", "info:"],
                              check=True, capture_output=True, text=True).stdout
        parts = [tuple(map(int, line.split())) for line in told.splitlines()]
        self.assertEqual(len(parts), 30)
        self.assertGreater(min(parts[0][:2]), 1000)
        self.assertLessEqual(sum(colours <= 20 for _, _, colours in parts), 1, parts)


unittest.main()
