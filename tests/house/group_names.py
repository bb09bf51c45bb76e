#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finds names that two files of one folder each keep to themselves, or that a header has too.

The files of a folder are compiled in groups, in which unnamed namespaces are one and every header is seen by all: an
equal name with another signature could change a meaning without an error. Prints every such name with its files; the
exit status tells whether there are any."""

import collections
import json
import pathlib
import re
import subprocess
import sys

INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
UNNAMED = re.compile(r"(?:\w+::)*__anon\w+")
# Macros, and what is found by the type of its argument, which is the file's own.
EXEMPT = {"TEST", "TEST_F", "TEST_P", "INSTANTIATE_TEST_SUITE_P", "BENCHMARK", "qHash"}


def tags(files):
    """What ctags finds in each file."""
    found = subprocess.run(
        ["ctags", "--output-format=json", "--language-force=C++", "--kinds-C++=+p-m", "-L", "-", "-f", "-"],
        input="\n".join(map(str, files)), capture_output=True, text=True, check=True)
    read = map(json.loads, found.stdout.splitlines())
    return (tag for tag in read if "static_assert(" not in tag["pattern"])  # taken for a function by ctags


def visible_headers(files, roots):
    """The headers that anything in a folder includes, by folder: whoever shares a group sees them all."""
    known = set(files)
    included = {}
    for file in files:
        names = INCLUDE.findall(file.read_text())
        included[file] = {path for root in roots for name in names if (path := pathlib.Path(root, name)) in known}
    visible = collections.defaultdict(set)
    for file in files:
        waiting = [file]
        while waiting:
            fresh = included[waiting.pop()] - visible[file.parent]
            visible[file.parent] |= fresh
            waiting.extend(fresh)
    return visible


def main(roots):
    files = [file for root in roots for file in sorted(pathlib.Path(root).rglob("*")) if file.suffix in {".h", ".cpp"}]
    assert files, f"no sources below {roots}"
    visible = visible_headers(files, roots)
    owners = collections.defaultdict(set)
    public = collections.defaultdict(set)
    for tag in tags(files):
        path = pathlib.Path(tag["path"])
        if path.suffix == ".h" and tag.get("scope") == "ambrelle":
            public[tag["name"]].add(path)
        if path.suffix == ".cpp" and UNNAMED.fullmatch(tag.get("scope", "")) and tag["kind"] != "namespace":
            owners[path.parent, tag["name"]].add(path)
    faults = 0
    for (folder, name), paths in sorted(owners.items()):
        paths |= public[name] & visible[folder]
        if len(paths) > 1 and name not in EXEMPT:
            print(f"{name} stands in {', '.join(map(str, sorted(paths)))}")
            faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
