# SPDX-License-Identifier: MIT
"""What batch modes write, tell and refuse: batch_test.py PROGRAM"""
import os
import pty
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from batch import MODES, PROGRAM, Batch, size_of


class Modes(Batch):
    def test_previews_and_wallpapers(self):
        files = self.assert_same_for_everybody("--render-previews", SKIN="neon")
        self.assertEqual(list(files), ["neon.png"])
        self.assertEqual(size_of(files["neon.png"])[0], 1580)
        files, lines = self.rendered("--render-wallpapers", SKIN="neon", WIDTH="320", HEIGHT="200")
        self.assertEqual(size_of(files["neon.png"]), (320, 200))
        self.assertRegex(lines[1], r"^neon \d+\.\d\ds$")

    def test_the_interface(self):
        files = self.assert_same_for_everybody("--render-ui", SKIN="neon")
        tabs = ["themes", "widgets", "wallpapers", "settings", "mythemes"]
        self.assertCountEqual(files, ["preset-neon.png", *(f"ui-{tab}.png" for tab in tabs)])
        self.assertEqual(size_of(files["preset-neon.png"]), (1440, 900))
        self.assertEqual(len({files[f"ui-{tab}.png"].read_bytes() for tab in tabs}), 5, "two tabs look the same")

    @unittest.skipUnless(shutil.which("Xvfb"), "Xvfb is not installed")
    def test_live_widgets(self):
        files = self.assert_same_for_everybody("--render-window", SKIN="neon", KINDS="clock, photo,countdown,clock")
        self.assertCountEqual(files, ["neon-clock.png", "neon-photo.png", "neon-countdown.png"])
        shutil.rmtree(self.folder / "out-0")
        files, _ = self.rendered("--render-window", SKIN="mono")
        self.assertEqual(len(files), 12, "the widgets of the layout")
        for path in files.values():
            self.assertGreater(path.stat().st_size, 1500, f"{path} is empty")

    @unittest.skipUnless(shutil.which("Xvfb"), "Xvfb is not installed")
    def test_an_interrupted_display_leaves_nothing(self):
        for number, pause in ((signal.SIGINT, 0), (signal.SIGTERM, 0.7), (signal.SIGINT, 2)):
            with self.subTest(number, pause=pause):
                scratch = Path(tempfile.mkdtemp(dir=self.folder))
                process = subprocess.Popen([PROGRAM, "--render-window", str(scratch / "out")], text=True,
                                           env=self.environment(TMPDIR=str(scratch)), start_new_session=True,
                                           stdout=subprocess.PIPE, stderr=subprocess.PIPE)
                while process.poll() is None and not list(scratch.iterdir()):
                    time.sleep(0.01)
                time.sleep(pause)
                os.killpg(process.pid, number)
                _, told = process.communicate(timeout=60)
                self.assertEqual((process.returncode, told), (1, "ambrelle: Interrupted.\n"))
                self.assertLessEqual({path.name for path in scratch.iterdir()}, {"out"})

    def test_refusals(self):
        (self.folder / "file").touch()
        closed = self.folder / "closed"
        closed.mkdir(mode=0o500)
        cases = [(mode, "file/below", {}, "file/below") for mode in MODES if mode != "--render-window"]
        cases += [(mode, "new", {"SKIN": "Mono"}, "fieldDark") for mode in MODES]
        cases += [("--render-previews", "", {}, "No folder"),
                  ("--render-window", "new", {"KINDS": "clock,moon"}, "“moon”.*nowPlaying"),
                  ("--render-window", "new", {"PATH": "/nowhere"}, "DISPLAY"),
                  ("--export-site", "new", {"SOURCE_DATE_EPOCH": "today"}, "today")]
        if os.geteuid() != 0:
            cases += [("--render-previews", "closed", {}, "closed")]
        for mode, folder, variables, sentence in cases:
            with self.subTest(mode, folder=folder, **variables):
                done = self.run_mode(mode, folder, **variables)
                self.assertEqual((done.returncode, done.stdout, done.stderr.count("\n")), (1, "", 1))
                self.assertRegex(done.stderr, "^ambrelle: .*" + sentence)
        self.assertFalse((self.folder / "new").exists())

    def test_a_name_that_cannot_be_read(self):
        done = subprocess.run([PROGRAM, "--render-wallpapers", b"a\xffb"], env=self.environment(SKIN="neon"),
                              cwd=self.folder, capture_output=True, text=True, timeout=300)
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertRegex(done.stderr, "^ambrelle: The name of the folder .* is not UTF-8")
        self.assertEqual(os.listdir(os.fsencode(self.folder)), [b"home-0"])

    def test_a_full_disk_leaves_no_half_file(self):
        for mode in MODES:
            with self.subTest(mode):
                if mode == "--render-window" and not shutil.which("Xvfb"):
                    continue
                folder = self.folder / mode
                # The server of live widgets has files of its own.
                most = 16 if mode == "--render-window" else 2
                limited = ["bash", "-c", f'trap "" XFSZ; ulimit -f {most}; exec "$0" "$1" "$2"', PROGRAM, mode, str(folder)]
                done = subprocess.run(limited, env=self.environment(SKIN="neon"), capture_output=True, text=True,
                                      timeout=300)
                sentences = [line for line in done.stderr.splitlines() if line.startswith("ambrelle: ")]
                self.assertEqual((done.returncode, len(sentences)), (1, 1), done.stderr)
                self.assertIn("cannot be written", sentences[0])
                whole = [path for path in folder.rglob("*") if path.is_file()]
                for path in whole:
                    self.assertLessEqual(path.stat().st_size, most * 1024)
                    self.assertTrue(path.read_bytes().endswith(b"IEND\xaeB\x60\x82"), f"{path} is half a file")

    def test_a_full_standard_output(self):
        with open("/dev/full", "w") as full:
            done = subprocess.run([PROGRAM, "--render-wallpapers", str(self.folder / "out")], stdout=full,
                                  stderr=subprocess.PIPE, text=True, timeout=300,
                                  env=self.environment(SKIN="neon", WIDTH="64", HEIGHT="40"))
        self.assertEqual((done.returncode, done.stderr.count("\n")), (1, 1), done.stderr)
        self.assertRegex(done.stderr, "^ambrelle: Standard output cannot be written to: .")

    def test_progress_is_for_people(self):
        terminal, their_end = pty.openpty()
        command = [PROGRAM, "--render-wallpapers", str(self.folder / "out")]
        variables = {"SKIN": "neon,mono", "WIDTH": "64", "HEIGHT": "40"}
        with subprocess.Popen(command, env=self.environment(**variables), stdout=subprocess.PIPE, stderr=their_end,
                              text=True) as process:
            told = process.communicate(timeout=300)[0]
        os.close(their_end)
        shown = os.read(terminal, 4096).decode()
        os.close(terminal)
        written = [f"wrote {self.folder}/out/{skin}.png" for skin in ("neon", "mono")]
        self.assertEqual(re.findall("wrote .*", told), written)
        self.assertTrue(re.search(r"\[·+\] 1/2 Neon", shown), shown)
        self.assertTrue(re.search(r"\[#+·+\] 2/2 Mono", shown), shown)
        # Cleared before each of four lines, and there again after it.
        self.assertGreater(shown.count("\r\033[K["), 4, shown)
        self.assertTrue(shown.endswith("\r\033[K"), "the line stays")


unittest.main()
