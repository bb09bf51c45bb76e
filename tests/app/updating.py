# SPDX-License-Identifier: MIT
"""The whole program with a feed of its own, and what there is to publish in that: the arguments are PROGRAM HELPER KEYS.
PROGRAM believes the keys in the folder KEYS."""
import contextlib
import os
import resource
import shutil
import struct
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import assistive
from installed import NEW, OLD, Installed, describe, digest, lay_out
from program import wait_for
from publisher import IDENTIFIER, Publisher, Release, authority, release, sign

PRESENT, SPARE = (Path(sys.argv[3]) / f"{name}.key" for name in ("present", "spare"))
AVAILABLE = f"Version {NEW} is available"


class Updating(Installed):
    """The former version, whose feed is a folder of that name of the publisher's."""

    def __init__(self, template, publisher, name):
        super().__init__(template)
        self.publisher, self.name = publisher, name
        self.temporary = self.home / "tmp"
        self.temporary.mkdir()
        self.env["TMPDIR"] = str(self.temporary)
        self.follow(f"{publisher.base}/{name}/feed.json")

    def follow(self, feed):
        describe(self.root, AMUpdateFeedURL=feed)
        self.whole = digest(self.root)

    def publish(self, *about, **changes):
        self.publisher.publish(self.name, *about, **changes)

    def asked(self, since=0):
        return [file for when, file in self.publisher.asked(self.name) if when >= since]

    def rehearse(self):
        """What the command prints that looks for a newer version."""
        run = subprocess.run([self.program, "--check-update"], env=self.env, check=True, capture_output=True, text=True)
        lines = run.stdout.splitlines()
        assert len(lines) == 1, run
        return lines[0]

    def act(self, action):
        subprocess.run([self.program, "--action", action], env=self.env, check=True)

    def find_update(self, sentence=AVAILABLE):
        self.act("check-for-updates")
        assistive.shown(sentence)

    def take_update(self):
        """Without looking at the window, so that it costs no time."""
        self.act("check-for-updates")
        begin = time.monotonic()

        def begun():
            self.act("update")  # does nothing before a newer version is known
            return any(file.endswith("minisig") for file in self.asked(begin))
        wait_for("download", begun)

    def has_become(self, whole, number):
        """Whether the process runs the program of that digest, which stands in the folder, and is ready."""
        link = Path(f"/proc/{number}/exe")
        return os.path.lexists(link) and os.readlink(link) == str(self.program) and digest(self.root) == whole \
            and self.running() == number

    def is_untouched(self):
        return digest(self.root) == self.whole and self.is_tidy() and not any(self.temporary.iterdir())


def long_list(times):
    """An archive of one empty file that its list names so many times."""
    name, about = b"Ambrelle/file", struct.pack("<HHIIII", 0, 0, 0x5c210000, 0, 0, 0)
    item = struct.pack("<IH", 0x04034b50, 20) + about + struct.pack("<HH", len(name), 0) + name
    line = struct.pack("<IBBH", 0x02014b50, 20, 3, 20) + about + struct.pack("<HHHHHII", len(name), 0, 0, 0, 0, 0o100644 << 16, 0)
    count = times & 0xffff
    end = struct.pack("<IHHHHIIH", 0x06054b50, 0, 0, count, count, times * (len(line) + len(name)), len(item), 0)
    return item + (line + name) * times + end


class Shop:
    """What there is to publish."""

    def __init__(self, place):
        self.template, newer = place / "old", place / "Ambrelle"
        lay_out(self.template, OLD)
        lay_out(newer, NEW)
        self.whole = digest(newer)
        self.newer = release(newer, NEW, PRESENT)
        self.archive, self.signature = self.newer.archive, self.newer.signature
        stranger = place / "stranger.key"
        subprocess.run(["minisign", "-G", "-W", "-s", stranger, "-p", place / "pub"], check=True, capture_output=True)
        self.by_spare = self.signed(SPARE)
        self.by_stranger = self.signed(stranger)
        self.trace = place / "trace"
        self.crippled = self.changed(newer, f"#!/bin/sh\nenv >{self.trace}\nls -l /proc/self/fd >>{self.trace}\nexit 1\n")
        describe(newer, version="1.0.9")
        self.mislabelled = self.changed(newer)
        describe(newer, version=NEW, identifier="org.example.Other")
        self.foreign = self.changed(newer)
        (newer / "share/ambrelle/org.ambrelle.Ambrelle.json").unlink()
        self.nameless = self.changed(newer)
        listing = long_list(2_500_000)  # more than there is memory for
        self.listing = Release(listing, sign(listing, PRESENT, f"{IDENTIFIER} {NEW}"), NEW)

    def signed(self, key, comment=f"{IDENTIFIER} {NEW}", *more):
        return sign(self.archive, key, comment, *more)

    @staticmethod
    def changed(folder, program="#!/bin/sh\n"):
        (folder / "bin/ambrelle").write_text(program)
        return release(folder, NEW, PRESENT)


@contextlib.contextmanager
def published(*names):
    """What there is to publish, its publisher, and a session of each name."""
    place = authority()
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    folder = Path(tempfile.mkdtemp(prefix="ambrelle-test-"))
    shop, publisher = Shop(folder), Publisher(place / "server")
    sessions = [Updating(shop.template, publisher, name) for name in names]
    try:
        yield shop, Publisher(place / "stranger"), sessions
    except BaseException:
        for session in sessions:
            print(session.name, (session.home / "output").read_text(), file=sys.stderr)
        raise
    finally:
        for session in sessions:
            session.close()
        shutil.rmtree(folder)
