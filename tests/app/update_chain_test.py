#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Updates the whole program from a server of this machine, from the feed to the relaunch, on the display of this test:
update_chain_test.py PROGRAM HELPER KEYS.

Nothing that can be published but the newer version itself changes a byte of the program that stands there, or leaves
anything behind.
"""
import fcntl
import json
import os
import re
import shutil
import signal
import subprocess
import time
from pathlib import Path

import assistive
from installed import NEW, OLD, digest
from program import steady, wait_for
from publisher import IDENTIFIER, SEPARATE, Answer, Drip, Publisher, Release, Silence, sign
from updating import PRESENT, published

PATIENCE = 40  # seconds, of which it waits 20 for a server that says nothing
UNASKED = 30  # seconds after a start until a newer version is looked for
ENDING = 5  # seconds, of which it takes two at most
QUIET = {"unasked-off": {"checkForUpdates": False}, "unasked-told": {"installUpdates": False},
         "unasked-rejected": {"rejectedUpdate": NEW}, "unasked-watched": {}}
UP_TO_DATE = f"Up to date · checked just now (this is {OLD})"
DISABLED = f"This copy of Ambrelle doesn't update itself (this is {OLD})"
OFFLINE = "Couldn't check for updates. Are you online?"
NO_ANSWER = "The update server didn't answer."
NOT_SECURE = "The update isn't served securely."
NO_DOWNLOAD = "The download failed."
WRONG_SUM = "The download didn't match its checksum, so it wasn't installed."
OTHER = "The download isn't the expected version of Ambrelle."
REFUSED = "The update couldn't be unpacked or verified."
NOT_INSTALLED = "The update couldn't be installed."


def feeds(session, shop, plain):
    """What the feed may say, and the line that comes of it. Nothing else is asked for."""
    newer, base = shop.newer, f"{session.publisher.base}/{session.name}/"
    archive = base + "Ambrelle.zip"

    def says(**changes):
        return newer.feed(archive, **changes)
    lines = {
        NO_ANSWER: [Answer(404), Answer(500, says()), Answer(204), Answer(206, says()), b"", b"{", b"[]", b"null",
                    b"[" * 10000, says(version=1), says(url=None), says(sha256=[]), says(version="1.1\n"),
                    says(version="1" * 65), b'{"version":"1.1"}', b" " * 70000 + says()],
        OFFLINE: [Answer(302, headers={"Location": f"{plain.base}/feed.json"}), Answer(200, says(), sent=20),
                  Answer(302, headers={"Location": base + "feed.json"})],
        UP_TO_DATE: [says(version=version) for version in (OLD, "1.0.0", "0.9", "v9", "1.-1", "1. 1", "", "٢.٠",
                                                           "1." + "9" * 30)],
        NOT_SECURE: [says(url=url) for url in (f"{plain.base}/Ambrelle.zip", archive.replace("https", "ftp"),
                                               f"file://{session.program}", "https:///Ambrelle.zip", "Ambrelle.zip")],
    }
    for line, answers in lines.items():
        for number, answer in enumerate(answers):
            session.publish(newer, **{"feed.json": answer})
            before = time.monotonic()
            told = session.rehearse()
            wanted = line if line == UP_TO_DATE else f"Failed: {line}"
            assert told == wanted, f"{line} {number}: {told}"
            assert set(session.asked(before)) == {"feed.json"} and session.is_untouched(), f"{line} {number}"
    assert not plain.requests, f"in plain text: {plain.requests}"


def servers(session, plain, stranger):
    """Whom the program does not ask, or not believe."""
    before = time.monotonic()
    for feed, line in ((f"{plain.base}/feed.json", DISABLED), ("", DISABLED), ("ftp://127.0.0.1/feed.json", DISABLED),
                       (f"{stranger.base}/feed.json", f"Failed: {OFFLINE}"), ("https://127.0.0.1:1/", f"Failed: {OFFLINE}")):
        session.follow(feed)
        told = session.rehearse()
        assert told == line and session.is_untouched(), f"{feed}: {told}"
    assert not plain.requests and not stranger.requests and not session.asked(before)
    session.follow(f"{session.publisher.base}/{session.name}/feed.json")


def attacks(shop, plain):
    """What may be published, and the sentence that comes of it."""
    newer, archive, signature = shop.newer, shop.archive, shop.signature
    other = archive[:5000] + bytes([archive[5000] ^ 1]) + archive[5001:]
    lines = signature.split(b"\n")
    damaged = b"\n".join([lines[0], lines[1][:40] + (b"A" if lines[1][40:41] != b"A" else b"B") + lines[1][41:], *lines[2:]])
    away = {"Location": f"{plain.base}/Ambrelle.zip"}

    def serves(wanted, thing=newer, **answers):
        return wanted, thing, {name.replace("_", "."): answer for name, answer in answers.items()}

    def of(file, answer):
        return {("Ambrelle_zip" + file): answer}
    return {
        "no archive": serves(NO_DOWNLOAD, **of("", Answer(404))),
        "part of an archive": serves(NO_DOWNLOAD, **of("", Answer(206, archive))),
        "end of an archive missing": serves(NO_DOWNLOAD, **of("", Answer(200, archive, sent=70000))),
        "archive elsewhere": serves(NO_DOWNLOAD, **of("", Answer(302, headers=away))),
        "signature elsewhere": serves(NO_DOWNLOAD, **of("_minisig", Answer(302, headers=away))),
        "no signature": serves(NO_DOWNLOAD, **of("_minisig", Answer(404))),
        "long signature": serves(NO_DOWNLOAD, **of("_minisig", signature * 20)),
        "other archive": serves(WRONG_SUM, **of("", other)),
        "other archive and sum": serves(REFUSED, Release(other, signature, NEW)),
        "damaged signature": serves(REFUSED, **of("_minisig", damaged)),
        "empty signature": serves(REFUSED, **of("_minisig", b"")),
        "stranger's signature": serves(REFUSED, **of("_minisig", shop.by_stranger)),
        "signature of the older kind": serves(REFUSED, **of("_minisig", shop.signed(PRESENT, f"{IDENTIFIER} {NEW}", "-l"))),
        "carriage returns": serves(REFUSED, **of("_minisig", signature.replace(b"\n", b"\r\n"))),
        "junk behind": serves(REFUSED, **of("_minisig", signature + b"junk\n")),
        "changed comment": serves(REFUSED, **of("_minisig", signature.replace(NEW.encode(), b"1.9"))),
        "other program": serves(OTHER, **of("_minisig", shop.signed(PRESENT, f"org.example.Other {NEW}"))),
        "older release": serves(OTHER, **of("_minisig", shop.signed(PRESENT, f"{IDENTIFIER} 0.9"))),
        "other version inside": serves(OTHER, shop.mislabelled),
        "other program inside": serves(OTHER, shop.foreign),
        "no program inside": serves(REFUSED, shop.nameless),
        "program that does not start": serves(REFUSED, shop.crippled),
        "more than the helper has memory for": serves(REFUSED, shop.listing),
        "no archive at all": serves(REFUSED, Release(b"hello", sign(b"hello", PRESENT, f"{IDENTIFIER} {NEW}"), NEW)),
    }


def is_attacked(session, shop, plain):
    """First by the command that only looks, then in the running program, at the user's own wish."""
    session.launch()
    held = steady("windows", session.windows)  # decorations may still change theirs
    for name, (sentence, thing, changes) in attacks(shop, plain).items():
        session.publish(thing, **changes)
        assert (told := session.rehearse()) == f"Failed: {sentence}", f"{name}: {told}"
        assert session.is_untouched(), f"{name}: {list(session.temporary.rglob('*'))}"
        session.find_update()
        session.act("update")
        assistive.shown(sentence)
        assert session.is_untouched(), f"{name}: {list(session.place.rglob('*'))[:20]}"
        assert session.process.poll() is None and set(held) <= set(steady("windows", session.windows)), name
    assert not plain.requests, f"in plain text: {plain.requests}"
    seen = shop.trace.read_text()
    assert "HOME=" not in seen and "DISPLAY=" not in seen and "socket:" not in seen, f"it was told too much:\n{seen}"


