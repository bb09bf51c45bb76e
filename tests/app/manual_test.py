# SPDX-License-Identifier: MIT
"""What is told of the program elsewhere against what it tells itself: manual_test.py PROGRAM"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree
from pathlib import Path

PROGRAM = str(Path(sys.argv.pop(1)).resolve())
TREE = Path(__file__).resolve().parents[2]
ASSETS = TREE / "assets"


HOME = tempfile.TemporaryDirectory()


def told(*command, **more):
    environment = {"HOME": HOME.name, "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
    return subprocess.run(command, check=True, capture_output=True, text=True, timeout=60, env=environment,
                          **more).stdout


def options():
    """The long ones of its help, each with the name of its argument or nothing."""
    listed = re.findall(r"^  (?:-\w, )?--([\w-]+)(?: ([A-Z]+))?  ", told(PROGRAM, "--help"), re.MULTILINE)
    return {name: argument.lower() for name, argument in listed}


def actions():
    """Their names, in its help."""
    (listed,) = re.findall(r"^  --action NAME .*?:(.*?)(?=^  -)", told(PROGRAM, "--help"), re.MULTILINE | re.DOTALL)
    return re.findall(r"[a-z-]+(?=,|$| or)|(?<=or )[a-z-]+", listed.strip(), re.MULTILINE)


def needs(tool):
    return unittest.skipUnless(shutil.which(tool), f"{tool} is not installed")


class Manual(unittest.TestCase):
    def setUp(self):
        self.options = options()
        self.assertLessEqual({"help", "version", "render-previews"}, set(self.options))

    def test_the_manual_page_explains_every_option(self):
        page = (ASSETS / "ambrelle.1").read_text()
        explained = {}
        for line in re.findall(r"^\.It (Fl .*)", page, re.MULTILINE):
            for name, argument in re.findall(r"Fl -([\w-]+)(?: Ar (\w+))?", line):
                explained[name] = argument
        self.assertEqual(explained, self.options)
        named = set(re.findall(r"Fl -([\w-]{2,})", page[page.index(".Sh SYNOPSIS"):page.index(".Sh DESCRIPTION")]))
        self.assertLessEqual(named, set(self.options))
        help_text = told(PROGRAM, "--help")
        for variable in re.findall(r"^\.It Ev (.*)", page, re.MULTILINE):
            if variable in ("SKIN", "WIDTH , Ev HEIGHT"):
                self.assertIn(variable.replace(" , Ev", ","), help_text)

    def test_settings_without_a_control_are_told_of(self):
        readme = (TREE / "README.md").read_text()
        table = readme[readme.index("| Key | Meaning |"):].split("\n\n")[0]
        keys = re.findall(r"^\| `(\w+)` \|", table, re.MULTILINE)
        self.assertTrue(keys)
        told_of = re.findall(r"^\.Va (\w+)", (ASSETS / "ambrelle.1").read_text(), re.MULTILINE)
        self.assertEqual(sorted(told_of), sorted(keys))

    @needs("bash")
    def test_bash_completes(self):
        script = """source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _ambrelle; printf '%s\\n' "${COMPREPLY[@]}" """

        def completed(*words, **more):
            file = ASSETS / "completions/ambrelle.bash"
            return sorted(told("bash", "-c", script, "-", file, PROGRAM, *words, **more).split("\n")[:-1])

        self.assertEqual(completed("--"), sorted(f"--{name}" for name in self.options))
        self.assertEqual(completed("--render-p"), ["--render-previews"])
        self.assertEqual(completed("--action", ""), sorted(actions()))
        self.with_files(lambda folder: (
            self.assertEqual(completed("", cwd=folder), ["a theme.ambrelle", "pictures"]),
            self.assertEqual(completed("--render-previews", "p", cwd=folder), ["pictures"])))

    @needs("fish")
    def test_fish_completes(self):
        def completed(line, **more):
            answer = told("fish", "--private", "-c", f"source {ASSETS}/completions/ambrelle.fish; complete -C {line!r}",
                          **more)
            return {word.split("\t")[0] for word in answer.splitlines()}

        self.assertEqual(completed("ambrelle --"), {f"--{name}" for name in self.options})
        self.with_files(lambda folder: (
            self.assertEqual(completed("ambrelle a", cwd=folder), {"a theme.ambrelle"}),
            self.assertEqual(completed("ambrelle p", cwd=folder), {"pictures/"}),
            self.assertEqual(completed("ambrelle --render-previews p", cwd=folder), {"pictures/"})))

    def test_zsh_knows_every_option(self):
        text = (ASSETS / "completions/_ambrelle").read_text()
        self.assertTrue(text.startswith("#compdef ambrelle\n"))
        known = {name: bool(argument) for name, argument in re.findall(r"--([\w-]+)}?'?\[[^]]*\](:)?", text)}
        self.assertEqual(known, {name: bool(argument) for name, argument in self.options.items()})

    def test_everybody_knows_the_same_actions(self):
        names = actions()
        self.assertLessEqual({"open-window", "quit"}, set(names))
        page = (ASSETS / "ambrelle.1").read_text()
        explained = page[page.index(".It Fl -action"):page.index(".It Fl -render-previews")]
        listed = re.findall(r"[a-z-]+", " ".join(re.findall(r"^\.Cm (.*)", explained, re.MULTILINE)))
        self.assertEqual(listed, names)
        for file, pattern in (("_ambrelle", r":action:\((.*?)\)"), ("ambrelle.fish", r"-l action -x -a '(.*?)'")):
            (known,) = re.findall(pattern, (ASSETS / "completions" / file).read_text())
            self.assertEqual(known.split(), names, file)
        entry = (ASSETS / "org.ambrelle.Ambrelle.desktop").read_text()
        self.assertLessEqual(set(re.findall(r"^Exec=ambrelle --action (.*)", entry, re.MULTILINE)), set(names))

    def test_what_the_desktop_starts_is_understood(self):
        entry = (ASSETS / "org.ambrelle.Ambrelle.desktop").read_text()
        starts = re.findall(r"^Exec=ambrelle (.*)", entry, re.MULTILINE)
        used = {word[2:] for line in starts for word in line.split() if word.startswith("--")}
        self.assertLessEqual(used, set(self.options))

    def test_the_latest_release_is_this_version(self):
        version = told(PROGRAM, "--version").split()[-1]
        releases = xml.etree.ElementTree.parse(ASSETS / "org.ambrelle.Ambrelle.metainfo.xml").find("releases")
        self.assertEqual(releases[0].get("version"), version)
        self.assertIn(f"({version})", (TREE / "packaging/changelog.in").read_text().splitlines()[0])

    def with_files(self, check):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("a theme.ambrelle", "another.txt"):
                (Path(folder) / name).touch()
            (Path(folder) / "pictures").mkdir()
            check(folder)


unittest.main()
