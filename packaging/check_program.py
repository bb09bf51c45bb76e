#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Looks whether programs were compiled as the distribution compiles its own: check_program.py [--folder] FILE...

With --folder they have to find their libraries from where they are, without it where the system keeps them."""

import re
import subprocess
import sys
from pathlib import Path

# Where a jump may land, as the processor knows it; the least number for a program that was compiled so throughout.
LANDINGS = {"X86-64": b"\xf3\x0f\x1e\xfa", "AArch64": b"\x5f\x24\x03\xd5"}
FEWEST_LANDINGS = 20


def told(file):
    return subprocess.run(["readelf", "--wide", "--file-header", "--program-headers", "--dynamic", "--dyn-syms", file],
                          check=True, capture_output=True, text=True, env={"LC_ALL": "C"}).stdout


def faults(file, in_folder):
    text = told(file)
    flags = "".join(re.findall(r"\(FLAGS(?:_1)?\).*", text))
    machine = next((name for name in LANDINGS if re.search(rf"Machine:.*{name}", text)), None)
    names = re.findall(r"UND (\w+)", text)
    stack = re.search(r"GNU_STACK.*", text)
    paths = re.findall(r"\((RPATH|RUNPATH)\)\s+Library (?:rpath|runpath): \[(.*)\]", text)
    checks = {
        "is at a fixed address": re.search(r"Type:\s+DYN", text) and "PIE" in flags,
        "leaves its tables writable": "GNU_RELRO" in text and "NOW" in flags,
        "has a stack that can be executed": stack and "RWE" not in stack[0],
        "has code that is patched at start": "TEXTREL" not in text,
        "does not guard its stack": "__stack_chk_fail" in names,
        "does not check what it writes to": any(name.endswith("_chk") for name in names),
        "may be made to jump anywhere":
            machine is None or Path(file).read_bytes().count(LANDINGS[machine]) >= FEWEST_LANDINGS,
        f"looks for libraries in {paths}":
            [kind for kind, _ in paths] == ["RPATH"] * in_folder
            and all(place.startswith("$ORIGIN") for _, place in paths),
    }
    return [name for name, fine in checks.items() if not fine]


def main(arguments):
    in_folder = arguments[:1] == ["--folder"]
    found = [f"{file}: it {fault}" for file in arguments[in_folder:] for fault in faults(file, in_folder)]
    if found:
        sys.exit("\n".join(found))


main(sys.argv[1:])
