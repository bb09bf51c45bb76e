#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The power goes at any moment: power_test.py PROGRAM NOTES STORE [DISKS [SEED]].

NOTES notes what goes to the disk, which takes a while to flush; from that, what a cut of the power before any step may
leave is made up, DISKS times (4). STORE is a program that stores and reads settings and nothing else. First it stores
values that come back, then the whole program's widgets are dragged there and back. Whatever is left is read without a
complaint, holds what was set a second before the cut or later, and the whole program starts with it.
"""
import json
import os
import random
import shutil
import subprocess
import sys
import time
from bisect import bisect_right
from pathlib import Path

sys.path.append(str(Path(__file__).parents[1] / "support"))

from power_cut import Disk, restore  # noqa: E402
from program import Session, pointer, wait_for  # noqa: E402

NOTES, STORE = sys.argv[2:4]
DISKS = int(sys.argv[4]) if len(sys.argv) > 4 else 4
SEED = int(sys.argv[5]) if len(sys.argv) > 5 else random.randrange(10**6)
FLUSH = 50  # milliseconds that a flush takes longer
SAFE = 1.0  # seconds after which a change is safe
BATCH = 200  # folders read at once
dice = random.Random(SEED)


def noted(folder, notes):
    return dict(LD_PRELOAD=NOTES, AMBRELLE_DISK=str(folder), AMBRELLE_DISK_NOTES=str(notes), AMBRELLE_FLUSH_TIME=str(FLUSH))


def versions(steps):
    """What was stored, in order: the moment that this was done, and the values."""
    stored = []
    for line in steps:
        moment, verb, *about = line.split()
        if verb == "wrote" and (data := bytes.fromhex(about[2])).startswith(b"ambrelle "):
            seal, _, rest = data.partition(b"\n")
            body = rest[:int(seal.split()[2])]
            stored.append((float(moment), json.loads(body.partition(b"\n")[2])))
    return stored


def held_up(steps, moment):
    """How much longer than planned the last flushes before that moment took, which is the machine's fault."""
    begun, late = None, 0
    for line in steps:
        at, verb, *_ = line.split()
        if float(at) > moment:
            break
        if verb == "flush":
            begun = float(at)
        elif verb == "flushed":
            if float(at) > moment - 2 * SAFE:
                late += max(0, float(at) - begun - FLUSH / 1000)
            begun = None
    return late + (max(0, moment - begun - FLUSH / 1000) if begun else 0)


def judge(what, disk, steps, store, work):
    """Reads what is left after every step; gives the folder of the last disk, as it was left."""
    disk.follow(steps)
    stored = versions(steps)
    times = [moment for moment, _ in stored]
    assert len(stored) > 20, f"{what}: only {len(stored)} changes"
    first = json.loads(disk.known[str(store)].at(1)) if str(store) in disk.known else {}
    disks = []
    for cut in range(1, len(steps) + 1):
        moment = disk.times[cut] if cut < len(steps) else disk.times[-1] + SAFE
        safe = bisect_right(times, moment - SAFE - held_up(steps, moment))  # so many are safe
        made = bisect_right(times, disk.times[cut - 1])
        for _ in range(DISKS):
            target = work / str(len(disks))
            target.mkdir()
            restore(disk.left(cut, dice), disk.folder, target)
            disks.append((target, cut, [first, *(values for _, values in stored)][safe:made + 1]))
    shutil.copytree(disks[-1][0], work / "last", dirs_exist_ok=True)
    for start in range(0, len(disks), BATCH):
        some = disks[start:start + BATCH]
        paths = [target / store.relative_to(disk.folder) for target, _, _ in some]
        told = subprocess.run([STORE, "read", *map(str, paths)], capture_output=True, text=True, check=True)
        where = f"{what}, seed {SEED}"
        assert not told.stderr, f"{where}: {told.stderr}"
        for line, (target, cut, possible) in zip(told.stdout.splitlines(), some, strict=True):
            assert json.loads(line) in possible, f"{where}, {target} after step {cut} {steps[cut - 1][:90]}: {line[:400]}"
            shutil.rmtree(target)
    print(f"{what}: {len(stored)} changes, {len(steps)} steps, {len(disks)} disks after a cut: nothing lost, none damaged")
    return work / "last"


def only_settings(session):
    """In a home whose folders are all made by the program, on a first start of its settings."""
    folder = session.home / "values"
    folder.mkdir()
    store = folder / "made/ambrelle/defaults.json"
    disk, notes = Disk(folder), session.home / "values.notes"
    subprocess.run([STORE, "store", str(store), str(SEED)], env=dict(os.environ, **noted(folder, notes)), check=True)
    judge("values that come back", disk, notes.read_text().splitlines(), store, session.home / "work")


def drag(session, number, right, up):
    x, y, width, height = wait_for("widgets", lambda: len(found := session.panels()) == 2 and found)[number]
    grip = x + width // 2, y + height // 2
    path = [word for i in range(1, 21)
            for word in ("mousemove", str(grip[0] + right * i), str(grip[1] - up * i), "sleep", "0.02")]
    pointer("mousemove", *map(str, grip), "sleep", "0.2", "mousedown", "1", *path, "mouseup", "1", "mousemove", "1", "1")


def whole_program(session):
    (folder := session.store.parent / "theirs").mkdir()
    (folder / "neighbour.txt").write_text("theirs")
    session.store.write_text(json.dumps({"hasLaunchedBefore": True, "animations": False, "widgets.v2": [
        {"kind": "countdown", "skin": "glass", "origin": [200 + 400 * i, 300]} for i in range(2)]}))
    before = dict(session.env)
    disk, notes = Disk(session.store.parent), session.home / "notes"
    session.env.update(noted(session.store.parent, notes))
    session.start()
    wait_for("widgets", lambda: len(session.panels()) == 2)
    for _ in range(3):  # there and back, with rests in which all becomes safe
        drag(session, 0, 6, 4)
        time.sleep(dice.random() * 2)
        drag(session, 0, -6, -4)
        drag(session, 1, 4, -5)
        drag(session, 1, -4, 5)
    wait_for("flushed settings", lambda: not list(session.store.parent.glob("*.latest-*")))
    session.process.kill()
    session.process.wait()
    session.process.stderr.close()
    last = judge("the whole program", disk, notes.read_text().splitlines(), session.store, session.home / "work")
    session.env = before
    shutil.rmtree(session.store.parent)
    shutil.copytree(last, session.store.parent)
    session.start()
    wait_for("widgets after the cut", lambda: len(session.panels()) == 2)
    assert (session.store.parent / "theirs/neighbour.txt").read_text() == "theirs"


session = Session()
(session.home / "work").mkdir()
only_settings(session)
whole_program(session)
session.end()
