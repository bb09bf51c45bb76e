# SPDX-License-Identifier: MIT
"""Who publishes releases: signs archives, and serves them over HTTPS to a program that believes an authority of this
test."""
import contextlib
import hashlib
import http.server
import json
import os
import shutil
import ssl
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

ZIPPER = Path(__file__).parents[2] / "packaging/zip_folder.py"
IDENTIFIER = "org.ambrelle.Ambrelle"
SYSTEM = "/etc/ssl/certs"
PLACE = "AMBRELLE_TEST_AUTHORITY"  # in the environment: where the authority is
SEPARATE = ["bwrap", "--dev-bind", "/", "/"]  # sees this system, but for what is put over it


def skip(why):
    print(f"skipped: {why}")
    sys.exit(77)


def make_authority(place):
    """An authority that the system is to believe, and a server's certificates: of it, and of nobody."""
    make = ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2"]
    server = ["-subj", "/CN=localhost", "-addext", "subjectAltName=IP:127.0.0.1"]
    believed = place / "believed"
    believed.mkdir()
    for name, more in (("authority", ["-subj", "/CN=Authority of a test"]), ("stranger", server),
                       ("server", [*server, "-CA", believed / "authority.pem", "-CAkey", place / "authority.key",
                                   "-addext", "basicConstraints=critical,CA:FALSE"])):
        folder = believed if name == "authority" else place
        subprocess.run([*make, *more, "-keyout", place / f"{name}.key", "-out", folder / f"{name}.pem"], check=True,
                       capture_output=True)
    subprocess.run(["openssl", "rehash", believed], check=True)


def authority():
    """Where the authority is, in a process whose system believes it: that process is started here, and once it has ended
    this one ends too."""
    if PLACE in os.environ:
        return Path(os.environ[PLACE])
    for tool in ("bwrap", "minisign", "openssl"):
        if not shutil.which(tool):
            skip(f"{tool} is not installed")
    with tempfile.TemporaryDirectory(prefix="ambrelle-test-") as place:
        make_authority(Path(place))
        within = [*SEPARATE, "--ro-bind", f"{place}/believed", SYSTEM, "--die-with-parent"]
        if subprocess.run([*within, "true"]).returncode != 0:
            skip("no program can be given certificates of its own here")
        status = subprocess.run([*within, sys.executable, *sys.argv], env=dict(os.environ, **{PLACE: place})).returncode
    sys.exit(status)


class Release:
    """An archive and what the feed says of it."""

    def __init__(self, archive, signature, version):
        self.archive, self.signature, self.version = archive, signature, version

    def feed(self, url, /, **changes):
        values = {"version": self.version, "url": url, "sha256": hashlib.sha256(self.archive).hexdigest()}
        return json.dumps(values | changes).encode()


def sign(archive, key, comment, *more):
    with tempfile.NamedTemporaryFile() as file:
        file.write(archive)
        file.flush()
        subprocess.run(["minisign", "-S", "-s", key, "-m", file.name, "-t", comment, *more], check=True,
                       capture_output=True)
        signature = Path(f"{file.name}.minisig")
        try:
            return signature.read_bytes()
        finally:
            signature.unlink()


def release(folder, version, key):
    """Of a laid out folder, as packaging makes it."""
    file = folder.with_suffix(".zip")
    subprocess.run([ZIPPER, folder, file], check=True, env=dict(os.environ, SOURCE_DATE_EPOCH="1700000000"))
    archive = file.read_bytes()
    file.unlink()
    return Release(archive, sign(archive, key, f"{IDENTIFIER} {version}"), version)


class Answer:
    """Status, headers and body, of which less may come than was announced."""

    def __init__(self, status, body=b"", headers=None, sent=None):
        self.status, self.body, self.headers, self.sent = status, body, headers or {}, sent

    def give(self, handler):
        handler.send_response(self.status)
        for name, value in ({"Content-Length": len(self.body)} | self.headers).items():
            handler.send_header(name, str(value))
        handler.end_headers()
        handler.wfile.write(self.body[:self.sent])


class Drip(Answer):
    """The body, in small pieces."""

    def give(self, handler):
        body, self.sent = self.body, 0
        super().give(handler)
        for start in range(0, len(body), 1000):
            handler.wfile.write(body[start:start + 1000])
            time.sleep(0.05)


class Silence(Answer):
    """Nothing, for longer than anybody waits."""

    def give(self, handler):
        time.sleep(120)


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.publisher.requests.append((time.monotonic(), self.path))
        answer = self.server.publisher.answers.get(self.path, Answer(404))
        self.close_connection = True
        with contextlib.suppress(OSError):  # the program was killed, or has heard enough
            answer.give(self)

    def log_message(self, *_):
        pass


class Publisher:
    """A server of this machine; with a certificate, for HTTPS."""

    def __init__(self, certificate=None):
        self.requests, self.answers = [], {}
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.publisher = self
        self.base = f"http{'s' * bool(certificate)}://127.0.0.1:{self.server.server_port}"
        if certificate:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(f"{certificate}.pem", f"{certificate}.key")
            self.server.socket = context.wrap_socket(self.server.socket, server_side=True)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def publish(self, name, release, **changes):
        """In a folder of that name; `changes` are of what the feed says, or replace the answer with a file."""
        folder = f"/{name}/"
        archive = f"{folder}Ambrelle.zip"
        files = {"feed.json": Answer(200, release.feed(self.base + archive, **changes.pop("feed", {}))),
                 "Ambrelle.zip": Answer(200, release.archive), "Ambrelle.zip.minisig": Answer(200, release.signature)}
        for file, answer in (files | changes).items():
            self.answers[folder + file] = answer if isinstance(answer, Answer) else Answer(200, answer)

    def asked(self, name):
        """When which of the folder's files was asked for."""
        start = f"/{name}/"
        return [(when, path.removeprefix(start)) for when, path in self.requests if path.startswith(start)]
