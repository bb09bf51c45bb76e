#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Puts the licences of what a folder brings along into it: credits.py FOLDER SOURCES

SOURCES lists the files that were copied from the system. The copyright of every package that owns one goes into the
folder's share/doc/ambrelle/libraries, the texts to which these and those of the fonts refer into its licences, and
where to find their sources into libraries.txt."""

import re
import shutil
import subprocess
import sys
from pathlib import Path

COMMON = Path("/usr/share/common-licenses")


def owner(path):
    # Packages may still name the folders from before they were merged with those in /usr.
    for name in (path, re.sub("^/usr/lib/", "/lib/", path), re.sub("^/lib/", "/usr/lib/", path)):
        asked = subprocess.run(["dpkg-query", "--search", name], capture_output=True, text=True)
        if asked.returncode == 0:
            return re.split("[:,]", asked.stdout)[0]
    sys.exit(f"credits: no package owns {path}, so its licence is unknown")


def source(package):
    return subprocess.run(["dpkg-query", "--show", "--showformat=${source:Package} ${source:Version}", package],
                          check=True, capture_output=True, text=True).stdout


def main(folder, sources):
    doc = Path(folder) / "share/doc/ambrelle"
    (doc / "libraries").mkdir(parents=True)
    (doc / "licences").mkdir()
    packages = sorted({owner(path) for path in Path(sources).read_text().split()})
    (doc / "libraries.txt").write_text(
        "Libraries in lib/ambrelle are those of Debian 12, unchanged: package, source package, version.\n"
        "Debian offers the sources: https://snapshot.debian.org/\n\n"
        + "".join(f"{package} {source(package)}\n" for package in packages))
    for package in packages:
        shutil.copyfile(f"/usr/share/doc/{package}/copyright", doc / "libraries" / package)
    referred = set()
    for file in [*(doc / "libraries").iterdir(), *(doc / "fonts").iterdir()]:
        text = file.read_text(encoding="utf-8", errors="replace")
        referred.update(name.rstrip(".") for name in re.findall(rf"{COMMON}/([A-Za-z0-9.+-]+)", text))
    for name in sorted(referred):
        if (COMMON / name).is_file():
            shutil.copyfile(COMMON / name, doc / "licences" / name)
        else:
            print(f"credits: somebody refers to {COMMON / name}, which is not there", file=sys.stderr)


main(*sys.argv[1:])