def has_no_room(session, shop):
    """Where the disk is full before the archive is whole, or before it is unpacked."""
    session.publish(shop.newer)
    size = len(shop.archive)
    for room, line in ((size // 2, NO_DOWNLOAD), (size + size // 2, REFUSED)):
        run = subprocess.run([*SEPARATE, "--size", str(room), "--tmpfs", session.temporary, "sh", "-c",
                              '"$0" --check-update; ls -A "$TMPDIR"', session.program],
                             env=session.env, check=True, capture_output=True, text=True)
        assert run.stdout.splitlines() == [f"Failed: {line}"], f"with room for {room} bytes of {size}: {run}"
        assert session.is_untouched()


def begins_to_wait(session, shop, file):
    """For a server that says nothing when that file is asked for; gives the process."""
    session.publish(shop.newer, **{file: Silence(200)})
    return subprocess.Popen(["timeout", str(PATIENCE), session.program, "--check-update"], env=session.env, text=True,
                            stdout=subprocess.PIPE)


def does_not_wait_long(waiting):
    for session, process, line in waiting:
        told, _ = process.communicate()
        assert (process.returncode, told) == (0, f"Failed: {line}\n"), f"{line}: {process.returncode} {told}"
        assert session.is_untouched(), line


def has_no_place(session, shop):
    """Where something else is, or nothing may be. Nothing is fetched there."""
    session.publish(shop.newer)
    elsewhere = session.home / "elsewhere"
    elsewhere.mkdir(0o700)
    for make in (lambda: session.work.symlink_to(elsewhere), lambda: session.work.touch(),
                 lambda: (session.work.mkdir(), session.work.chmod(0o770))):
        make()
        session.find_update()
        before = time.monotonic()
        session.act("update")
        assistive.shown(NOT_INSTALLED)
        assert session.asked(before) == [] and not any(elsewhere.iterdir())
        session.work.unlink() if session.work.is_symlink() or session.work.is_file() else session.work.rmdir()
        assert session.is_untouched()
    session.work.mkdir(0o700)
    held = os.open(session.work, os.O_RDONLY)
    fcntl.flock(held, fcntl.LOCK_EX)  # as another updater does
    session.find_update()
    session.act("update")
    assistive.shown(NOT_INSTALLED)
    os.close(held)
    session.work.rmdir()
    assert session.is_untouched()
    session.quit(session.running())
    session.run([*SEPARATE, "--ro-bind", session.place, session.place, session.program])
    number = wait_for("running program", session.running)
    session.find_update()
    before = time.monotonic()
    session.act("update")
    assistive.shown(f"Ambrelle can't write to {session.place}. Download the new version from the website instead.")
    assert session.asked(before) == [] and session.is_untouched()
    session.quit(number)
    session.process.wait()


def ends_meanwhile(session, shop):
    """In the middle of a download, when it is asked to."""
    def ends(number, process):
        wait_for("download", lambda: "Ambrelle.zip" in session.asked(before))
        assert not session.is_untouched(), "nothing is there that could be left"
        os.kill(process.pid, number)
        begin = time.monotonic()
        status = process.wait()
        assert time.monotonic() - begin < ENDING, "it waits for the server"
        assert session.is_untouched(), list(session.home.rglob("*update*"))
        return status
    session.publish(shop.newer, **{"Ambrelle.zip": Drip(200, shop.archive)})
    for number in (signal.SIGINT, signal.SIGTERM):
        before = time.monotonic()
        process = subprocess.Popen([session.program, "--check-update"], env=session.env, stdout=subprocess.PIPE)
        assert ends(number, process) != 0 and process.stdout.read() == b"", "it told of something"
    session.launch()
    before = time.monotonic()
    session.take_update()
    assert ends(signal.SIGTERM, session.process) == 0


def rehearses(session, shop):
    """The whole of it, but for the replacement."""
    sum_in_capitals = {"sha256": re.search(rb'"sha256": "(\w+)"', shop.newer.feed("")).group(1).decode().upper()}
    session.publish(shop.newer, feed=sum_in_capitals)
    told = session.rehearse()
    match = re.fullmatch(rf"Version {re.escape(NEW)} downloaded, verified and unpacked at "
                         r"(.*/Ambrelle-update-[0-9A-F]{8}(?:-[0-9A-F]{4}){3}-[0-9A-F]{12})", told)
    assert match, told
    folder = Path(match[1])
    assert list(session.temporary.iterdir()) == [folder] and [path.name for path in folder.iterdir()] == ["Ambrelle"]
    assert digest(folder / "Ambrelle") == shop.whole
    shutil.rmtree(folder)
    assert session.is_untouched()


def state(session):
    """What an update changes nothing of."""
    environment = Path(f"/proc/{session.process.pid}/environ").read_bytes()
    return session.stored(), sorted(map(tuple, session.panels())), sorted(environment.strip(b"\0").split(b"\0"))


def is_replaced(session, shop, before, number):
    """By the newer version, in the same process."""
    wait_for("newer version", lambda: session.has_become(shop.whole, number))
    assert session.version() == NEW
    wait_for("widgets in their places", lambda: state(session) == before)
    wait_for("removal of the former version", session.is_tidy)
    wait_for("end of the guard", lambda: session.processes() == [number])
    assert session.process.poll() is None and state(session) == before and digest(session.root) == shop.whole
    assert not any(session.temporary.iterdir())
    session.quit(number)
    session.check(shop.whole)


def updates_itself(session, shop, before):
    """Unasked, since nobody uses it; the release is signed by the key that is kept for later."""
    wait_for("download", lambda: len(session.asked()) > 1, UNASKED + 60)
    is_replaced(session, shop, before, session.process.pid)
    assert session.asked() == ["feed.json", "Ambrelle.zip.minisig", "Ambrelle.zip"]


def stay_as_they_are(sessions):
    """Where the user wants it so, or that version did not get through here, or somebody looks at the window."""
    for session in sessions:
        wanted = [] if session.name == "unasked-off" else ["feed.json"]
        assert session.asked() == wanted, f"{session.name}: {session.asked()}"
        assert session.process.poll() is None and session.is_untouched(), session.name
        session.quit(session.running())


def updates_at_a_wish(session, shop):
    number = session.launch()
    wait_for("widgets", lambda: session.windows())
    before = state(session)
    session.publish(shop.newer)
    session.find_update()
    assert assistive.shown(f"Update to Ambrelle {NEW}", assistive.BUTTON)
    session.act("update")
    is_replaced(session, shop, before, number)


def main():
    with published("asked", "unasked", "silent", "idle", *QUIET) as (shop, stranger, sessions):
        asked, unasked, silent, idle, *quiet = sessions
        plain = Publisher()
        waiting = [(silent, begins_to_wait(silent, shop, "feed.json"), OFFLINE),
                   (idle, begins_to_wait(idle, shop, "Ambrelle.zip"), NO_DOWNLOAD)]
        for session in (unasked, *quiet):
            session.store.write_text(json.dumps(session.stored() | QUIET.get(session.name, {})))
            session.publish(Release(shop.archive, shop.by_spare, NEW))
            session.launch()
        quiet[-1].act("open-window")
        assistive.switch_on()
        wait_for("widgets", lambda: unasked.windows())
        before = state(unasked)
        for play in ((feeds, asked, shop, plain), (servers, asked, plain, stranger), (rehearses, asked, shop), (ends_meanwhile, asked, shop),
                     (has_no_room, asked, shop), (does_not_wait_long, waiting),
                     (is_attacked, asked, shop, plain), (has_no_place, asked, shop), (updates_at_a_wish, asked, shop),
                     (updates_itself, unasked, shop, before), (stay_as_they_are, quiet)):
            begin = time.monotonic()
            play[0](*play[1:])
            print(f"{play[0].__name__}: {time.monotonic() - begin:.1f} s", flush=True)


main()
