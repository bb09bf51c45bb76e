# SPDX-License-Identifier: MIT
"""Renders wallpapers with the whole program, without a display: wallpapers_test.py PROGRAM"""

import filecmp
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)
RUNTIME = tempfile.mkdtemp()


def render(folder, processors=None, **variables):
    environment = {name: value for name, value in os.environ.items() if name not in ("SKIN", "WIDTH", "HEIGHT", "DISPLAY")}
    environment.update(variables, XDG_RUNTIME_DIR=RUNTIME)
    command = ["taskset", "-c", processors] if processors else []
    command += [PROGRAM, "--render-wallpapers", folder]
    return subprocess.run(command, env=environment, capture_output=True, text=True, timeout=120)


def size_of(path):
    with open(path, "rb") as file:
        return struct.unpack(">II", file.read(24)[16:])


class Wallpapers(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)

    def path(self, name):
        return os.path.join(self.folder, name)

    def test_all_of_them_the_same_in_every_run_and_on_one_processor(self):
        first = render(self.path("new/first"), WIDTH="403", HEIGHT="251")
        self.assertEqual((first.returncode, first.stderr), (0, ""))
        lines = first.stdout.splitlines()[1::2]  # each after that of its file
        self.assertEqual(len(lines), 30)
        for line in lines:
            self.assertRegex(line, r"^[A-Za-z]+ \d+\.\d\ds$")
        names = [line.split()[0] + ".png" for line in lines]
        self.assertEqual(sorted(names), sorted(os.listdir(self.path("new/first"))))
        self.assertEqual((names[0], names[-1]), ("paper.png", "velvet.png"))
        render(self.path("second"), "0", WIDTH="403", HEIGHT="251")
        same, different, missing = filecmp.cmpfiles(self.path("new/first"), self.path("second"), names, shallow=False)
        self.assertEqual((len(same), different, missing), (30, [], []))
        for name in names:
            self.assertEqual(size_of(self.path("second/" + name)), (403, 251))
            if shutil.which("pngcheck"):
                subprocess.run(["pngcheck", "-q", self.path("second/" + name)], check=True)

    def test_one_skin_in_the_usual_size(self):
        self.assertEqual(render(self.folder, SKIN="mono").returncode, 0)
        self.assertEqual(os.listdir(self.folder), ["mono.png"])
        self.assertEqual(size_of(self.path("mono.png")), (2880, 1800))

    def test_nonsense_is_refused_with_a_sentence(self):
        open(self.path("file"), "w").close()
        cases = [
            (self.path("a"), {"WIDTH": "0"}, "WIDTH"),
            (self.path("a"), {"HEIGHT": "-5"}, "HEIGHT"),
            (self.path("a"), {"WIDTH": "wide"}, "wide"),
            (self.path("a"), {"HEIGHT": "32769"}, "32768"),
            (self.path("a"), {"WIDTH": "10.5"}, "WIDTH"),
            (self.path("a"), {"SKIN": "Mono"}, "fieldDark"),
            (self.path("file/below"), {}, "file/below"),
        ]
        for folder, variables, expected in cases:
            with self.subTest(folder=folder, **variables):
                done = render(folder, **variables)
                self.assertEqual((done.returncode, done.stdout), (1, ""))
                self.assertRegex(done.stderr, re.escape(expected))
                self.assertEqual(done.stderr.count("\n"), 1)
        self.assertEqual(os.listdir(self.folder), ["file"])

    def test_a_full_disk_leaves_no_half_file(self):
        limited = ["bash", "-c", 'trap "" XFSZ; ulimit -f 8; exec "$0" --render-wallpapers "$1"', PROGRAM, self.folder]
        done = subprocess.run(limited, env=dict(os.environ, SKIN="paper", XDG_RUNTIME_DIR=RUNTIME), capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertIn("cannot be written", done.stderr)
        self.assertEqual(os.listdir(self.folder), [])


try:
    unittest.main()
finally:
    os.rmdir(RUNTIME)
