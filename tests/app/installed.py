# SPDX-License-Identifier: MIT
"""The program in a folder of its own, and archives of newer versions: the arguments are PROGRAM HELPER [REPLACEMENT]."""
import contextlib
import hashlib
import json
import os
import shutil
import signal
import socket
import subprocess
import sys
import zipfile
from pathlib import Path

from program import PROGRAM, Session, wait_for

HELPER = sys.argv[2]
OLD, NEW = "1.0", "1.1"
WIDGET = {"id": "0B5A5C1C-6E7F-4A52-9A2D-9C4A1F1E8D11", "kind": "clock", "origin": [300, 300], "scale": "medium",
          "skin": "glass"}


def describe(root, **values):
    """Changes what the folder's information file says."""
    file = root / "share/ambrelle/org.ambrelle.Ambrelle.json"
    file.write_text(json.dumps(json.loads(file.read_text()) | values))


def lay_out(root, version):
    """A relocatable folder, but for the libraries and fonts of this machine."""
    built = Path(HELPER).parent
    for folder in ("bin", "lib/ambrelle", "share/ambrelle"):
        (root / folder).mkdir(parents=True)
    subprocess.run(["strip", "-o", root / "bin/ambrelle", PROGRAM], check=True)
    shutil.copy(HELPER, root / "lib/ambrelle/ambrelle-update")
    shutil.copy(built / "share/ambrelle/org.ambrelle.Ambrelle.json", root / "share/ambrelle")
    describe(root, version=version)
    shutil.copytree(built / "share/ambrelle/wording", root / "share/ambrelle/wording")
    (root / "share/ambrelle/files.txt").touch()
    names = sorted(f"./{path.relative_to(root)}\n" for path in root.rglob("*") if path.is_file())
    (root / "share/ambrelle/files.txt").write_text("".join(names))


def digest(root):
    """Of all names and contents in the folder."""
    whole = hashlib.sha256()
    for path in sorted(root.rglob("*")):
        assert not path.is_symlink(), path
        whole.update(f"{path.relative_to(root)}{path.stat().st_mode & 0o111}".encode())
        whole.update(path.read_bytes() if path.is_file() else b"/")
    return whole.hexdigest()


class Archive:
    """Version NEW, signed by a key that nobody else has."""

    def __init__(self, place):
        root = place / "Ambrelle"
        lay_out(root, NEW)
        self.whole = digest(root)
        self.file = place / "newer.zip"
        with zipfile.ZipFile(self.file, "w", zipfile.ZIP_DEFLATED, compresslevel=1) as archive:
            for path in [root, *sorted(root.rglob("*"))]:
                archive.write(path, path.relative_to(place))
        secret, public = place / "key", place / "key.pub"
        subprocess.run(["minisign", "-G", "-W", "-s", secret, "-p", public], check=True, capture_output=True)
        subprocess.run(["minisign", "-S", "-s", secret, "-m", self.file, "-t", f"org.ambrelle.Ambrelle {NEW}"], check=True,
                       capture_output=True)
        self.signature = f"{self.file}.minisig"
        self.key = public.read_text().splitlines()[1]


class Installed(Session):
    """The program of version OLD in a folder of its own, with one widget."""

    def __init__(self, template):
        super().__init__({"hasLaunchedBefore": True, "widgets.v2": [WIDGET]})
        self.place = self.home / "apps"
        self.root = self.place / "Ambrelle"
        self.work = self.place / ".Ambrelle.update"
        self.program = self.root / "bin/ambrelle"
        self.place.mkdir()
        shutil.copytree(template, self.root)
        self.output = open(self.home / "output", "w")

    def command(self, archive):
        return [sys.argv[3], self.program, archive.file, OLD, NEW, archive.signature, archive.key]

    def run(self, command, cwd=None):
        self.process = subprocess.Popen(command, env=self.env, cwd=cwd, stdin=subprocess.DEVNULL, stdout=self.output,
                                        stderr=self.output)
        return self.process

    def launch(self, *arguments):
        """Starts what stands in the folder, and waits until it is ready."""
        self.run([self.program, *arguments])
        return wait_for("running program", self.running)

    def processes(self):
        """All that run a file of the folder, or of one that took its place."""
        found = []
        for process in Path("/proc").glob("[0-9]*"):
            try:
                if os.readlink(process / "exe").startswith(f"{self.place}/"):
                    found.append(int(process.name))
            except OSError:
                pass
        return found

    def running(self):
        """The number of the process that others hand their files to; nothing when there is none."""
        with socket.socket(socket.AF_UNIX) as caller:
            try:
                caller.connect(str(self.home / "ambrelle/socket"))
                return int.from_bytes(caller.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12)[:4], sys.byteorder)
            except OSError:
                return None

    def quit(self, number):
        """Asks the process, whoever its parent is, to end."""
        os.kill(number, signal.SIGTERM)
        self.gone(number)

    def gone(self, number):
        def has_ended():
            if self.process.pid == number:
                return self.process.poll() is not None
            return not Path(f"/proc/{number}").exists()
        wait_for(f"end of process {number}", has_ended)

    def rest(self):
        """Waits until nothing runs any more. Where the newer version was on probation the former one comes back by
        itself."""
        def has_ended():
            if former := self.running():
                with contextlib.suppress(ProcessLookupError):
                    os.kill(former, signal.SIGTERM)
            return not self.processes()
        wait_for("quiet", has_ended)

    def version(self):
        answer = subprocess.run([self.program, "--version"], env=self.env, capture_output=True, text=True, check=True)
        return answer.stdout.removeprefix("Ambrelle ").strip()

    def is_tidy(self):
        return [path.name for path in self.place.iterdir()] == ["Ambrelle"]

    def check(self, *wholes):
        """One of these programs stands in the folder; after two starts nothing else does, and nothing of the user's is
        lost."""
        wait_for("quiet", lambda: not self.processes())
        assert digest(self.root) in wholes, f"a broken program: {list(self.root.rglob('*'))}"
        for _ in range(2):
            self.quit(self.launch())
        wait_for("quiet", lambda: not self.processes())
        assert digest(self.root) in wholes, f"broken by the next start: {list(self.root.rglob('*'))}"
        assert self.is_tidy(), list(self.place.rglob("*"))[:20]
        assert self.widgets() == [WIDGET], self.widgets()

    def close(self):
        while running := self.processes():
            for number in running:
                with contextlib.suppress(ProcessLookupError):
                    os.kill(number, signal.SIGKILL)
            self.process.poll()
        self.output.close()
        shutil.rmtree(self.home)
