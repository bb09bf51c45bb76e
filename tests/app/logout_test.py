#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole program under a session manager: logout_test.py PROGRAM.

It starts as a session manager starts it again, asks never to be, and ends at once with the session, whatever it shows.
"""
import subprocess
import time

from program import PROGRAM, Session, wait_for
from session_manager import RESTART_NEVER, SessionManager


def seen(manager, condition):
    manager.run()
    return condition()


def log_in(manager, *arguments):
    """A new session with the program in it, on the screen and with its state known to the manager."""
    manager.begin_session()
    saves = manager.saves
    session = Session({"hasLaunchedBefore": True, "widgets.v2": [{"kind": "clock", "skin": "glass", "origin": [200, 300]}]})
    session.env["SESSION_MANAGER"] = manager.address
    session.start(*arguments)
    wait_for("client that saved its state", lambda: seen(manager, lambda: manager.saves > saves))
    wait_for("widget", lambda: seen(manager, session.panels))
    return session


def log_out(manager, session):
    before = session.stored()
    saves = manager.saves
    manager.end_session()
    wait_for("answer to the end of the session", lambda: seen(manager, lambda: manager.saves > saves))
    assert not manager.asked, "it wants to talk to the user first"
    assert manager.properties["RestartStyleHint"][0][0] == RESTART_NEVER, manager.properties
    began = time.monotonic()
    manager.let_go()
    session.ended()
    took = time.monotonic() - began
    after = session.stored()
    after.pop("mainWindowSize", None)  # is noted when it goes
    assert after == before, "something got lost"
    session.end()
    print(f"ended {took * 1000:.0f} ms after it was told to")


manager = SessionManager()
session = log_in(manager)
subprocess.run([PROGRAM], env=session.env, check=True)
wait_for("main window", lambda: seen(manager, lambda: len(session.panels()) == 2))
log_out(manager, session)

session = log_in(manager, "-session", "1070a1b2c3_1790000000_1")
assert "1070a1b2c3" in "".join(manager.clients.values()), manager.clients
subprocess.run([PROGRAM, "-session", "2070a1b2c3_1790000000_1"], env=session.env, check=True)
time.sleep(1)
assert len(session.panels()) == 1, "the second start of the same session opened a window"
log_out(manager, session)
