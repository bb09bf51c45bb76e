# SPDX-License-Identifier: MIT
"""The data of the catalogue site: site_test.py PROGRAM SCHEMA"""
import json
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import jsonschema

TREE = Path(__file__).resolve().parents[2]
METAINFO, SKINS = TREE / "assets/org.ambrelle.Ambrelle.metainfo.xml", TREE / "main/skins"
SCHEMA = json.loads(Path(sys.argv.pop(2)).read_text())

from batch import Batch, size_of  # noqa: E402  takes the program from the arguments


class Site(Batch):
    def test_data_and_pictures_belong_together(self):
        files = self.assert_same_for_everybody("--export-site", SKIN="atlas", SOURCE_DATE_EPOCH="86400")
        text = files["themes.json"].read_text()
        site = json.loads(text)
        jsonschema.validate(site, SCHEMA)
        self.assertEqual(site["exported"], "1970-01-02T00:00:00Z")
        self.assertEqual([theme["id"] for theme in site["themes"]], ["atlas"])
        theme = site["themes"][0]
        named = [theme[screen][key] for screen in ("preset", "wallpaper") for key in ("file", "webp")]
        named += [part["file"] for part in theme["layout"] + theme["sprites"]]
        named += [variant["file"] for variant in site["accentDemo"][0]["variants"]]
        self.assertEqual(len(named), len(set(named)), "one picture for two things")
        self.assertLessEqual(set(named), set(files), "a picture is missing")
        shown = re.findall(r"@/themes/(\w+)/(.+)</image>", METAINFO.read_text())
        self.assertTrue(shown)
        for skin, file in shown:
            self.assertIn(f"themes/atlas/{file}", files, "shops show no such picture")
            self.assertTrue((SKINS / skin).is_dir(), f"there is no skin {skin}")
        keys = [line.split('"')[1] for line in text.splitlines() if line.startswith('    "')]
        self.assertEqual(keys, sorted(keys), "the order of keys is not fixed")
        self.check_sizes(site, theme, files)
        self.check_accents(site["accentDemo"][0], files)

    def check_sizes(self, site, theme, files):
        scale, margin = site["canvas"]["scale"], site["canvas"]["margin"]
        for screen in ("preset", "wallpaper"):
            entry = theme[screen]
            self.assertEqual(size_of(files[entry["file"]]), (entry["width"], entry["height"]))
            self.assertEqual((entry["width"], entry["height"]),
                             (site["canvas"]["width"] * scale, site["canvas"]["height"] * scale))
        for parts, edge in ((theme["layout"], margin), (theme["sprites"], 0)):
            self.assertTrue(parts)
            for part in parts:
                width, height = size_of(files[part["file"]])
                self.assertAlmostEqual(width, (part["width"] + 2 * edge) * scale, delta=1)
                self.assertAlmostEqual(height, (part["height"] + 2 * edge) * scale, delta=1)

    def check_accents(self, demo, files):
        self.assertEqual(demo["file"], demo["variants"][0]["file"])
        pictures = {files[variant["file"]].read_bytes() for variant in demo["variants"]}
        self.assertEqual(len(pictures), len({variant["color"] for variant in demo["variants"]}))
        for picture in pictures:
            self.assertEqual((picture[:4], picture[8:12]), (b"RIFF", b"WEBP"))

    @unittest.skipUnless(shutil.which("compare"), "imagemagick is not installed")
    def test_parts_put_together_are_the_desktop(self):
        files, _ = self.rendered("--export-site", SKIN="neon")
        theme = json.loads(files["themes.json"].read_text())["themes"][0]
        command = ["convert", str(files[theme["wallpaper"]["file"]])]
        for parts, margin in ((theme["sprites"], 0), (theme["layout"], 20)):
            for part in parts:
                corner = [round((part[key] - margin) * 2) for key in ("x", "y")]
                command += [str(files[part["file"]]), "-geometry", f"{corner[0]:+}{corner[1]:+}", "-composite"]
        together = self.folder / "together.png"
        subprocess.run([*command, str(together)], check=True)
        told = subprocess.run(["compare", "-metric", "AE", "-fuzz", "6%", str(together),
                               str(files[theme["preset"]["file"]]), "null:"], capture_output=True, text=True)
        self.assertLess(float(told.stderr.split()[0]), 2880 * 1800 / 200, "the places are not those of the desktop")


unittest.main()
