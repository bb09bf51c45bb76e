#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Kills an update at every step: update_kills_test.py PROGRAM HELPER REPLACEMENT [ROUNDS [STRIDE [SEED]]].

At each call of the system that changes anything, of every process that takes part: the former version, the helper
that unpacks, the newer version, its guard and the start after it, with a newer version that works and with one that crashes. With a STRIDE
of 1 every call is tried, but those that are made hundreds of times; else one in as many. And ROUNDS times at random moments, every other time all of them at once. Afterwards
one of the two versions stands in the folder, whole, and the next starts leave nothing behind.
"""
import contextlib
import os
import random
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from installed import OLD, Archive, Installed, digest, lay_out
from program import PATIENCE, wait_for

ROUNDS = int(sys.argv[4]) if len(sys.argv) > 4 else 8
STRIDE = int(sys.argv[5]) if len(sys.argv) > 5 else 5
SEED = int(sys.argv[6]) if len(sys.argv) > 6 else random.randrange(10**6)
RARE = ["mkdir", "rename", "renameat2", "fsync", "syncfs", "unlink", "rmdir", "execve", "setsid", "socketpair"]
FREQUENT = ["openat", "write"]
dice = random.Random(SEED)


def live(session, command, call, count, is_crashing=False):
    """One life of a program under the eyes of a tracer that kills whoever makes that call for that time. Whether it
    killed."""
    log = session.home / "trace"
    tracer = session.run(["strace", "-f", "-q", "-o", log, "-e", f"trace={call}", "-e",
                          f"inject={call}:signal=KILL:when={count}", "env", *command])
    told = set()
    end = time.monotonic() + PATIENCE
    while tracer.poll() is None:
        assert time.monotonic() < end, f"{call} {count}: {session.processes()} live on"
        number = session.running()
        if number and number not in told:
            wanted = signal.SIGSEGV if is_crashing and session.version() != OLD else signal.SIGTERM
            told.add(number)
            os.kill(number, wanted)
        time.sleep(0.02)
    return "killed by SIGKILL" in log.read_text()


def at_every_call(template, archive):
    whole, runs, kills = digest(template), 0, 0
    for call in RARE + FREQUENT:
        for is_crashing in (False, True):
            stride = STRIDE * (40 if call in FREQUENT else 1)
            count = 1 + dice.randrange(stride)
            while True:
                session = Installed(template)
                session.env["QT_QPA_PLATFORM"] = "offscreen"
                try:
                    killed = live(session, session.command(archive), call, count, is_crashing)
                    session.check(whole, archive.whole)
                except BaseException:
                    print(call, count, is_crashing, (session.home / "output").read_text(), file=sys.stderr)
                    raise
                finally:
                    session.close()
                runs, kills = runs + 1, kills + killed
                if not killed:
                    break
                count += 1 + dice.randrange(2 * stride - 1)
            print(f"{call}{', with a crash' if is_crashing else ''}: up to {count}", flush=True)
    assert kills > 10 // STRIDE, "the tracer does not kill"
    print(f"killed at {kills} calls in {runs} lives", flush=True)


def at_every_call_of_the_guard(template, archive):
    """Which makes the same calls as the others, but later: it has to have a tracer of its own."""
    whole, kills = digest(template), 0
    for call in ("openat", "fsync", "rename", "renameat2", "write", "execve"):
        count = 1 + dice.randrange(STRIDE)
        while True:
            session = Installed(template)
            session.env["QT_QPA_PLATFORM"] = "offscreen"
            log = session.home / "trace"
            try:
                process = session.run(session.command(archive))
                number = wait_for("newer version", session.running)
                guard, = set(session.processes()) - {number}
                tracer = subprocess.Popen(["strace", "-f", "-o", log, "-p", str(guard), "-e", f"trace={call}", "-e",
                                           f"inject={call}:signal=KILL:when={count}"], stderr=subprocess.PIPE, text=True)
                assert "attached" in tracer.stderr.readline()
                os.kill(number, signal.SIGSEGV)
                process.wait()
                session.rest()
                tracer.communicate()
                session.check(whole, archive.whole)
                killed = "killed by SIGKILL" in log.read_text()
                kills += killed
            except BaseException:
                print("guard", call, count, (session.home / "output").read_text(), file=sys.stderr)
                raise
            finally:
                session.close()
            if not killed:
                break
            stride = STRIDE * (5 if call in FREQUENT else 1)
            count += 1 + dice.randrange(2 * stride - 1)
    assert kills > 10 // STRIDE, "the tracer does not kill"
    print(f"killed the guard at {kills} calls", flush=True)


def at_every_call_of_the_next_start(template, archive):
    """Which removes the former version, and ends before that is done as well as after it."""
    kills = 0
    for call in ("unlink", "rmdir", "unlinkat", "fsync"):
        count = 1 + dice.randrange(STRIDE)
        while True:
            session = Installed(template)
            session.env["QT_QPA_PLATFORM"] = "offscreen"
            try:
                session.run(session.command(archive))
                session.quit(wait_for("newer version", session.running))
                assert not session.is_tidy()
                killed = live(session, [session.program], call, count)
                session.check(archive.whole)
                kills += killed
            except BaseException:
                print("next start", call, count, (session.home / "output").read_text(), file=sys.stderr)
                raise
            finally:
                session.close()
            if not killed:
                break
            count += 1 + dice.randrange(2 * STRIDE - 1)
    print(f"killed the next start at {kills} calls", flush=True)


def at_random_moments(template, archive):
    whole = digest(template)
    found = {whole: 0, archive.whole: 0}
    longest = 1.0  # seconds of an update, up to the newer version that is ready; measured below
    for number in range(ROUNDS + 1):
        session = Installed(template)
        session.env["QT_QPA_PLATFORM"] = "offscreen"
        try:
            start = time.monotonic()
            process = session.run(session.command(archive))
            if number == 0:
                wait_for("newer version", session.running)
                longest = time.monotonic() - start
            else:
                time.sleep(dice.random() * longest)
            victims = [process.pid] if number % 2 else [process.pid, *session.processes()]
            for victim in victims:
                with contextlib.suppress(ProcessLookupError):
                    os.kill(victim, signal.SIGKILL)
            process.wait()
            session.rest()
            session.check(whole, archive.whole)
            found[digest(session.root)] += 1
        except BaseException:
            print(f"round {number}", (session.home / "output").read_text(), file=sys.stderr)
            raise
        finally:
            session.close()
    print(f"killed {ROUNDS + 1} times within {longest:.1f} s: {found[whole]} times the former version stood there, "
          f"{found[archive.whole]} times the newer one", flush=True)


def main():
    if not shutil.which("strace"):
        print("skipped: strace is not installed")
        sys.exit(77)
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    print(f"seed {SEED}", flush=True)
    shop = Path(tempfile.mkdtemp(prefix="ambrelle-test-"))
    template = shop / "old"
    lay_out(template, OLD)
    archive = Archive(shop)
    at_random_moments(template, archive)
    at_every_call_of_the_guard(template, archive)
    at_every_call_of_the_next_start(template, archive)
    at_every_call(template, archive)
    shutil.rmtree(shop)


main()
