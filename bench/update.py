#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures how long the main loop is held up by an update, with the main window open: update.py PROGRAM HELPER KEYS, on a
display, as the tests of updates are run.

In each of AMBRELLE_ROUNDS rounds (3) a release of AMBRELLE_MEGABYTES (100) that hardly packs is fetched over HTTPS from
this machine, hashed, unpacked, tried and exchanged for the running program, at the user's wish, while the window shows how
it goes. Gaps are the times that the main thread was away from its event loop, without those in which others had the
processor; beside them stands what a single turn of the loop took of the processor at most, which is what fails the
measurement, as does more memory than an update may need. The same is told of some seconds before, in which nothing
happens. With others at work the gaps tell little: for every picture of the window the toolkit waits for the display's
server, which waits for a processor like all others.
"""
import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

HERE = Path(__file__).parent
sys.path[1:1] = [str(HERE.parent / "tests/app"), str(HERE.parent / "tests/support")]
from installed import NEW, OLD, digest, lay_out
from program import wait_for
from publisher import Publisher, authority, release
from updating import PRESENT, Updating

from live import ROUNDS, read
from settings import library

MEGABYTES = int(os.environ.get("AMBRELLE_MEGABYTES", "100"))
SETTLED = 6  # seconds until the window has painted what it shows
QUIET = 5  # seconds that are measured before
MOST = 4  # milliseconds of processor time of a single turn
MOST_MEMORY = 30  # megabytes that an update adds


def own(gap):
    """What the program is to blame for: work and waiting, but not for a processor."""
    return gap[1] - gap[3]


def told(what, gaps):
    longest = ", ".join(f"{own(gap):.1f} ({gap[2]:.1f} of processor time)" for gap in sorted(gaps, key=own, reverse=True)[:3])
    wall, used = (max((gap[i] for gap in gaps), default=0) for i in (1, 2))
    print(f"  {what}: {len(gaps)} gaps of 1 ms and more; the longest {longest or 'none'}, {wall:.1f} on the wall; "
          f"at most {used:.1f} ms of processor time in a turn")
    return used


def peak(number):
    """Megabytes that the process ever had in memory."""
    return next(int(line.split()[1]) / 1024 for line in read(f"/proc/{number}/status").splitlines() if line.startswith("VmHWM"))


def peak_with_helper(session, number):
    """As above, of the program and what unpacks for it. The trial of the newer version is as large as the program, but
    shares nearly all with it."""
    megabytes = peak(number)
    for other in session.processes():
        with contextlib.suppress(OSError, StopIteration):  # it has ended
            if os.readlink(f"/proc/{other}/exe").endswith("/ambrelle-update"):
                megabytes += peak(other)
    return megabytes


def measured(session, gaps, preloaded):
    """Seconds that the update took, megabytes that it added, and the gaps before and in it."""
    start = time.monotonic()
    session.process = subprocess.Popen([session.program], stdout=session.output, stderr=session.output,
                                       env=dict(session.env, LD_PRELOAD=preloaded, AMBRELLE_GAPS=str(gaps)))
    number = wait_for("running program", session.running)
    session.act("check-for-updates")  # which shows the window
    wait_for("newer version", lambda: session.asked())
    time.sleep(SETTLED + QUIET)
    before, begin = peak(number), time.monotonic()
    most = before
    session.act("update")

    def has_relaunched():
        nonlocal most
        if not gaps.exists():  # written right before the newer program takes over
            most = max(most, peak_with_helper(session, number))
        return gaps.exists()
    wait_for("relaunch", has_relaunched, 300)
    took = time.monotonic() - begin
    wait_for("newer version", lambda: session.has_become(session.newer, number))
    found = [tuple(map(float, line.split())) for line in gaps.read_text().splitlines()]
    session.quit(number)
    begun = begin - start - 1.5  # their clock begins with the event loop, a moment after the program
    return took, most - before, [gap for gap in found if begun - QUIET < gap[0] < begun], [gap for gap in found if gap[0] >= begun]


def main():
    place = authority()
    shop = Path(tempfile.mkdtemp(prefix="ambrelle-bench-"))
    template, newer = shop / "old", shop / "Ambrelle"
    lay_out(template, OLD)
    lay_out(newer, NEW)
    (newer / "share/ambrelle/ballast").write_bytes(os.urandom(MEGABYTES << 20))
    offered = release(newer, NEW, PRESENT)
    publisher, preloaded, worst, largest = Publisher(place / "server"), library("LoopGap", shop), 0, 0
    print(f"On {os.cpu_count()} processors with a load of {os.getloadavg()[0]:.1f}, {len(offered.archive) >> 20} MB")
    for number in range(ROUNDS):
        session = Updating(template, publisher, f"round-{number}")
        session.newer = digest(newer)
        session.publish(offered)
        try:
            took, added, quiet, busy = measured(session, session.home / "gaps", preloaded)
        finally:
            session.close()
        print(f"Round {number + 1}: {took:.1f} s, {added:+.1f} MB of memory, load {os.getloadavg()[0]:.1f}")
        told("before", quiet)
        worst, largest = max(worst, told("update", busy)), max(largest, added)
    shutil.rmtree(shop)
    sys.exit(f"more than {MOST} ms" if worst > MOST else f"more than {MOST_MEMORY} MB" if largest > MOST_MEMORY else 0)


main()
