#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the same archive of the same folder each time: zip_folder.py FOLDER ARCHIVE

All times are SOURCE_DATE_EPOCH. A folder that the updater would refuse to unpack is refused here."""

import os
import re
import stat
import sys
import time
import zipfile
from pathlib import Path

LETTERS = re.compile(rb"[A-Za-z0-9._+@()-][A-Za-z0-9._+@() -]*")
LONGEST = 240
DEEPEST = 12
MOST = 4000
LARGEST_FILE = 256 << 20
LARGEST = 512 << 20


def entries(folder):
    """All paths as bytes, the folder's parent not in them, in the order of their bytes."""
    found = [os.fsencode(folder.name)]
    for place, folders, files in os.walk(folder):
        base = os.path.relpath(place, folder.parent)
        found += [os.fsencode(os.path.join(base, name)) for name in folders + files]
    return sorted(found)


def check(path, state):
    parts = path.split(b"/")
    if len(path) > LONGEST or len(parts) > DEEPEST:
        sys.exit(f"zip_folder: the path is too long: {path!r}")
    if not all(LETTERS.fullmatch(part) and not part.startswith(b"-") and part[-1:] not in b". " for part in parts):
        sys.exit(f"zip_folder: no name for an archive: {path!r}")
    if not (stat.S_ISREG(state.st_mode) or stat.S_ISDIR(state.st_mode)) or state.st_mode & 0o7000:
        sys.exit(f"zip_folder: only plain files and folders go into an archive: {path!r}")
    if stat.S_ISREG(state.st_mode) and state.st_size > LARGEST_FILE:
        sys.exit(f"zip_folder: the file is too large: {path!r}")


def main(folder, archive):
    folder = Path(folder).resolve()
    when = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    paths = entries(folder)
    lower = {path.lower() for path in paths}
    states = {path: os.lstat(os.path.join(os.fsencode(folder.parent), path)) for path in paths}
    if len(paths) > MOST or len(lower) < len(paths) or sum(s.st_size for s in states.values()) > LARGEST:
        sys.exit("zip_folder: too much, or names that differ in nothing but capitals")
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as target:
        for path in paths:
            state = states[path]
            check(path, state)
            is_folder = stat.S_ISDIR(state.st_mode)
            entry = zipfile.ZipInfo(os.fsdecode(path) + "/" * is_folder, when)
            entry.create_system = 3
            mode = 0o40755 if is_folder else 0o100755 if state.st_mode & 0o100 else 0o100644
            entry.external_attr = mode << 16 | 0x10 * is_folder
            entry.compress_type = zipfile.ZIP_STORED if is_folder else zipfile.ZIP_DEFLATED
            content = b"" if is_folder else (folder.parent / os.fsdecode(path)).read_bytes()
            target.writestr(entry, content, compresslevel=9)


main(*sys.argv[1:])
