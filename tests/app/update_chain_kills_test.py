#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Kills the whole program while it updates itself from a server of this machine, on the display of this test:
update_chain_kills_test.py PROGRAM HELPER KEYS.

AMBRELLE_KILLS is how often (40), AMBRELLE_SEED makes the same moments again.
"""
import contextlib
import os
import random
import shutil
import signal
import time

from installed import NEW, digest
from program import wait_for
from updating import published

KILLS = int(os.environ.get("AMBRELLE_KILLS", 40))
SEED = int(os.environ.get("AMBRELLE_SEED", random.randrange(10**6)))


def settle(session):
    """Whatever stands there starts, and leaves nothing behind; gives the process that runs then."""
    number = session.launch()
    if digest(session.root) != session.whole:  # it is believed once it has ended in order
        session.quit(number)
        number = session.launch()
    wait_for("tidy folder", session.is_tidy)
    assert digest(session.root) in session.wholes, f"a broken program: {list(session.root.rglob('*'))}"
    stored = session.stored()
    assert stored.get("rejectedUpdate", NEW) == NEW  # it was killed in its first seconds
    assert stored | session.before == stored, f"something of the user's is lost: {stored}"
    assert not any(session.temporary.iterdir())
    return number


def is_killed(session, shop):
    """At any moment from the first byte of the download to the relaunch; every other time with all its helpers."""
    session.publish(shop.newer)
    session.wholes = {session.whole: 0, shop.whole: 0}
    number = session.launch()
    session.before = session.stored()
    dice, longest = random.Random(SEED), 0.0
    for round in range(KILLS + 1):
        session.take_update()
        begin = next(when for when, file in reversed(session.publisher.asked(session.name)) if file.endswith("minisig"))
        if round == 0:
            wait_for("newer version", lambda: session.has_become(shop.whole, number))
            longest = time.monotonic() - begin
        else:
            time.sleep(max(0, begin + dice.random() * longest - time.monotonic()))
        for victim in [number, *(session.processes() if round % 2 else [])]:
            with contextlib.suppress(ProcessLookupError):
                os.kill(victim, signal.SIGKILL)
        session.process.wait()
        session.rest()
        assert digest(session.root) in session.wholes, f"a broken program: {list(session.root.rglob('*'))}"
        session.wholes[digest(session.root)] += 1
        number = settle(session)
        if digest(session.root) != session.whole:
            session.quit(number)
            shutil.rmtree(session.root)
            shutil.copytree(shop.template, session.root)
            session.follow(f"{session.publisher.base}/{session.name}/feed.json")
            number = session.launch()
    session.quit(number)
    former, newer = session.wholes.values()
    print(f"killed {KILLS + 1} times within {longest:.2f} s: {former} times the former version stood there, "
          f"{newer} times the newer one", flush=True)


with published("killed") as (shop, _, (session,)):
    print(f"seed {SEED}", flush=True)
    is_killed(session, shop)
