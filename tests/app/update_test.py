#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Replaces the program in its folder on the display of this test, and lets everything go wrong that can:
update_test.py PROGRAM HELPER REPLACEMENT.

REPLACEMENT plays the former version up to the relaunch. What the next starts do is the program itself.
"""
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from installed import NEW, OLD, WIDGET, Archive, Installed, digest, lay_out
from program import wait_for

REPLACEMENT = sys.argv[3]
REFUSED = 8  # status of REPLACEMENT where the exchange failed
QUIET = 1.5  # seconds in which nothing happens


def rejected(session):
    return session.stored().get("rejectedUpdate")


def update(session, archive, cwd=None):
    """The number of the process, once it has become the newer version and shows its widget."""
    process = session.run(session.command(archive), cwd)
    wait_for("newer version", lambda: process.poll() is not None or session.running())
    assert session.running() == process.pid, f"ended with {process.poll()}: {(session.home / 'output').read_text()}"
    return process.pid


def replaces(session, archive):
    session.env.update(DESKTOP_STARTUP_ID="1", XDG_ACTIVATION_TOKEN="2", LANG="C.UTF-8")
    number = update(session, archive, cwd=session.root / "share")
    assert session.version() == NEW
    assert digest(session.root) == archive.whole
    wait_for("widget", lambda: session.windows())
    about = Path(f"/proc/{number}")
    assert (about / "cmdline").read_bytes() == f"{session.program}\0".encode()
    assert os.readlink(about / "cwd") == str(session.home), "it works in a folder that goes"
    environment = (about / "environ").read_bytes()
    assert b"LANG=" in environment and b"DESKTOP_STARTUP_ID" not in environment and b"ACTIVATION" not in environment
    assert len(session.processes()) == 2, "nobody guards the first start"
    assert (session.work / "journal.json").exists()
    wait_for("confirmation", session.is_tidy)
    wait_for("end of the guard", lambda: session.processes() == [number])
    # From now on it is on its own.
    os.kill(number, signal.SIGSEGV)
    session.gone(number)
    time.sleep(QUIET)
    assert not session.processes() and session.version() == NEW
    session.check(archive.whole)


def crashes(session, archive, whole):
    number = update(session, archive)
    os.kill(number, signal.SIGSEGV)
    session.gone(number)
    former = wait_for("former version", session.running)
    assert former != number and session.version() == OLD
    wait_for("removal of the newer version", session.is_tidy)
    assert rejected(session) == NEW
    wait_for("widget", session.processes)
    session.quit(former)
    session.check(whole)
    assert rejected(session) == NEW
    # The user's own wish stands above that, and when it works it is forgotten.
    number = update(session, archive)
    wait_for("confirmation", session.is_tidy)
    wait_for("pardon", lambda: rejected(session) is None)
    session.quit(number)
    session.check(archive.whole)


def is_ended_in_order(session, archive):
    number = update(session, archive)
    session.quit(number)
    time.sleep(QUIET)
    assert not session.processes() and not (session.work / "journal.json").exists()
    session.check(archive.whole)


def cannot_show_widgets(session, archive, whole):
    """Neither a text console nor a display that is gone makes the newer version a good one, nor a bad one at once."""
    session.env["DISPLAY"], display = ":99999", session.env["DISPLAY"]
    process = session.run(session.command(archive))
    assert process.wait() == 1, "it shows widgets somewhere"

    def attempts():
        return json.loads((session.work / "journal.json").read_text())["attempts"]
    assert attempts() == 1
    del session.env["DISPLAY"]
    for _ in range(3):
        assert session.run([session.program]).wait() == 1
    assert attempts() == 1, "no version has a display there"
    session.env["DISPLAY"] = ":99999"
    assert session.run([session.program]).wait() == 1
    time.sleep(QUIET)
    assert attempts() == 2 and session.version() == NEW and not session.processes()
    session.env["DISPLAY"] = display
    number = session.launch()
    assert session.version() == OLD
    wait_for("removal of the newer version", session.is_tidy)
    assert rejected(session) == NEW
    session.quit(number)
    session.check(whole)


def ends_though_the_disk_is_slow(session, archive):
    """Whoever asks it to end within its first seconds does not wait for the confirmation."""
    update(session, archive)
    for number in sorted(session.processes(), reverse=True):
        os.kill(number, signal.SIGKILL)
    session.process.wait()
    session.env.update(LD_PRELOAD=str(Path(REPLACEMENT).parent / "libhanging_folder.so"), AMBRELLE_FLUSH_TIME="6000")
    number = session.launch()
    wait_for("widget", lambda: session.windows())
    for name in ("LD_PRELOAD", "AMBRELLE_FLUSH_TIME"):
        del session.env[name]
    assert (session.work / "journal.json").exists(), "it is confirmed already"
    start = time.monotonic()
    with subprocess.Popen([session.program, "--action", "quit"], env=session.env, stderr=subprocess.DEVNULL):
        session.gone(number)
        took = time.monotonic() - start
    assert took < 5, f"it waits for the disk: {took} s"
    session.check(archive.whole)


def loses_its_power(session, archive, whole):
    """With everything else the guard ends too. The third such start in a row is that of the former version."""
    update(session, archive)
    for attempts in (1, 2):
        assert json.loads((session.work / "journal.json").read_text())["attempts"] == attempts
        for number in sorted(session.processes(), reverse=True):  # the guard is younger
            os.kill(number, signal.SIGKILL)
        session.process.wait()
        wait_for("end", lambda: not session.processes())
        assert session.version() == NEW
        if attempts == 1:
            session.launch()
    number = session.launch("-session", "12-34")
    assert number == session.process.pid and session.version() == OLD
    assert Path(f"/proc/{number}/cmdline").read_bytes().endswith(b"\0-session\00012-34\0"), "it forgot what it was asked"
    wait_for("removal of the newer version", session.is_tidy)
    assert rejected(session) == NEW
    session.quit(number)
    session.check(whole)


def is_refused(session, archive, whole):
    """Where the disk or its file system does not take it."""
    for fault in ("renameat2:error=EXDEV", "renameat2:error=EINVAL", "renameat2:error=EPERM", "fsync:error=ENOSPC:when=1", "fsync:error=EIO",
                  "fsync:error=EIO:when=3", "fsync:error=EIO:when=4"):  # two of them are for the journal
        process = session.run(["strace", "-f", "-qq", "-o", "/dev/null", "-e", f"inject={fault}", *session.command(archive)])
        status = process.wait()
        assert status == REFUSED, f"{fault}: {status}"
        assert digest(session.root) == whole and session.is_tidy(), fault
    session.check(whole)


def does_not_start(session, archive, whole):
    """The system refuses the relaunch itself; the first call that is counted starts REPLACEMENT."""
    process = session.run(["strace", "-f", "-qq", "-o", "/dev/null", "-e", "inject=execve:error=ENOEXEC:when=2",
                           "env", *session.command(archive)])
    number = wait_for("former version", session.running)
    assert session.version() == OLD and process.poll() is None
    wait_for("removal of the newer version", session.is_tidy)
    assert rejected(session) == NEW
    os.kill(number, signal.SIGTERM)
    process.wait()
    session.check(whole)


def keeps_what_the_user_added(session, archive):
    note = session.root / "share/ambrelle/my note.txt"
    note.write_text("mine")
    number = update(session, archive)
    session.quit(number)
    session.quit(session.launch())
    kept = session.place / f"Ambrelle before {NEW}"
    assert (kept / "share/ambrelle/my note.txt").read_text() == "mine"
    shutil.rmtree(kept)
    session.check(archive.whole)


def is_left_alone_by_batch_modes(session, archive):
    update(session, archive)
    before = sorted(session.work.rglob("*")), (session.work / "journal.json").read_bytes()
    assert session.version() == NEW
    for arguments in (["--help"], ["--render-wallpapers"], []):  # the last two are second starts
        subprocess.run([session.program, *arguments], env=session.env, check=True, capture_output=True)
    assert (sorted(session.work.rglob("*")), (session.work / "journal.json").read_bytes()) == before
    session.quit(session.running())


def main():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    shop = Path(tempfile.mkdtemp(prefix="ambrelle-test-"))
    template = shop / "old"
    lay_out(template, OLD)
    archive, whole = Archive(shop), digest(template)
    for play in (replaces, crashes, is_ended_in_order, cannot_show_widgets,
                 ends_though_the_disk_is_slow, loses_its_power, is_refused, does_not_start,
                 keeps_what_the_user_added, is_left_alone_by_batch_modes):
        session = Installed(template)
        try:
            play(session, archive, *[whole][:play.__code__.co_argcount - 2])
        except BaseException:
            print(play.__name__, (session.home / "output").read_text(), file=sys.stderr)
            raise
        finally:
            session.close()
    shutil.rmtree(shop)
    print("replaced, brought back and confirmed")


main()
